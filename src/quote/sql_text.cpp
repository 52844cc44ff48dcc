#include "quote/sql_text.h"

#include <QRegularExpression>

#include "platform/values/numbers.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

const QString kVirgula = u", "_s;

QString entreAspas(const QString& valor) { return u"'"_s + valor + u"'"_s; }

}  // namespace

QString numeroSql(const QString& texto) {
  static const QRegularExpression numero(u"^[+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)$"_s);
  if (texto.isEmpty()) return u"null"_s;
  const QString comPonto = VirgulaParaPonto(texto);
  if (numero.match(comPonto).hasMatch()) return entreAspas(comPonto);
  return entreAspas(VirgulaParaPonto(values::toText(leNumero(texto))));
}

Insercao::Insercao(const QString& tabela)
    : colunas_(u"insert into "_s + tabela + u" ("_s), valores_(u"values ("_s) {}

Insercao& Insercao::inclui(QStringView coluna, const QString& sql) {
  colunas_ += separador_;
  colunas_ += coluna;
  valores_ += separador_ + sql;
  separador_ = kVirgula;
  return *this;
}

Insercao& Insercao::campo(QStringView coluna, const QString& valor) {
  return inclui(coluna, entreAspas(valor));
}

Insercao& Insercao::numero(QStringView coluna, const QString& texto) {
  return inclui(coluna, numeroSql(texto));
}

Insercao& Insercao::campoSe(bool condicao, QStringView coluna, const QString& valor) {
  return condicao ? campo(coluna, valor) : *this;
}

QString Insercao::texto() const { return colunas_ + u") "_s + valores_ + u")"_s; }

Alteracao::Alteracao(const QString& tabela) : texto_(u"UPDATE "_s + tabela + u" SET "_s) {}

Alteracao& Alteracao::campo(QStringView coluna, const QString& valor) {
  texto_ += separador_;
  texto_ += coluna;
  texto_ += u"="_s + entreAspas(valor);
  separador_ = kVirgula;
  return *this;
}

Alteracao& Alteracao::campoOuNull(bool condicao, QStringView coluna, const QString& valor) {
  if (condicao) return campo(coluna, valor);
  texto_ += separador_;
  texto_ += coluna;
  texto_ += u"=null"_s;
  separador_ = kVirgula;
  return *this;
}

QString Alteracao::texto(const QString& onde) const { return texto_ + u" "_s + onde; }
