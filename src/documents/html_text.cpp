#include "documents/html_text.h"

#include <QFile>

#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace html {

QString fixo(QStringView texto) { return texto.toString().replace(u'\n', kFim); }

QString estilo(int pontos, bool negrito) {
  return u"FONT-SIZE: %1pt; FONT-FAMILY: TAHOMA; FONT-VARIANT: small-caps; font-weight:%2"_s.arg(
      QString::number(pontos), negrito ? u"bold"_s : u"normal"_s);
}

QString quadro(const Quadro& quadro) {
  const QString abreLinha = u"            <tr><td style='"_s + estilo(8, false) + u"' align='left'>"_s + kFim;
  QString texto = fixo(
                      uR"(<!--%1-->
<P>
<table border='%2' align='center' width=670>
    <tr>
        <td style='%3' align='center'>
        %4
        <table border='0' align='center' width=660>
)")
                      .arg(QString::fromUtf16(quadro.comentario), QString::number(quadro.borda),
                           estilo(10, true), quadro.titulo);
  for (const QString& linha : quadro.linhas)
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
                      .arg(QString::fromUtf16(quadro.comentario), classeTitulo, quadro.titulo);
  for (const QString& linha : quadro.linhas)
    texto += u"<tr><td align='left'><span class='"_s + classeLinha + u"'>"_s + linha +
             u"</span></td></tr>"_s + kFim;
  return texto + u"</table>"_s + kFim;
}

QString ouBranco(const QString& texto) { return texto.isEmpty() ? u"&nbsp"_s : texto; }

void acrescenta(const QString& caminho, const QString& texto) {
  files::append(caminho, files::toHtmlLatin1(texto + kFim));
}

Iniciado::Iniciado(const QString& caminho) : caminho_(caminho), pronto_(files::exists(caminho)) {}

Iniciado::~Iniciado() {
  if (!pronto_) QFile::remove(files::resolve(caminho_));
}

}  // namespace html
