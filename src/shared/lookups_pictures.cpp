#include "platform/files/paths.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

/// The first picture of a code that is there: the plain one, then its second and third form.
QString firstImage(const QString& codigo) {
  RunContext& run = contexto();
  for (const char16_t* form : {u"", u"W2", u"S3"}) {
    run.ImagemTentada = run.PathImagens + Apara(codigo) + QString::fromUtf16(form) + run.ExtImagens;
    if (files::exists(run.ImagemTentada)) return run.ImagemTentada;
  }
  return {};
}

}  // namespace

QString LocalizaImagemProduto(const QString& codigo) {
  const QString found = firstImage(codigo);
  return found.isEmpty() ? contexto().ArqSemImagem : found;
}

bool LocalizaImagemPrototipo(const QString& codigo) { return !firstImage(codigo).isEmpty(); }

QStringList PastasDeFiguras() {
  const RunContext& run = contexto();
  const qsizetype folder = run.ArqSemImagem.lastIndexOf(u'\\') + 1;
  return {run.PathImagens, run.PathImagens2, run.ArqSemImagem.first(folder), run.PathWeb, run.PathLink};
}
