#include "shared/lists.h"

#include "platform/forms/combo.h"
#include "platform/forms/wait_pointer.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

void preenche(forms::Form& tela, const QString& combo, const QString& sql, QStringView coluna) {
  auto* lista = tela.findChild<forms::Combo*>(combo);
  if (lista == nullptr) return;
  const forms::WaitPointer espera;
  QStringList nomes;
  for (auto rs = abreConsulta(sql); !rs.eof(); rs.moveNext()) nomes << rs.text(coluna);
  lista->setEntries(nomes);
}

/// Known names of the persons with a role: salespeople, carriers.
void preenchePapel(forms::Form& tela, const QString& combo, const QString& papel, const QString& filtro) {
  const QString condicao = filtro.isEmpty() ? QString() : u"and pess.nome_conh like '"_s + filtro + u"%' "_s;
  preenche(tela, combo,
           u"select pess.nome_conh from pess, "_s + papel + u" where pess.idpess = "_s + papel +
               u".idpess "_s + condicao + u"and "_s + papel + u".data_desa is null order by pess.nome_conh"_s,
           u"NOME_CONH");
}

/// Descriptions of a list of choices that are active.
void preencheOpcoes(forms::Form& tela, const QString& combo, const QString& tabela, const QString& coluna) {
  preenche(tela, combo,
           u"select "_s + coluna + u" from "_s + tabela + u" where data_desa is null order by "_s + coluna,
           coluna);
}

}  // namespace

void CarregaVendedores(forms::Form& tela, const QString& filtro) {
  preenchePapel(tela, u"cboVendedor"_s, u"vend"_s, filtro);
}

void CarregaTransportadoras(forms::Form& tela, const QString& filtro) {
  preenchePapel(tela, u"cboTransportadora"_s, u"trpt"_s, filtro);
}

void CarregaTiposMarketing(forms::Form& tela) {
  preencheOpcoes(tela, u"cboTipoMktg"_s, u"tipo_mktg"_s, u"desc_tipo_mktg"_s);
}

void CarregaLocaisVenda(forms::Form& tela) {
  preencheOpcoes(tela, u"cboLocalVenda"_s, u"loca_veds"_s, u"desc_loca_veds"_s);
}

void CarregaTiposEvento(forms::Form& tela) {
  preencheOpcoes(tela, u"cboTipoEven"_s, u"tipo_even"_s, u"desc_tipo_even"_s);
}

void CarregaTiposServico(forms::Form& tela) {
  preencheOpcoes(tela, u"cboTipoServ"_s, u"tipo_serv"_s, u"desc_tipo_serv"_s);
}

void CarregaColecoes(forms::Form& tela) { preencheOpcoes(tela, u"cboCole"_s, u"cole"_s, u"desc_cole"_s); }

void CarregaUsuarios(forms::Form& tela) {
  preenche(tela, u"cboRespAtendimento"_s, u"SELECT * FROM usen where data_desa is null"_s, u"usen");
}

void CarregaClientes(forms::Form& tela, const QString& filtro, FiltroCliente por) {
  const QString coluna = por == FiltroCliente::Nome ? u"PESS.NOME_PESS"_s : u"PESS.CPF0_CNPJ"_s;
  const QString condicao =
      filtro.isEmpty() ? QString() : u"AND ("_s + coluna + u" Like '%"_s + filtro + u"%') "_s;
  preenche(
      tela, u"cboCliente"_s,
      u"SELECT PESS.IDPESS, PESS.NOME_PESS, PESS.NOME_CONH, PESS.PSFI_PSJU, PESS.CPF0_CNPJ FROM CLIE, PESS "
      "Where CLIE.IDPESS = PESS.IDPESS  And (CLIE.DATA_DESA Is Null) "_s +
          condicao + u"ORDER BY PESS.NOME_PESS"_s,
      u"NOME_PESS");
}

void CarregaContatos(forms::Form& tela, const QString& cliente, const QString& filtro) {
  const QString condicao =
      filtro.isEmpty() ? QString() : u"AND (PESS_CONT.NOME_PESS_CONT Like '%"_s + filtro + u"%') "_s;
  preenche(
      tela, u"cboClienteContato"_s,
      u"SELECT PESS_CONT.NOME_PESS_CONT, PESS_CONT.TELE_PESS_CONT, PESS_CONT.EMAI_PESS_CONT FROM PESS_CONT, "
      u"PESS "
      "WHERE PESS.IDPESS = PESS_CONT.IDPESS AND (PESS.NOME_PESS = '"_s +
          cliente + u"') "_s + condicao + u"ORDER BY PESS_CONT.NOME_PESS_CONT"_s,
      u"NOME_PESS_CONT");
}
