#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <atomic>
#include <utility>

#include "platform/data/engine.h"
#include "platform/data/odbc_fields.h"
#include "platform/data/odbc_string.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

QString words(const QSqlError& error) {
  const QString text = error.databaseText().trimmed();
  return text.isEmpty() ? error.text() : text;
}

/// Whether an error of a statement tells that the server is gone.
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
  return false;
}

class OdbcEngine final : public Engine {
 public:
  OdbcEngine(const QString& connectionString, int timeout);
  ~OdbcEngine() override;

  void execute(const QString& sql) override { run(sql); }
  Recordset query(const QString& sql) override;
  void begin() override;
  void commit() override;
  void close() override;

 private:
  QSqlQuery run(const QString& sql);
  [[noreturn]] void fail(const QSqlError& error);

  bool inTransaction_ = false;
  QString name_;
  QSqlDatabase database_;
};

OdbcEngine::OdbcEngine(const QString& connectionString, int timeout) {
  static std::atomic<int> made = 0;
  name_ = u"zarim-%1"_s.arg(++made);
  database_ = QSqlDatabase::addDatabase(u"QODBC"_s, name_);
  database_.setNumericalPrecisionPolicy(QSql::HighPrecision);
  database_.setConnectOptions(
      u"SQL_ATTR_LOGIN_TIMEOUT=%1"_s.arg(timeout));  // a blank would make Qt ignore it
  database_.setDatabaseName(odbcString(connectionString, qEnvironmentVariable("TDSPORT"), timeout));
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

QSqlQuery OdbcEngine::run(const QString& sql) {
  QSqlQuery query(database_);
  query.setForwardOnly(true);  // a server cursor is refused by some servers
  query.setNumericalPrecisionPolicy(QSql::HighPrecision);
  if (!query.exec(sql)) fail(query.lastError());
  return query;
}

Recordset OdbcEngine::query(const QString& sql) {
  QSqlQuery query = run(sql);
  if (!query.isSelect()) return {};
  const QSqlRecord record = query.record();
  const int width = record.count();
  QStringList columns;
  std::vector<QMetaType> types;
  for (int column = 0; column < width; ++column) {
    columns.append(record.fieldName(column));
    types.push_back(record.field(column).metaType());
  }
  std::vector<std::vector<QVariant>> rows;
  while (query.next()) {
    std::vector<QVariant>& row = rows.emplace_back();
    for (int column = 0; column < width; ++column)
      row.push_back(readOdbcField(query, column, types[static_cast<std::size_t>(column)]));
  }
  if (query.lastError().isValid()) fail(query.lastError());
  return {std::move(columns), rows};
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
