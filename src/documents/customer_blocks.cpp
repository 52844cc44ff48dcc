// Who a quote is for.
#include "documents/document_values.h"
#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/party_lines.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;
using grade::rotulada;
using html::kFim;

data::Recordset orcamentoDoDocumento(const QString& id) {
  return abreConsulta(u"SELECT * FROM prop_cmrc where idprop_cmrc="_s + id);
}

namespace {

QStringList linhasComContato(const data::Recordset& rs, const Parte& parte) {
  return {u"Nome: "_s + parte.nome,
          u"Fone: "_s + rs.text(u"fone_CLIE"),
          u"e-mail: "_s + rs.text(u"emai_CLIE"),
          u"Contato: "_s + html::juntos({rs.text(u"NOME_CLIE_CONT"), rs.text(u"fone_CLIE_CONT"),
                                         rs.text(u"emai_CLIE_CONT")}),
          u"Endereço: "_s + parte.endereco,
          html::juntos({parte.bairro, parte.localidade()}),
          u"CNPJ/CPF: "_s + parte.documento};
}

}  // namespace

QString DadosClienteOrcaHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return quadroCliente(linhasComContato(rs, leParte(rs.text(u"idClie"))));
}

QString DadosClienteOrcaEstilosHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return quadroClienteEstilos(linhasComContato(rs, leParte(rs.text(u"idClie"))));
}

QString DadosClienteOrcaResumoHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  return quadroCliente(
      linhasDaParte(leParte(rs.text(u"idClie")), rs.text(u"fone_CLIE"), rs.text(u"emai_CLIE")));
}

QString DadosClienteOrcaGradeHTML(const QString& id) {
  const data::Recordset rs = orcamentoDoDocumento(id);
  if (rs.eof()) return {};
  auto cliente = EnderecoCliente(rs.text(u"idClie"));
  // The number is an order's once the document being viewed is closed.
  auto fechamento = DataFechamentoOrcamento(QString::number(documento().IdDocumento));
  auto atendente = UsuarioAtual(rs.text(u"IDRESV_PROP_CMRC"));
  auto emailAtendente = EmailUsuario(rs.text(u"IDRESV_PROP_CMRC"));
  auto evento = DescricaoTipoEvento(rs.text(u"idtipo_even"));
  const bool aberto = waitFor(fechamento).isEmpty();
  const QString fone = rs.text(u"fone_CLIE");
  grade::Celula nome = grade::rotulada(u"60%"_s, u"Cliente: "_s, PegaCampo(waitFor(cliente), 1));
  nome.atributos = u"colspan='2'"_s;
  return u"<!--Dados do Cliente-->"_s + kFim + grade::abre() +
         grade::linha(
             {nome, rotulada(u"40%"_s, u"Data: "_s, rs.formatDate(u"data_prop_cmrc", u"dd/mm/yyyy"))}) +
         // Quotes keep one phone of the customer; it stands in both places.
         grade::linha({rotulada(u"30%"_s, u"Fone: "_s, fone), rotulada(u"30%"_s, u"Celular: "_s, fone),
                       rotulada(u"40%"_s, u"E-mail: "_s, rs.text(u"emai_CLIE").toLower())}) +
         grade::linha({rotulada(u"30%"_s, aberto ? u"Orçamento: "_s : u"Pedido: "_s,
                                numeroDocumento(rs.text(u"idprop_cmrc"))),
                       rotulada(u"30%"_s, u"Atendimento: "_s, waitFor(atendente)),
                       rotulada(u"40%"_s, u"E-mail: "_s, waitFor(emailAtendente))}) +
         grade::linha({rotulada(u"30%"_s, u"Evento: "_s, waitFor(evento)),
                       rotulada(u"30%"_s, u"Data Evento: "_s, rs.formatDate(u"DATA_even", u"dd/mm/yyyy")),
                       rotulada(u"40%"_s, u"Entrega: "_s, rs.formatDate(u"DATA_ENTG", u"dd/mm/yyyy"))}) +
         grade::fecha() + u"<br>"_s + kFim;
}
