// Under what conditions a quote stands, how it is paid, and where the customer signs.
#include "documents/company_texts.h"
#include "documents/document_values.h"
#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/quote_blocks.h"
#include "quote/default_terms.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

QString linhaDeTexto(const QString& html, const QString& alinhamento) {
  return u"    <tr><td width=100% align='"_s + alinhamento + u"' ><font face='Verdana' size='1'>"_s + html +
         u"</font></td></tr>"_s;
}

QString montaTabela(const QStringList& linhas, const QString& alinhamento) {
  QString texto = u"<table border='0' width='400'>"_s;
  for (const QString& linha : linhas) texto += linhaDeTexto(linha, alinhamento);
  return texto + u"</table>"_s;
}

QString montaClausulas() {
  QString texto;
  for (const QString& clausula : empresa::kClausulas) texto += linhaDeTexto(clausula, kEsquerda);
  return texto;
}

}  // namespace

Asked<QString> textoPagamento(data::Recordset orcamento, QString id) {
  QString texto =
      orcamento.isNull(u"txt_cond_pgto") ? kCondPagtoPadrao.toString() : orcamento.text(u"txt_cond_pgto");
  // A closed quote is paid by the condition agreed on.
  const QString fechamento = co_await DataFechamentoOrcamento(id);
  if (!fechamento.isEmpty()) texto = co_await CondPgtoOrcamento(id);
  co_return texto;
}

// One line in the file, except for the line ends of the payment text.
QString CondicoesOrcaHTML(const QString& id) {
  if (orcamentoDoDocumento(id).eof()) return {};
  const QStringList pagamento{u"<b>Forma de Pagamento:</b>"_s,
                              html::escapado(waitFor(textoPagamento(documento().rsImpressao, id))),
                              u"&nbsp"_s,
                              u"Validade da proposta:"_s + empresa::kValidade,
                              u"Dados bancários:"_s + empresa::kBanco,
                              u"Razão Social:"_s + empresa::kNome,
                              empresa::kDepartamento};
  const QStringList aprovacao =
      QStringList{u"Aprovação do Pedido"_s, u"Data  ____ /____ /________"_s} + empresa::kAssinatura;
  return u"<BR><table border='0' width='800' align='center'>"_s +
         linhaDeTexto(u"<b>Observações</b>"_s, kCentro) + montaClausulas() +
         u"</table><BR><!-- CondiÃ§Ãµes de pagamento -->"_s +
         u"<table border='0' width='800' align='center'><tr><td width=50% valign='top' >"_s +
         montaTabela(pagamento, kEsquerda) + u"</td><td width=50% valign='top' >"_s +
         montaTabela(aprovacao, kCentro) + u"</td></tr></table>"_s;
}

QString CondPgtoOrcaHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return grade::abreDetalhes() + grade::linha({grade::dado(u"100%"_s, waitFor(textoPagamento(rs, id)))}) +
         grade::fecha();
}
