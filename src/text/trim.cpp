#include "text/trim.h"

QString apara(const QString& texto) {
  const QString direita = aparaDireita(texto);
  qsizetype inicio = 0;
  while (inicio < direita.size() && direita[inicio] == u' ') ++inicio;
  return direita.sliced(inicio);
}

QString aparaDireita(const QString& texto) {
  qsizetype fim = texto.size();
  while (fim > 0 && texto[fim - 1] == u' ') --fim;
  return texto.first(fim);
}

QString corta(const QString& texto, qsizetype maximo) {
  const QString inicio = texto.left(maximo);
  return inicio.size() < texto.size() && !inicio.isEmpty() && inicio.back().isHighSurrogate()
             ? inicio.chopped(1)
             : inicio;
}
