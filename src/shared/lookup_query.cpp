#include "shared/lookup_query.h"

#include "platform/values/numbers.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

data::Recordset AbreConsulta(const QString& sql) { return contexto().Conexao.query(Maiusculas(sql)); }

namespace lookup {

namespace {

QString ask(const Query& query, const QString& key) {
  QString& sql = contexto().sqlFuncoes;
  sql = query.before.toString() + key + query.after.toString();
  const auto rs = AbreConsulta(sql);
  return rs.eof() ? QString() : rs.text(query.column);
}

}  // namespace

QString quoted(const QString& key) { return u'\'' + Apara(key) + u'\''; }

QString number(const QString& key) { return VirgulaParaPonto(values::toText(LeNumero(key))); }

QString byText(const Query& query, const QString& key) { return ask(query, quoted(key)); }

QString byNumber(const Query& query, const QString& key) { return ask(query, number(key)); }

QString only(const Query& query) { return ask(query, {}); }

QString asFields(const data::Recordset& rs, const QStringList& columns) {
  QString fields;
  if (rs.eof()) return fields;
  for (const QString& column : columns) fields += rs.text(column).replace(u'^', u' ') + u'^';
  return fields;
}

}  // namespace lookup
