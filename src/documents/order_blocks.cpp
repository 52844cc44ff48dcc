// Customer and general data of an order.
#include "documents/order_blocks.h"

#include "documents/html_text.h"
#include "documents/party_lines.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

data::Recordset Pedido(const QString& numero) {
  return AbreConsulta(u"SELECT * FROM pedi_veds where nume_pedi='"_s + numero + u'\'');
}

QStringList LinhasDoCliente(const QString& numero) {
  const QString cliente = ClienteDoPedido(IdPedidoPorNumero(numero));
  if (cliente.isEmpty()) return {};
  return LinhasDaParte(LeParte(cliente), FonesCliente(cliente), EmailCliente(cliente));
}

QStringList LinhasGerais(const QString& numero) {
  const data::Recordset rs = Pedido(numero);
  if (rs.eof()) return {};
  const QString transportadora = rs.text(u"idtrpt");
  return {u"Transportadora: "_s + NomeTransportadora(transportadora) + u" - Fone: "_s +
              FoneTransportadora(transportadora),
          u"Comprador: "_s + rs.text(u"nome_compr") + u" - Fone: "_s + rs.text(u"fone_compr"),
          CondicaoPagamento(rs),
          u"Tipo Evento: "_s + DescricaoTipoEvento(rs.text(u"idtipo_even")),
          u"Tipo Serviço: "_s + DescricaoTipoServico(rs.text(u"idtipo_serv")),
          u"Observações: "_s + rs.text(u"OBSE_PEDI_VEDS")};
}

constexpr const char16_t* kGerais = u"Dados Gerais";

html::Quadro Gerais(const QStringList& linhas) { return {kGerais, QString::fromUtf16(kGerais), linhas}; }

}  // namespace

QString DadosClientePedidoHTML(const QString& numero) {
  const QStringList linhas = LinhasDoCliente(numero);
  return linhas.isEmpty() ? QString() : QuadroCliente(linhas);
}

QString DadosClientePedidoEstilosHTML(const QString& numero) {
  const QStringList linhas = LinhasDoCliente(numero);
  return linhas.isEmpty() ? QString() : QuadroClienteEstilos(linhas);
}

QString DadosGeraisPedidoHTML(const QString& numero) {
  // The general data of an order are the same in all models.
  [[maybe_unused]] const QString modelo = ParametroEmpresa(u"MODELO_PEDIDO_VEDS"_s);
  const QStringList linhas = LinhasGerais(numero);
  return linhas.isEmpty() ? QString() : html::quadro(Gerais(linhas));
}

QString DadosGeraisPedidoEstilosHTML(const QString& numero) {
  const QStringList linhas = LinhasGerais(numero);
  return linhas.isEmpty() ? QString() : html::quadroEstilos(Gerais(linhas), u"titulo3"_s, u"dados1b"_s);
}
