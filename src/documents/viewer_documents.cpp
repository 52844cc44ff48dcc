// Writes the files of the document that is to be viewed.
#include "documents/document_names.h"
#include "documents/document_types.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "platform/files/contents.h"

using namespace Qt::StringLiterals;

namespace {

QString caminhoDaVia(const char16_t* tronco) {
  if (tronco == nullptr) return {};
  return arquivoDocumento(QString::fromUtf16(tronco), documento().IdDocumento, u".html"_s);
}

}  // namespace

void frmPedHTML::montaVias() {
  const TipoDeDocumento* tipo = tipoDoDocumento();
  if (tipo == nullptr) return;
  arqVia1 = caminhoDaVia(tipo->via1);
  arqVia2 = caminhoDaVia(tipo->via2);
  QStringList vias{arqVia1, arqVia2};
  vias.removeAll(QString());
  for (const QString& via : vias) files::removeIfThere(via);
  for (const QString& via : vias) tipo->monta(documento().IdDocumento, via);
}
