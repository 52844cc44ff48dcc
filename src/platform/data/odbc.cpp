#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>  // the system's ODBC headers use its types
#endif

#include <sql.h>
#include <sqlext.h>

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlResult>
#include <QStringList>
#include <algorithm>
#include <array>
#include <atomic>
#include <optional>
#include <utility>

#include "platform/data/engine.h"
#include "platform/data/odbc_string.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// How long the login may take, in seconds: what the string says of a statement ("Timeout=6"), else timeout.
int loginTimeout(const QString& connectionString, int timeout) {
  const int own = keyValue(connectionString, u"Timeout").value_or(QString()).toInt();
  return own > 0 ? own : timeout;
}

QString words(const QSqlError& error) {
  const QString text = error.databaseText().trimmed();
  return text.isEmpty() ? error.text() : text;
}

/// Whether an error of a statement means that the server is gone.
bool isConnectionLost(const QSqlError& error) {
  // Numbers of the client library: its own server messages have other ones.
  static const QRegularExpression kNumbers(u"\\b200(03|04|06|09|17|20|47)\\b"_s);
  static const QRegularExpression kTexts(
      u"Communication link failure|Unexpected EOF|Connection is dead|Timeout expired|"
      "Read from the server failed|Write to the server failed|Connection not open"_s,
      QRegularExpression::CaseInsensitiveOption);
  // The last is what is left of the driver's words after a result that was cut.
  return error.nativeErrorCode().contains(kNumbers) || error.text().contains(kTexts) ||
         (error.nativeErrorCode() == u"0" && error.text().contains(u"Unknown error"_s));
}

/// What the driver says of texts; without a limit it says nothing, or a number that no column has.
int longestText(const QSqlField& field) {
  constexpr int kLongestOfAny = 8000;
  const bool limited = field.metaType().id() == QMetaType::QString && field.length() <= kLongestOfAny;
  return limited ? qMax(0, field.length()) : 0;
}

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

/// Adds a field of the row on which a query stands to the values of its result, read from the driver itself:
/// Qt's own reading drops a text that takes more bytes than its column has characters. Columns are to be read
/// in their order, each once. declared is the type that Qt reports for the column.
void readField(const QSqlQuery& query, int column, QMetaType declared, ResultValues& values) {
  const auto statement = static_cast<SQLHSTMT>(query.result()->handle().value<void*>());
  const auto place = static_cast<SQLUSMALLINT>(column + 1);
  if (declared.id() == QMetaType::QDate || declared.id() == QMetaType::QDateTime)
    return readDate(statement, place, values);
  const std::optional<QString> text = readText(statement, place);
  if (!text) return values.addNull();
  const int type = declared.id();
  if (type == QMetaType::Double) return values.addNumber(text->toDouble());
  // All whole ones stand between these.
  if (type >= QMetaType::Bool && type <= QMetaType::ULongLong) return values.addInteger(text->toLongLong());
  values.addText(*text);
}

/// How many statements from the first on can go in one request: a statement that could swallow or spoil those
/// around it, by a quote without its pair, goes alone, so that it fails as it would by itself.
std::size_t togetherInOneRequest(std::span<const ReadStatement> statements) {
  const auto alone = std::ranges::find_if_not(statements, &ReadStatement::mayTravel);
  return std::max<std::size_t>(static_cast<std::size_t>(alone - statements.begin()), 1);
}

/// The text of the request, one statement a line. Statements of which only the first row is wanted stand
/// between limits; whole results, and statements that go alone, stand outside them. liftsLimit: a limit may
/// have been left by a request that failed, and goes first.
QString requestText(std::span<const ReadStatement> statements, bool liftsLimit) {
  static const QString kLimit = u"SET ROWCOUNT 1"_s;
  static const QString kNoLimit = u"SET ROWCOUNT 0"_s;
  QStringList lines;
  if (liftsLimit) lines << kNoLimit;
  // A server can be set up to leave the counts out, by which the results are distinguished.
  if (statements.size() > 1 && !std::ranges::all_of(statements, &ReadStatement::isSelect))
    lines << u"SET NOCOUNT OFF"_s;
  bool limited = false;
  for (const ReadStatement& statement : statements) {
    const bool first = statement.given.rows == Rows::First && statement.mayTravel();
    if (first != limited) {
      limited = first;
      lines << (limited ? kLimit : kNoLimit);
    }
    lines << statement.given.sql;
  }
  if (limited) lines << kNoLimit;
  return lines.join(u'\n');
}

class OdbcEngine final : public Engine {
 public:
  OdbcEngine(const QString& connectionString, int timeout) : isServer_(isServerString(connectionString)) {
    static std::atomic<int> made = 0;
    name_ = u"zarim-%1"_s.arg(++made);
    database_ = QSqlDatabase::addDatabase(u"QODBC"_s, name_);
    database_.setNumericalPrecisionPolicy(QSql::HighPrecision);
    database_.setConnectOptions(u"SQL_ATTR_LOGIN_TIMEOUT=%1"_s.arg(
        loginTimeout(connectionString, timeout)));  // a blank would make Qt ignore it
    const ServerTrust trust(connectionString);
    database_.setDatabaseName(odbcString(trust.connectionString(), qEnvironmentVariable("TDSPORT"), timeout));
    if (database_.open()) return;
    const QString text = words(database_.lastError());
    database_ = {};
    QSqlDatabase::removeDatabase(name_);
    throw values::RuntimeError(values::kConnectionFailed, text);
  }

  ~OdbcEngine() override {
    if (inTransaction_) database_.rollback();  // some drivers keep the connection and its locks otherwise
    database_.close();
    database_ = {};
    QSqlDatabase::removeDatabase(name_);
  }

  void run(std::span<const ReadStatement> statements, std::vector<Recordset>& results) override {
    if (isServer_) return runTogether(statements, results);
    for (const ReadStatement& one : statements) {
      QSqlQuery query = send(one.given.sql);
      results.push_back(readRows(query, one.given.rows));
    }
  }

  [[nodiscard]] bool sendsTogether() const override { return isServer_; }

  void begin() override {
    if (!database_.transaction()) fail(database_.lastError());
    inTransaction_ = true;
  }

  void commit() override {
    if (!database_.commit()) fail(database_.lastError());
    inTransaction_ = false;
  }

  void close() override {
    if (!std::exchange(inTransaction_, false)) return;
    if (!database_.rollback()) fail(database_.lastError());
  }

 private:
  [[noreturn]] void fail(const QSqlError& error) {
    const bool lost = isConnectionLost(error);
    if (lost) inTransaction_ = false;
    throw values::RuntimeError(lost ? values::kConnectionFailed : values::kStatementFailed, words(error));
  }

  QSqlQuery send(const QString& text) {
    QSqlQuery query(database_);
    query.setForwardOnly(true);  // a server cursor is refused by some servers
    query.setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!query.exec(text)) fail(query.lastError());
    return query;
  }

  Recordset readRows(QSqlQuery& query, Rows rows) {
    if (!query.isSelect()) return {};
    const QSqlRecord record = query.record();
    const int width = record.count();
    const auto columns = std::make_shared<Columns>();
    std::vector<QMetaType> types;
    for (int column = 0; column < width; ++column) {
      columns->names << record.fieldName(column);
      types.push_back(record.field(column).metaType());
    }
    ResultValues values;
    while (query.next()) {
      // The server sends no more than what is wanted; of another one the rest is left unread.
      if (rows == Rows::First && values.size() > 0) break;
      for (int column = 0; column < width; ++column)
        readField(query, column, types[static_cast<std::size_t>(column)], values);
    }
    // A connection that was cut ends the rows like the last one does.
    if (query.lastError().isValid()) fail(query.lastError());
    for (int column = 0; column < width && values.size() == 0; ++column)
      columns->longest << longestText(record.field(column));
    return {columns, std::move(values)};
  }

  void runTogether(std::span<const ReadStatement> statements, std::vector<Recordset>& results) {
    while (!statements.empty()) {
      const auto request = statements.first(togetherInOneRequest(statements));
      const QString text = requestText(request, limitLeft_);
      const auto limited = [](const ReadStatement& one) { return one.given.rows == Rows::First; };
      limitLeft_ = limitLeft_ || std::ranges::any_of(request, limited);
      QSqlQuery query = send(text);
      walkResults(query, request, results);
      limitLeft_ = false;
      statements = statements.subspan(request.size());
    }
  }

  /// Goes to the next result of a request; false after the last one.
  bool moveOn(QSqlQuery& query) {
    if (query.nextResult()) return true;
    if (query.lastError().isValid()) fail(query.lastError());
    return false;
  }

  /// Rows that nobody asked for stand in the place of another statement's: a trigger's own SELECT, say.
  [[noreturn]] void refuseUnasked(QSqlQuery& query) {
    while (moveOn(query)) {
      // A connection that was cut looks like one more result at first.
    }
    throw values::RuntimeError(values::kStatementFailed, u"O servidor deu um resultado que ninguém pediu."_s);
  }

  void walkResults(QSqlQuery& query, std::span<const ReadStatement> statements,
                   std::vector<Recordset>& results) {
    bool more = true;
    for (const ReadStatement& statement : statements) {
      // Limits, and triggers on a table, leave counts of their own in between.
      while (more && statement.isSelect() && !query.isSelect()) more = moveOn(query);
      if (!more)
        throw values::RuntimeError(values::kConnectionFailed,
                                   u"O servidor não respondeu a todas as instruções."_s);
      if (query.isSelect() && statement.isWrite()) refuseUnasked(query);
      results.push_back(readRows(query, statement.given.rows));
      more = moveOn(query);
    }
    for (; more; more = moveOn(query))
      if (query.isSelect()) refuseUnasked(query);
  }

  bool isServer_;
  bool inTransaction_ = false;
  bool limitLeft_ = false;  // a request that failed may have left its limit on the rows
  QString name_;
  QSqlDatabase database_;
};

}  // namespace

std::unique_ptr<Engine> openOdbc(const QString& connectionString, int timeout) {
  return std::make_unique<OdbcEngine>(connectionString, timeout);
}

}  // namespace data
