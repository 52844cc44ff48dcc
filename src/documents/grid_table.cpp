#include "documents/grid_table.h"

#include <QStringBuilder>

#include "documents/html_text.h"

using namespace Qt::StringLiterals;
using html::kFim;

namespace grade {

QString abre() {
  return u"<table border='1' width='800' cellpadding='5' cellspacing='0' bgcolor='#FFFFFF' "
         "bordercolor='#000000' summary='' align='center'>"_s +
         kFim;
}

QString abreDetalhes() { return u"<!-- Detalhes -->"_s + kFim + abre(); }

QString fecha() { return u"</table>"_s + kFim; }

QString linha(const std::vector<Celula>& celulas) {
  QString texto = u"<tr>"_s + kFim;
  for (const Celula& celula : celulas) {
    const QString atributos = celula.atributos.isEmpty() ? QString() : celula.atributos + u' ';
    texto += u"    <td "_s % atributos % u"width="_s % celula.largura % u" align='"_s % celula.alinhamento %
             u"' >"_s % celula.html % u"</td>"_s % kFim;
  }
  return texto + u"</tr>"_s + kFim;
}

namespace {

QString letra(const QString& html) { return u"<font face='Verdana' size='1'>"_s + html + u"</font>"_s; }

}  // namespace

Celula rotulada(const QString& largura, const QString& rotulo, const QString& valor,
                const QString& alinhamento) {
  return {largura,
          u"<b><font face='Verdana' size='1'>"_s + html::escapado(rotulo) + u"</b>"_s +
              html::escapado(valor) + u"</font>"_s,
          alinhamento};
}

Celula dado(const QString& largura, const QString& texto, const QString& alinhamento) {
  return {largura, letra(html::escapado(texto)), alinhamento};
}

QString titulos(std::span<const Coluna> colunas) {
  std::vector<Celula> celulas;
  for (const Coluna& coluna : colunas) {
    celulas.push_back(rotulada(coluna.largura, coluna.titulo, {}, coluna.lado));
    celulas.back().atributos = u"bgcolor='#A8A8A8'"_s;
  }
  return linha(celulas);
}

QString item(std::span<const Coluna> colunas, const ItemImpresso& item, const QString& atributos) {
  std::vector<Celula> celulas;
  for (const Coluna& coluna : colunas) {
    const QString texto = coluna.valor(item);
    celulas.push_back(dado(coluna.largura, texto, coluna.lado));
    if (coluna.branco && texto.isEmpty()) celulas.back().html = letra(html::ouBranco(texto));
    celulas.back().atributos = atributos;
  }
  return linha(celulas);
}

}  // namespace grade
