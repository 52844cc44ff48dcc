#include "shared/lookup_query.h"

#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace lookup {

namespace {

data::Asked<QString> firstValue(data::Asked<data::Recordset> asked, QStringView column) {
  const data::Recordset rs = co_await asked;
  co_return rs.eof() ? QString() : rs.text(column);
}

data::Asked<QString> ask(const Query& query, const QString& key) {
  return firstValue(PedeConsulta(query.before.toString() + key + query.after.toString(), data::Rows::First),
                    query.column);
}

}  // namespace

QString quoted(const QString& key) { return u'\'' + Apara(key) + u'\''; }

QString number(const QString& key) { return VirgulaParaPonto(values::toText(LeNumero(key))); }

data::Asked<QString> byText(const Query& query, const QString& key) { return ask(query, quoted(key)); }

data::Asked<QString> byNumber(const Query& query, const QString& key) { return ask(query, number(key)); }

data::Asked<QString> only(const Query& query) { return ask(query, {}); }

QString asFields(const data::Recordset& rs, const QStringList& columns) {
  QString fields;
  if (rs.eof()) return fields;
  for (const QString& column : columns) fields += rs.text(column).replace(u'^', u' ') + u'^';
  return fields;
}

}  // namespace lookup
