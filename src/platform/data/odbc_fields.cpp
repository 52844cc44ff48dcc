#include "platform/data/odbc_fields.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>  // the system's ODBC headers use its types
#endif

#include <sql.h>
#include <sqlext.h>

#include <QSqlQuery>
#include <QSqlResult>
#include <array>
#include <optional>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

[[noreturn]] void fail(SQLHSTMT statement) {
  std::array<SQLWCHAR, 6> state{};
  std::array<SQLWCHAR, 512> text{};
  SQLINTEGER number = 0;
  SQLSMALLINT length = 0;
  SQLGetDiagRecW(SQL_HANDLE_STMT, statement, 1, state.data(), &number, text.data(),
                 static_cast<SQLSMALLINT>(text.size()), &length);
  const QString words = QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()));
  // States that begin with 08 are those of the connection.
  const bool lost = state[0] == u'0' && state[1] == u'8';
  throw values::RuntimeError(lost ? values::kConnectionFailed : values::kStatementFailed, words);
}

/// The text of a field, in as many pieces as it comes; nothing for null.
std::optional<QString> readText(SQLHSTMT statement, SQLUSMALLINT place) {
  std::array<SQLWCHAR, 4096> buffer;
  QString text = u""_s;
  while (true) {
    SQLLEN left = 0;
    const SQLRETURN outcome = SQLGetData(statement, place, SQL_C_WCHAR, buffer.data(), sizeof buffer, &left);
    if (outcome == SQL_NO_DATA) return text;
    if (!SQL_SUCCEEDED(outcome)) fail(statement);
    if (left == SQL_NULL_DATA) return std::nullopt;
    // A piece that fills the buffer has a final zero in it.
    const bool more = left == SQL_NO_TOTAL || left >= static_cast<SQLLEN>(sizeof buffer);
    const auto units = more ? static_cast<qsizetype>(buffer.size()) - 1
                            : static_cast<qsizetype>(left / static_cast<SQLLEN>(sizeof(SQLWCHAR)));
    text.append(reinterpret_cast<const QChar*>(buffer.data()), units);
    if (!more) return text;
  }
}

void readDate(SQLHSTMT statement, SQLUSMALLINT place, ResultValues& values) {
  SQL_TIMESTAMP_STRUCT stamp{};
  SQLLEN left = 0;
  if (!SQL_SUCCEEDED(SQLGetData(statement, place, SQL_C_TYPE_TIMESTAMP, &stamp, sizeof stamp, &left)))
    fail(statement);
  if (left == SQL_NULL_DATA) return values.addNull();
  values.addDate(QDate(stamp.year, stamp.month, stamp.day), QTime(stamp.hour, stamp.minute, stamp.second));
}

}  // namespace

void readOdbcField(const QSqlQuery& query, int column, QMetaType declared, ResultValues& values) {
  const auto statement = static_cast<SQLHSTMT>(query.result()->handle().value<void*>());
  const auto place = static_cast<SQLUSMALLINT>(column + 1);
  if (declared.id() == QMetaType::QDate || declared.id() == QMetaType::QDateTime)
    return readDate(statement, place, values);
  const std::optional<QString> text = readText(statement, place);
  if (!text) return values.addNull();
  switch (declared.id()) {
    case QMetaType::Double:
      return values.addNumber(text->toDouble());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
      return values.addInteger(text->toLongLong());
    default:
      return values.addText(*text);
  }
}

}  // namespace data
