#include "shared/pictures.h"

#include "platform/files/paths.h"
#include "run/context.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

/// The first picture of a code that is there: the plain one, then its second and third form.
QString primeiraImagem(const QString& codigo) {
  Contexto& c = contexto();
  for (const QString& forma : {QString(), u"W2"_s, u"S3"_s}) {
    c.imagemTentada = c.PathImagens + apara(codigo) + forma + c.ExtImagens;
    if (files::exists(c.imagemTentada)) return c.imagemTentada;
  }
  return {};
}

}  // namespace

QString LocalizaImagemProduto(const QString& codigo) {
  const QString achada = primeiraImagem(codigo);
  return achada.isEmpty() ? contexto().ArqSemImagem : achada;
}

bool LocalizaImagemPrototipo(const QString& codigo) { return !primeiraImagem(codigo).isEmpty(); }

QStringList pastasDeFiguras() {
  const Contexto& c = contexto();
  const qsizetype pasta = c.ArqSemImagem.lastIndexOf(u'\\') + 1;
  return {c.PathImagens, c.PathImagens2, c.ArqSemImagem.first(pasta), c.PathWeb, c.PathLink};
}
