#include "text/fields.h"

#include "text/trim.h"

namespace {

/// What a caller sees where a field is missing.
constexpr QChar kAusente = u'.';

/// Trims the text and closes its last field, in the caller's variable.
void fechaCampos(QString& texto, QChar delimitador) {
  texto = apara(texto);
  if (!texto.endsWith(delimitador)) texto += delimitador;
}

QString campoDe(const QString& texto, int n, QChar delimitador) {
  if (n < 1) return {};
  qsizetype inicio = 0;
  for (int campo = 1;; ++campo) {
    const qsizetype fim = texto.indexOf(delimitador, inicio);
    if (fim < 0) return kAusente;
    if (campo == n) return texto.sliced(inicio, fim - inicio);
    inicio = fim + 1;
  }
}

}  // namespace

QString PegaCampo(QString& texto, int n) {
  if (texto.isEmpty()) return {};
  fechaCampos(texto, u'^');
  return campoDe(texto, n, u'^');
}

QString PegaCampo(const QString& texto, int n) { return PegaCampoDelimitado(texto, n, u'^'); }

QString PegaCampoDelimitado(const QString& texto, int n, QChar delimitador) {
  if (texto.isEmpty()) return {};
  QString copia = texto;
  fechaCampos(copia, delimitador);
  return campoDe(copia, n, delimitador);
}
