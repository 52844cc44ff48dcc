#include "shared/lists.h"

#include "platform/forms/combo.h"
#include "platform/forms/wait_pointer.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

void fill(forms::Form& form, const QString& combo, const QString& sql, QStringView column) {
  auto* list = form.findChild<forms::Combo*>(combo);
  if (list == nullptr) return;
  const forms::WaitPointer wait;
  list->clearList();
  for (auto rs = AbreConsulta(sql); !rs.eof(); rs.moveNext()) list->addEntry(rs.text(column));
}

/// Known names of the persons with a role: salespeople, carriers.
void fillRole(forms::Form& form, const QString& combo, const QString& role, const QString& filtro) {
  const QString filter = filtro.isEmpty() ? QString() : u"and pess.nome_conh like '"_s + filtro + u"%' "_s;
  fill(form, combo,
       u"select pess.nome_conh from pess, "_s + role + u" where pess.idpess = "_s + role + u".idpess "_s +
           filter + u"and "_s + role + u".data_desa is null order by pess.nome_conh"_s,
       u"NOME_CONH");
}

/// Descriptions of a list of choices that are active.
void fillChoices(forms::Form& form, const QString& combo, const QString& table, const QString& column) {
  fill(form, combo,
       u"select "_s + column + u" from "_s + table + u" where data_desa is null order by "_s + column,
       column);
}

}  // namespace

void CarregaVendedores(forms::Form& form, const QString& filtro) {
  fillRole(form, u"cboVendedor"_s, u"vend"_s, filtro);
}

void CarregaTransportadoras(forms::Form& form, const QString& filtro) {
  fillRole(form, u"cboTransportadora"_s, u"trpt"_s, filtro);
}

void CarregaTiposMarketing(forms::Form& form) {
  fillChoices(form, u"cboTipoMktg"_s, u"tipo_mktg"_s, u"desc_tipo_mktg"_s);
}

void CarregaLocaisVenda(forms::Form& form) {
  fillChoices(form, u"cboLocalVenda"_s, u"loca_veds"_s, u"desc_loca_veds"_s);
}

void CarregaTiposEvento(forms::Form& form) {
  fillChoices(form, u"cboTipoEven"_s, u"tipo_even"_s, u"desc_tipo_even"_s);
}

void CarregaTiposServico(forms::Form& form) {
  fillChoices(form, u"cboTipoServ"_s, u"tipo_serv"_s, u"desc_tipo_serv"_s);
}

void CarregaColecoes(forms::Form& form) { fillChoices(form, u"cboCole"_s, u"cole"_s, u"desc_cole"_s); }

void CarregaUsuarios(forms::Form& form) {
  fill(form, u"cboRespAtendimento"_s, u"SELECT * FROM usen where data_desa is null"_s, u"usen");
}

void CarregaClientes(forms::Form& form, const QString& filtro, FiltroCliente por) {
  const QString column = por == FiltroCliente::Nome ? u"PESS.NOME_PESS"_s : u"PESS.CPF0_CNPJ"_s;
  const QString filter =
      filtro.isEmpty() ? QString() : u"AND ("_s + column + u" Like '%"_s + filtro + u"%') "_s;
  fill(form, u"cboCliente"_s,
       u"SELECT PESS.IDPESS, PESS.NOME_PESS, PESS.NOME_CONH, PESS.PSFI_PSJU, PESS.CPF0_CNPJ FROM CLIE, PESS "
       "Where CLIE.IDPESS = PESS.IDPESS  And (CLIE.DATA_DESA Is Null) "_s +
           filter + u"ORDER BY PESS.NOME_PESS"_s,
       u"NOME_PESS");
}

void CarregaContatos(forms::Form& form, const QString& cliente, const QString& filtro) {
  const QString filter =
      filtro.isEmpty() ? QString() : u"AND (PESS_CONT.NOME_PESS_CONT Like '%"_s + filtro + u"%') "_s;
  fill(form, u"cboClienteContato"_s,
       u"SELECT PESS_CONT.NOME_PESS_CONT, PESS_CONT.TELE_PESS_CONT, PESS_CONT.EMAI_PESS_CONT FROM PESS_CONT, "
       u"PESS "
       "WHERE PESS.IDPESS = PESS_CONT.IDPESS AND (PESS.NOME_PESS = '"_s +
           cliente + u"') "_s + filter + u"ORDER BY PESS_CONT.NOME_PESS_CONT"_s,
       u"NOME_PESS_CONT");
}
