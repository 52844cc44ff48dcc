// Writes the files of the document that is to be viewed.
#include "documents/document_names.h"
#include "documents/document_types.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "platform/files/contents.h"

using namespace Qt::StringLiterals;

namespace {

QString CaminhoDaVia(const char16_t* tronco) {
  if (tronco == nullptr) return {};
  return ArquivoDocumento(QString::fromUtf16(tronco), documento().IdDocumento, u".html"_s);
}

}  // namespace

void frmPedHTML::montaVias() {
  const TipoDeDocumento* tipo = TipoDoDocumento();
  if (tipo == nullptr) return;
  ArqVia1 = CaminhoDaVia(tipo->via1);
  ArqVia2 = CaminhoDaVia(tipo->via2);
  QStringList vias{ArqVia1, ArqVia2};
  vias.removeAll(QString());
  for (const QString& via : vias) files::removeIfThere(via);
  for (const QString& via : vias) tipo->monta(documento().IdDocumento, via);
}
