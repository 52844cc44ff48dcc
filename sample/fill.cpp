#include "sample/fill.h"

#include <QRegularExpression>
#include <stdexcept>

#include "platform/values/dates.h"
#include "sample/rows.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

/// "-30" or "+2 14:30": days from the day of the installation, with or without a time.
QString date(const QString& text, QDate day) {
  static const QRegularExpression form(u"^([+-]\\d+)(?: (\\d\\d:\\d\\d))?$"_s);
  const auto match = form.match(text);
  if (!match.hasMatch()) throw std::logic_error("no relative date: " + text.toStdString());
  const QString on = day.addDays(match.captured(1).toInt()).toString(u"yyyyMMdd");
  return match.hasCaptured(2) ? on + u' ' + match.captured(2) : on;
}

QString literal(const schema::Column& column, const QString& text, QDate day) {
  QString value = column.type == schema::Type::DateTime ? date(text, day) : text;
  value.replace(u"\\n"_s, u"\r\n"_s).replace(u'\'', u"''"_s);
  return u'\'' + value + u'\'';
}

std::vector<const schema::Column*> columnsOf(const Rows& rows) {
  const schema::Table* table = schema::find(rows.name);
  if (!table) throw std::logic_error("no table " + rows.name.toStdString());
  std::vector<const schema::Column*> found;
  for (const QString& name : rows.columns) {
    const auto at = std::ranges::find_if(table->columns, [&](const schema::Column& column) {
      return name.compare(column.name, Qt::CaseInsensitive) == 0;
    });
    if (at == table->columns.end())
      throw std::logic_error("no column " + name.toStdString() + " in " + table->name.toStdString());
    found.push_back(&*at);
  }
  return found;
}

/// An empty field leaves its column out, so that it is null.
void insert(data::Connection& connection, const Rows& rows, QDate day) {
  const auto columns = columnsOf(rows);
  for (const QStringList& row : rows.rows) {
    QStringList names;
    QStringList values;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const QString& text = row.at(static_cast<qsizetype>(i));
      if (text.isEmpty()) continue;
      names += columns[i]->name;
      values += literal(*columns[i], text, day);
    }
    connection.execute(
        u"insert into %1 (%2) values (%3)"_s.arg(rows.name, names.join(u", "), values.join(u", ")));
  }
}

}  // namespace

void fill(data::Connection& connection, schema::Dialect dialect, QDate day) {
  connection.begin();
  for (const QString& statement : schema::createStatements(dialect)) connection.execute(statement);
  for (const Rows& rows : tables()) insert(connection, rows, day);
  connection.commit();
}

}  // namespace sample
