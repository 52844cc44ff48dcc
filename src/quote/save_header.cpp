#include <QLineEdit>
#include <algorithm>
#include <array>
#include <vector>

#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/sql_text.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The statements that write the header of a quote from the screen's fields.

namespace {

QString aparado(const QObject* campo) { return apara(forms::controlText(campo)); }

/// The number of persons as it was typed where it is a number or empty, else what the numeric reading makes
/// of it.
QString pessoas(const QLineEdit* caixa) {
  const QString texto = apara(caixa->text());
  return texto.isEmpty() || values::isNumeric(texto) ? texto : values::toText(leNumero(texto));
}

/// Empty where there is no date.
QString dataHora(const forms::MaskedBox* caixa) {
  const QString texto = caixa->boxText();
  return values::isDate(texto) ? values::formatDate(texto, u"yyyymmdd hh:mm") : QString();
}

/// What becomes of a field that is empty.
enum class Vazio {
  Grava,        ///< stored as it is
  GravaOuNulo,  ///< stored as it is in a new quote, null in an altered one
  Nulo,         ///< left out of a new quote, null in an altered one
};

/// An altered quote has its own order.
constexpr std::array<QStringView, 23> kOrdemDaAlteracao{
    u"idvend",      u"idloca_veds",    u"idclie",         u"idclie_cont",    u"idtipo_mktg",
    u"idtipo_even", u"idtipo_serv",    u"show_excl",      u"prop_cmrc_desc", u"data_prop_cmrc",
    u"data_even",   u"data_vali",      u"data_entg",      u"nome_clie",      u"fone_clie",
    u"emai_clie",   u"nome_clie_cont", u"fone_clie_cont", u"emai_clie_cont", u"idresv_prop_cmrc",
    u"nume_pess",   u"txt_cond_pgto",  u"obse_prop_cmrc"};

}  // namespace

/// A column of the header and what the screen has for it.
struct frmPropCmrcTL::Campo {
  QStringView coluna;
  QString valor;
  Vazio vazio = Vazio::Grava;
};

/// In the order of a new quote.
std::vector<frmPropCmrcTL::Campo> frmPropCmrcTL::camposDoCabecalho() const {
  // What the names stand for, asked together.
  auto vendedor = IdVendedor(cboVendedor->text());
  auto cliente = IdClientePorNome(cboCliente->text());
  auto contato = IdClienteContato(cboClienteContato->text(), cboCliente->text());
  auto local = IdLocalVenda(cboLocalVenda->text());
  auto marketing = IdTipoMarketing(cboTipoMktg->text());
  auto evento = IdTipoEvento(cboTipoEven->text());
  auto servico = IdTipoServico(cboTipoServ->text());
  const bool atendido = !aparado(cboRespAtendimento).isEmpty();
  auto atendente = atendido ? IdUsuario(cboRespAtendimento->text()) : data::known(QString());

  std::vector<Campo> campos{{u"idvend", vendedor.get()},
                            {u"idclie", cliente.get()},
                            {u"idclie_cont", contato.get()},
                            {u"idloca_veds", local.get()},
                            {u"idtipo_mktg", marketing.get()},
                            {u"idtipo_even", evento.get()},
                            {u"idtipo_serv", servico.get()},
                            {u"show_excl", opShowRoom->isChecked() ? u"S"_s : u"E"_s},
                            {u"data_prop_cmrc", dataHora(mskDtPropCmrc), Vazio::Nulo},
                            {u"data_even", dataHora(mskDataEven), Vazio::Nulo},
                            {u"data_vali", dataHora(mskDtValidade), Vazio::Nulo},
                            {u"data_entg", dataHora(mskDtEntrega), Vazio::Nulo},
                            {u"prop_cmrc_desc", aparado(txtDesc), Vazio::Nulo},
                            {u"nome_clie", aparado(cboCliente), Vazio::GravaOuNulo},
                            {u"fone_clie", aparado(txtFoneExtra), Vazio::GravaOuNulo},
                            {u"emai_clie", aparado(txtEmailExtra), Vazio::Nulo},
                            {u"nome_clie_cont", aparado(cboClienteContato), Vazio::GravaOuNulo},
                            {u"fone_clie_cont", aparado(txtFoneExtraContato), Vazio::GravaOuNulo},
                            {u"emai_clie_cont", aparado(txtEmailExtraContato), Vazio::Nulo}};
  if (atendido) campos.push_back({u"idresv_prop_cmrc", atendente.get()});
  campos.push_back({u"nume_pess", pessoas(txtNumePess)});
  campos.push_back({u"obse_prop_cmrc", aparado(txtObserva), Vazio::Nulo});
  campos.push_back({u"txt_cond_pgto", aparado(txtCondPagto), Vazio::Nulo});
  return campos;
}

QString frmPropCmrcTL::MontaInsertOrcamento() const {
  Insercao sql(u"PROP_CMRC"_s);
  for (const Campo& campo : camposDoCabecalho())
    sql.campoSe(campo.vazio != Vazio::Nulo || !campo.valor.isEmpty(), campo.coluna, campo.valor);
  sql.campo(u"DATA_INCL", values::formatDate(values::now(), u"yyyymmdd hh:mm"));
  sql.campo(u"USER_INCL", QString::number(contexto().IdUsuarioAtual));
  return sql.texto();
}

QString frmPropCmrcTL::MontaUpdateOrcamento() const {
  const std::vector<Campo> campos = camposDoCabecalho();
  Alteracao sql(u"PROP_CMRC"_s);
  for (const QStringView coluna : kOrdemDaAlteracao) {
    const auto campo = std::ranges::find(campos, coluna, &Campo::coluna);
    if (campo == campos.end()) continue;
    sql.campoOuNull(campo->vazio == Vazio::Grava || !campo->valor.isEmpty(), coluna, campo->valor);
  }
  return sql.texto(u"WHERE (idPROP_CMRC="_s + txtRowId->text() + u")"_s);
}
