// Customer and general data of an order.
#include "documents/order_blocks.h"

#include "documents/html_text.h"
#include "documents/party_lines.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

data::Recordset abrePedido(const QString& numero) {
  return abreConsulta(u"SELECT * FROM pedi_veds where nume_pedi='"_s + numero + u'\'');
}

QStringList linhasDoCliente(const QString& numero) {
  const QString cliente = waitFor(ClienteDoPedido(waitFor(IdPedidoPorNumero(numero))));
  if (cliente.isEmpty()) return {};
  auto fones = FonesCliente(cliente);
  auto email = EmailCliente(cliente);
  return linhasDaParte(leParte(cliente), waitFor(fones), waitFor(email));
}

QStringList linhasGerais(const QString& numero) {
  const data::Recordset rs = abrePedido(numero);
  if (rs.eof()) return {};
  auto transportadora = NomeTransportadora(rs.text(u"idtrpt"));
  auto fone = FoneTransportadora(rs.text(u"idtrpt"));
  auto condicao = condicaoPagamento(rs);
  auto evento = DescricaoTipoEvento(rs.text(u"idtipo_even"));
  auto servico = DescricaoTipoServico(rs.text(u"idtipo_serv"));
  return {u"Transportadora: "_s + waitFor(transportadora) + u" - Fone: "_s + waitFor(fone),
          u"Comprador: "_s + rs.text(u"nome_compr") + u" - Fone: "_s + rs.text(u"fone_compr"),
          waitFor(condicao),
          u"Tipo Evento: "_s + waitFor(evento),
          u"Tipo Serviço: "_s + waitFor(servico),
          u"Observações: "_s + rs.text(u"OBSE_PEDI_VEDS")};
}

const QString kGerais = u"Dados Gerais"_s;

html::Quadro quadroGeral(const QStringList& linhas) { return {kGerais, kGerais, linhas}; }

}  // namespace

QString DadosClientePedidoHTML(const QString& numero) {
  const QStringList linhas = linhasDoCliente(numero);
  return linhas.isEmpty() ? QString() : quadroCliente(linhas);
}

QString DadosClientePedidoEstilosHTML(const QString& numero) {
  const QStringList linhas = linhasDoCliente(numero);
  return linhas.isEmpty() ? QString() : quadroClienteEstilos(linhas);
}

QString DadosGeraisPedidoHTML(const QString& numero) {
  // The general data of an order are the same in all models.
  [[maybe_unused]] const QString modelo = waitFor(ParametroEmpresa(u"MODELO_PEDIDO_VEDS"_s));
  const QStringList linhas = linhasGerais(numero);
  return linhas.isEmpty() ? QString() : html::quadro(quadroGeral(linhas));
}

QString DadosGeraisPedidoEstilosHTML(const QString& numero) {
  const QStringList linhas = linhasGerais(numero);
  return linhas.isEmpty() ? QString() : html::quadroEstilos(quadroGeral(linhas), u"titulo3"_s, u"dados1b"_s);
}
