#include "documents/html_text.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/html_bytes.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace html {

namespace {

const QString kParte = u".parte"_s;
/// No document takes that long: its program was killed.
constexpr qint64 kAbandonada = 60 * 60;  // s

void retiraAbandonadas(const QString& documento) {
  const QFileInfo info(documento);
  for (const QFileInfo& parte :
       info.dir().entryInfoList({info.fileName() + u".*"_s + kParte}, QDir::Files | QDir::NoSymLinks))
    if (parte.lastModified().secsTo(QDateTime::currentDateTime()) > kAbandonada)
      QFile::remove(parte.filePath());
}

}  // namespace

QString fixo(QStringView texto) { return values::withWindowsLineEnds(texto.toString()); }

QString estilo(int pontos, bool negrito) {
  return u"FONT-SIZE: %1pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:%2"_s.arg(
      QString::number(pontos), negrito ? u"bold"_s : u"normal"_s);
}

QString escapado(const QString& dado) {
  QString texto = dado;
  return texto.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

QString atributo(const QString& dado) {
  return escapado(dado).replace(u'\'', u"&#39;"_s).replace(u'"', u"&quot;"_s);
}

QString juntos(QStringList partes) {
  partes.removeAll(QString());
  return partes.join(u" - "_s);
}

namespace {

QStringList linhasEscapadas(const Quadro& quadro) {
  QStringList linhas;
  for (const QString& linha : quadro.linhas) linhas << escapado(linha);
  if (quadro.primeiraNegrita && !linhas.isEmpty()) linhas.first() = u"<b>"_s + linhas.first() + u"</b>"_s;
  return linhas;
}

}  // namespace

QString quadro(const Quadro& quadro) {
  const QString abreLinha = u"            <tr><td style='"_s + estilo(8, false) + u"' align='left'>"_s + kFim;
  QString texto =
      fixo(
          uR"(<!--%1-->
<P>
<table border='%2' align='center' width=670>
    <tr>
        <td style='%3' align='center'>
        %4
        <table border='0' align='center' width=660>
)")
          .arg(quadro.comentario, QString::number(quadro.borda), estilo(10, true), escapado(quadro.titulo));
  for (const QString& linha : linhasEscapadas(quadro))
    texto += abreLinha + u"            "_s + linha + u"</td></tr>"_s + kFim;
  if (quadro.linhaAberta) texto += abreLinha;
  return texto + fixo(u"        </table>\n        </td>\n    </tr>\n</table>\n");
}

QString quadroEstilos(const Quadro& quadro, const QString& classeTitulo, const QString& classeLinha) {
  QString texto = fixo(
                      uR"(<!--%1-->
<table border='0' bgcolor=#ffffff align='center' width=670 cellspacing=0 cellpadding=2>
<tr>
<td align='center'>
<span class='%2'>%3</span>
</td></tr>
</table>
<table border='0' align='center' width=670>
)")
                      .arg(quadro.comentario, classeTitulo, escapado(quadro.titulo));
  for (const QString& linha : linhasEscapadas(quadro))
    texto += u"<tr><td align='left'><span class='"_s + classeLinha + u"'>"_s + linha +
             u"</span></td></tr>"_s + kFim;
  return texto + u"</table>"_s + kFim;
}

QString ouBranco(const QString& dado) { return dado.isEmpty() ? u"&nbsp"_s : escapado(dado); }

void acrescenta(const QString& caminho, const QString& texto) {
  files::append(caminho, values::toHtmlBytes(texto + kFim, values::HtmlEncoding::Latin1));
}

Iniciado::Iniciado(const QString& caminho)
    : caminho_(caminho),
      parte_(files::resolve(caminho + u'.' + QUuid::createUuid().toString(QUuid::Id128) + kParte)) {
  retiraAbandonadas(files::resolve(caminho));
}

Iniciado::~Iniciado() { QFile::remove(parte_); }

void Iniciado::pronto() { files::replace(parte_, caminho_); }

}  // namespace html
