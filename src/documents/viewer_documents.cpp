// Writes the files of the document that is to be viewed.
#include <array>

#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/documents.h"
#include "documents/frmPedHTML.h"
#include "platform/files/contents.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace {

using Rotina = void (*)(qint32, const QString&);

void MontaOrcamento(qint32 id, const QString& caminho) {
  const bool daTelaDeOrcamento = contexto().TelaChamadora == u"frmPropCmrcTL";
  (daTelaDeOrcamento ? MontaOrcaGradeHTML : MontaOrcaHTML)(id, caminho);
}

struct TipoDeDocumento {
  const char16_t* tipo;
  Rotina monta;
  const char16_t* via1;
  const char16_t* via2;  // nullptr: one copy only
};

constexpr std::array<TipoDeDocumento, 4> kTipos{{
    {u"PEDIDO_VENDAS", MontaPedidoHTML, u"pedido_cliente", u"pedido_empresa"},
    {u"ORCA_VENDAS", MontaOrcamento, u"orca_cliente", u"orca_empresa"},
    {u"COTA_COMPRA", CotacaoCompraHTML, u"cota_compra", nullptr},
    {u"ORDEM_COMPRA", OrdemCompraHTML, u"ordem_compra", nullptr},
}};

QString CaminhoDaVia(const char16_t* tronco) {
  if (tronco == nullptr) return {};
  return ArquivoDocumento(QString::fromUtf16(tronco), documento().IdDocumento, u".html"_s);
}

}  // namespace

void frmPedHTML::montaVias() {
  for (const TipoDeDocumento& tipo : kTipos) {
    if (documento().TipoDocumento != QStringView(tipo.tipo)) continue;
    ArqVia1 = CaminhoDaVia(tipo.via1);
    ArqVia2 = CaminhoDaVia(tipo.via2);
    QStringList vias{ArqVia1, ArqVia2};
    vias.removeAll(QString());
    for (const QString& via : vias) files::removeIfThere(via);
    for (const QString& via : vias) tipo.monta(documento().IdDocumento, via);
  }
}
