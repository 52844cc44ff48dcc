// Writes the files of the document that is to be viewed.
#include "documents/document_names.h"
#include "documents/document_types.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "platform/files/contents.h"

using namespace Qt::StringLiterals;

namespace {

QString caminhoDaVia(const QString& tronco, qint32 id) {
  return tronco.isEmpty() ? QString() : arquivoDocumento(tronco, id, u".html"_s);
}

}  // namespace

void frmPedHTML::montaVias() {
  const ValoresDoDocumento& valores = documento();
  const TipoDeDocumento* tipo = tipoDeDocumento(valores.TipoDocumento);
  if (tipo == nullptr) return;
  const qint32 id = valores.IdDocumento;
  for (std::size_t i = 0; i < kVias; ++i) vias_[i].arquivo = caminhoDaVia(tipo->vias[i], id);
  const auto porVia = [this](const auto& acao) {
    for (const Via& via : vias_)
      if (!via.arquivo.isEmpty()) acao(via.arquivo);
  };
  porVia(files::removeIfThere);
  porVia([&](const QString& arquivo) { tipo->monta(id, arquivo); });
}
