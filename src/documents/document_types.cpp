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

const std::array<TipoDeDocumento, 4> kTipos{{
    {u"PEDIDO_VENDAS"_s, MontaPedidoHTML, {u"pedido_cliente"_s, u"pedido_empresa"_s}, u"Pedido"_s},
    {u"ORCA_VENDAS"_s, montaOrcamento, {u"orca_cliente"_s, u"orca_empresa"_s}, u"Orçamento"_s},
    {u"COTA_COMPRA"_s, CotacaoCompraHTML, {u"cota_compra"_s}, u"Cotação de Compras"_s},
    {u"ORDEM_COMPRA"_s, OrdemCompraHTML, {u"ordem_compra"_s}, u"Ordem de Compras"_s},
}};

}  // namespace

const TipoDeDocumento* tipoDoDocumento() {
  const auto* const tipo = std::ranges::find_if(
      kTipos, [](const TipoDeDocumento& um) { return documento().TipoDocumento == um.tipo; });
  return tipo == kTipos.end() ? nullptr : tipo;
}

QString nomeDoDocumento() {
  if (documento().TipoDocumento == u"ORCA_VENDAS" &&
      !waitFor(DataFechamentoOrcamento(QString::number(documento().IdDocumento))).isEmpty())
    return u"Pedido"_s;
  const TipoDeDocumento* tipo = tipoDoDocumento();
  return tipo == nullptr ? QString() : tipo->nome;
}

QString peDaFolha() {
  const TipoDeDocumento* tipo = tipoDoDocumento();
  if (tipo == nullptr || tipo->vias[1].isEmpty()) return {};
  return nomeDoDocumento() + u' ' + numeroDocumento(documento().IdDocumento);
}
