#include "documents/document_types.h"

#include <algorithm>
#include <array>

#include "documents/document_names.h"
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

const TipoDeDocumento* tipoDeDocumento(const QString& tipo) {
  const auto* const achado =
      std::ranges::find_if(kTipos, [&tipo](const TipoDeDocumento& um) { return um.tipo == tipo; });
  return achado == kTipos.end() ? nullptr : achado;
}

QString nomeDoDocumento(const QString& tipo, qint32 id) {
  if (tipo == u"ORCA_VENDAS" && !waitFor(DataFechamentoOrcamento(QString::number(id))).isEmpty())
    return u"Pedido"_s;
  const TipoDeDocumento* achado = tipoDeDocumento(tipo);
  return achado == nullptr ? QString() : achado->nome;
}

QString peDaFolha(const QString& tipo, qint32 id) {
  const TipoDeDocumento* achado = tipoDeDocumento(tipo);
  if (achado == nullptr || achado->vias[1].isEmpty()) return {};
  return nomeDoDocumento(tipo, id) + u' ' + numeroDocumento(id);
}
