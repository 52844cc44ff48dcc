#include "text/fields.h"

#include "text/trim.h"

namespace {

/// What a caller sees where a field is missing.
constexpr QChar kMissing = u'.';

/// Trims the text and closes its last field, in the caller's variable.
void closeFields(QString& texto, QChar delimitador) {
  texto = Apara(texto);
  if (!texto.endsWith(delimitador)) texto += delimitador;
}

QString fieldOf(const QString& texto, int n, QChar delimitador) {
  if (n < 1) return {};
  qsizetype start = 0;
  for (int field = 1;; ++field) {
    const qsizetype end = texto.indexOf(delimitador, start);
    if (end < 0) return kMissing;
    if (field == n) return texto.sliced(start, end - start);
    start = end + 1;
  }
}

}  // namespace

QString PegaCampo(QString& texto, int n) {
  if (texto.isEmpty()) return {};
  closeFields(texto, u'^');
  return fieldOf(texto, n, u'^');
}

QString PegaCampo(const QString& texto, int n) { return PegaCampoDelimitado(texto, n, u'^'); }

QString PegaCampoDelimitado(const QString& texto, int n, QChar delimitador) {
  if (texto.isEmpty()) return {};
  QString copy = texto;
  closeFields(copy, delimitador);
  return fieldOf(copy, n, delimitador);
}
