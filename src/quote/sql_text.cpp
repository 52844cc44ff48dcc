#include "quote/sql_text.h"

using namespace Qt::StringLiterals;

namespace {

const QString kVirgula = u", "_s;

QString entreAspas(const QString& valor) { return u"'"_s + valor + u"'"_s; }

}  // namespace

Insercao::Insercao(const QString& tabela)
    : colunas_(u"insert into "_s + tabela + u" ("_s), valores_(u"values ("_s) {}

Insercao& Insercao::campo(QStringView coluna, const QString& valor) {
  colunas_ += separador_;
  colunas_ += coluna;
  valores_ += separador_ + entreAspas(valor);
  separador_ = kVirgula;
  return *this;
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
