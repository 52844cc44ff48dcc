#include "shared/comma_numbers.h"

#include "platform/values/numbers.h"

using namespace Qt::StringLiterals;

bool ehNumeroComVirgula(const QString& texto) {
  return values::isNumeric(texto) && !texto.contains(u'.') && !texto.contains(u'E', Qt::CaseInsensitive);
}

QString recusaDoNumero(const QString& recusa, const QString& texto) {
  return texto.contains(u'.') ? recusa + u"\rUsar vírgula no lugar de ponto!"_s : recusa;
}
