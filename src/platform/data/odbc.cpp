#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <algorithm>
#include <atomic>
#include <utility>

#include "platform/data/engine.h"
#include "platform/data/odbc_fields.h"
#include "platform/data/odbc_string.h"
#include "platform/data/server_trust.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

QString words(const QSqlError& error) {
  const QString text = error.databaseText().trimmed();
  return text.isEmpty() ? error.text() : text;
}

/// Whether an error of a statement means that the server is gone.
bool isConnectionLost(const QSqlError& error) {
  // Numbers of the client library: its own server messages have other ones.
  static const QStringList kNumbers{u"20003"_s, u"20004"_s, u"20006"_s, u"20009"_s,
                                    u"20017"_s, u"20020"_s, u"20047"_s};
  static const QStringList kTexts{u"Communication link failure"_s,  u"Unexpected EOF"_s,
                                  u"Connection is dead"_s,          u"Timeout expired"_s,
                                  u"Read from the server failed"_s, u"Write to the server failed"_s,
                                  u"Connection not open"_s};
  for (const QString& number : error.nativeErrorCode().split(u';'))
    if (kNumbers.contains(number.trimmed())) return true;
  for (const QString& text : kTexts)
    if (error.text().contains(text, Qt::CaseInsensitive)) return true;
  // What is left of the driver's words after a result that was cut.
  return error.nativeErrorCode() == u"0" && error.text().contains(u"Unknown error"_s);
}

/// What the driver says of texts; without a limit it says nothing, or a number that no column has.
QList<int> columnLengths(const QSqlRecord& record) {
  constexpr int kLongestOfAny = 8000;
  QList<int> lengths;
  for (int column = 0; column < record.count(); ++column) {
    const QSqlField field = record.field(column);
    const bool limited = field.metaType().id() == QMetaType::QString && field.length() <= kLongestOfAny;
    lengths.append(limited ? qMax(0, field.length()) : 0);
  }
  return lengths;
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
  OdbcEngine(const QString& connectionString, int timeout);
  ~OdbcEngine() override;

  void run(std::span<const ReadStatement> statements, std::vector<Recordset>& results) override;
  [[nodiscard]] bool sendsTogether() const override { return isServer_; }
  void begin() override;
  void commit() override;
  void close() override;

 private:
  QSqlQuery send(const QString& text);
  void runTogether(std::span<const ReadStatement> statements, std::vector<Recordset>& results);
  Recordset readRows(QSqlQuery& query, Rows rows);
  void walkResults(QSqlQuery& query, std::span<const ReadStatement> statements,
                   std::vector<Recordset>& results);
  /// Goes to the next result of a request; false after the last one.
  bool moveOn(QSqlQuery& query);
  /// Rows that nobody asked for stand in the place of another statement's: a trigger's own SELECT, say.
  [[noreturn]] void refuseUnasked(QSqlQuery& query);
  [[noreturn]] void fail(const QSqlError& error);

  bool isServer_;
  bool inTransaction_ = false;
  bool limitLeft_ = false;  // a request that failed may have left its limit on the rows
  QString name_;
  QSqlDatabase database_;
};

OdbcEngine::OdbcEngine(const QString& connectionString, int timeout)
    : isServer_(isServerString(connectionString)) {
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

OdbcEngine::~OdbcEngine() {
  if (inTransaction_) database_.rollback();  // some drivers keep the connection and its locks otherwise
  database_.close();
  database_ = {};
  QSqlDatabase::removeDatabase(name_);
}

void OdbcEngine::fail(const QSqlError& error) {
  const bool lost = isConnectionLost(error);
  if (lost) inTransaction_ = false;
  throw values::RuntimeError(lost ? values::kConnectionFailed : values::kStatementFailed, words(error));
}

QSqlQuery OdbcEngine::send(const QString& text) {
  QSqlQuery query(database_);
  query.setForwardOnly(true);  // a server cursor is refused by some servers
  query.setNumericalPrecisionPolicy(QSql::HighPrecision);
  if (!query.exec(text)) fail(query.lastError());
  return query;
}

Recordset OdbcEngine::readRows(QSqlQuery& query, Rows rows) {
  if (!query.isSelect()) return {};
  const QSqlRecord record = query.record();
  const int width = record.count();
  QStringList columns;
  std::vector<QMetaType> types;
  for (int column = 0; column < width; ++column) {
    columns.append(record.fieldName(column));
    types.push_back(record.field(column).metaType());
  }
  ResultValues values;
  while (query.next()) {
    // The server sends no more than what is wanted; of another one the rest is left unread.
    if (rows == Rows::First && values.size() > 0) break;
    for (int column = 0; column < width; ++column)
      readOdbcField(query, column, types[static_cast<std::size_t>(column)], values);
  }
  // A connection that was cut ends the rows like the last one does.
  if (query.lastError().isValid()) fail(query.lastError());
  const auto shared = std::make_shared<Columns>(Columns{std::move(columns), {}});
  if (values.size() == 0) shared->longest = columnLengths(record);
  return {shared, std::move(values)};
}

void OdbcEngine::run(std::span<const ReadStatement> statements, std::vector<Recordset>& results) {
  if (isServer_) return runTogether(statements, results);
  for (const ReadStatement& one : statements) {
    QSqlQuery query = send(one.given.sql);
    results.push_back(readRows(query, one.given.rows));
  }
}

void OdbcEngine::runTogether(std::span<const ReadStatement> statements, std::vector<Recordset>& results) {
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

bool OdbcEngine::moveOn(QSqlQuery& query) {
  if (query.nextResult()) return true;
  if (query.lastError().isValid()) fail(query.lastError());
  return false;
}

void OdbcEngine::refuseUnasked(QSqlQuery& query) {
  while (moveOn(query)) {
    // A connection that was cut looks like one more result at first.
  }
  throw values::RuntimeError(values::kStatementFailed, u"O servidor deu um resultado que ninguém pediu."_s);
}

void OdbcEngine::walkResults(QSqlQuery& query, std::span<const ReadStatement> statements,
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

void OdbcEngine::begin() {
  if (!database_.transaction()) fail(database_.lastError());
  inTransaction_ = true;
}

void OdbcEngine::commit() {
  if (!database_.commit()) fail(database_.lastError());
  inTransaction_ = false;
}

void OdbcEngine::close() {
  if (!std::exchange(inTransaction_, false)) return;
  if (!database_.rollback()) fail(database_.lastError());
}

}  // namespace

std::unique_ptr<Engine> openOdbc(const QString& connectionString, int timeout) {
  return std::make_unique<OdbcEngine>(connectionString, timeout);
}

}  // namespace data
