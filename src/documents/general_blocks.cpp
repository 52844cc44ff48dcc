// What a quote is about: payment, event, service, remarks.
#include "documents/html_text.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

const QString kComentario = u"Dados Gerais"_s;

html::Quadro quadroGeral(const QStringList& linhas) { return {kComentario, kComentario, linhas}; }

QStringList linhasDoEvento(const data::Recordset& rs) {
  auto evento = DescricaoTipoEvento(rs.text(u"idtipo_even"));
  auto servico = DescricaoTipoServico(rs.text(u"idtipo_serv"));
  return {u"Tipo Evento: "_s + waitFor(evento), u"Tipo Serviço: "_s + waitFor(servico),
          u"Observações: "_s + rs.text(u"OBSE_prop_CMRC")};
}

}  // namespace

Asked<QString> condicaoPagamento(data::Recordset rs) {
  if (rs.isNull(u"idcond_pgto")) co_return u"Condição de Pagamento: -"_s;
  const QString id = rs.text(u"idcond_pgto");
  auto pedeParcelas = ParcelasCondPgto(id);
  const QString dias = co_await DiasCondPgto(id);
  const QString parcelas = co_await pedeParcelas;
  co_return u"Condição de Pagamento: "_s + parcelas + u" - "_s + dias;
}

QString DadosGeraisOrcaHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return html::quadro(
      quadroGeral({waitFor(condicaoPagamento(rs)), u"Observações: "_s + rs.text(u"OBSE_prop_CMRC")}));
}

QString DadosGeraisOrcaEstilosHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  auto atendente = UsuarioAtual(rs.text(u"IDRESV_PROP_CMRC"));
  const QStringList eventoEServico = linhasDoEvento(rs);
  const QStringList linhas{u"Data/Hora do Evento: "_s + rs.formatDate(u"DATA_even", u"dd/mm/yyyy hh:mm") +
                               u" - Número de Pessoas: "_s + rs.text(u"NUME_PESS") +
                               u" - Validade do Orçamento: "_s + rs.formatDate(u"DATA_vali", u"dd/mm/yyyy"),
                           u"Resp.Atendimento: "_s + waitFor(atendente)};
  return html::quadroEstilos(quadroGeral(linhas + eventoEServico), u"titulo3"_s, u"dados1b"_s);
}

QString DadosGeraisOrcaResumoHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return html::quadro(quadroGeral(linhasDoEvento(rs)));
}
