#include "documents/document_types.h"

#include <algorithm>
#include <array>

#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/documents.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

void montaOrcamento(qint32 id, const QString& caminho) {
  const bool daTelaDeOrcamento = contexto().TelaChamadora == u"frmPropCmrcTL";
  (daTelaDeOrcamento ? MontaOrcaGradeHTML : MontaOrcaHTML)(id, caminho);
}

constexpr std::array<TipoDeDocumento, 4> kTipos{{
    {u"PEDIDO_VENDAS", MontaPedidoHTML, {u"pedido_cliente", u"pedido_empresa"}, u"Pedido"},
    {u"ORCA_VENDAS", montaOrcamento, {u"orca_cliente", u"orca_empresa"}, u"Orçamento"},
    {u"COTA_COMPRA", CotacaoCompraHTML, {u"cota_compra"}, u"Cotação de Compras"},
    {u"ORDEM_COMPRA", OrdemCompraHTML, {u"ordem_compra"}, u"Ordem de Compras"},
}};

}  // namespace

const TipoDeDocumento* tipoDoDocumento() {
  const auto* const tipo = std::ranges::find_if(
      kTipos, [](const TipoDeDocumento& um) { return documento().TipoDocumento == QStringView(um.tipo); });
  return tipo == kTipos.end() ? nullptr : tipo;
}

QString nomeDoDocumento() {
  if (documento().TipoDocumento == u"ORCA_VENDAS" &&
      !waitFor(DataFechamentoOrcamento(QString::number(documento().IdDocumento))).isEmpty())
    return u"Pedido"_s;
  const TipoDeDocumento* tipo = tipoDoDocumento();
  return tipo == nullptr ? QString() : QString::fromUtf16(tipo->nome);
}

QString peDaFolha() {
  const TipoDeDocumento* tipo = tipoDoDocumento();
  if (tipo == nullptr || tipo->vias[1] == nullptr) return {};
  return nomeDoDocumento() + u' ' + numeroDocumento(documento().IdDocumento);
}
