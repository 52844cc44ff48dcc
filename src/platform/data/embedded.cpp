#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/data/embedded_text.h"
#include "platform/data/engine.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr int kBusyTimeout = 30'000;  // milliseconds that a statement waits for another program's
/// What errors of the library mean to a user.
constexpr std::pair<int, QStringView> kFaults[] = {
    {SQLITE_BUSY, u"O arquivo de dados está em uso por outro programa: %1"},
    {SQLITE_LOCKED, u"O arquivo de dados está em uso por outro programa: %1"},
    {SQLITE_READONLY, u"O arquivo de dados só permite leitura: %1"},
    {SQLITE_FULL, u"O disco do arquivo de dados está cheio: %1"},
    {SQLITE_CANTOPEN, u"O arquivo de dados não pode ser lido: %1\nVerifique as permissões do arquivo."},
    {SQLITE_NOTADB, u"O arquivo não é um banco de dados: %1\nVerifique o nome do banco em server.ini."},
    // And a file that is shorter than it says it is.
    {SQLITE_CORRUPT, u"O arquivo de dados está danificado: %1\nRestaure uma cópia de segurança."},
};

/// The same for a fault; the library's own words where nothing better is known.
QString wordsOf(int fault, const char* own, const QString& path) {
  for (const auto& [known, words] : kFaults)
    if (known == fault) return words.toString().arg(path);
  return QString::fromUtf8(own);
}

using Database = std::unique_ptr<sqlite3, decltype([](auto* database) { sqlite3_close_v2(database); })>;

/// Opens the file with the rules for texts, the write-ahead log, full synchronisation and the busy time-out.
Database openLibrary(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile())
    throw values::RuntimeError(
        values::kConnectionFailed,
        u"O arquivo de dados não foi encontrado: %1\nVerifique o nome do banco em server.ini."_s.arg(path));
  // Which the library would take for a new one.
  if (file.size() == 0)
    throw values::RuntimeError(values::kConnectionFailed, wordsOf(SQLITE_NOTADB, "", path));
  // The library's count of its memory takes a lock for every piece; nobody asks for it.
  [[maybe_unused]] static const int quiet = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  sqlite3* opened = nullptr;
  const int outcome = sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  Database database(opened);
  const auto check = [&](int result) {
    if (result != SQLITE_OK)
      throw values::RuntimeError(values::kConnectionFailed,
                                 wordsOf(sqlite3_errcode(opened), sqlite3_errmsg(opened), path));
  };
  const auto execute = [&](const char* sql) { check(sqlite3_exec(opened, sql, nullptr, nullptr, nullptr)); };
  check(outcome);
  sqlite3_busy_timeout(opened, kBusyTimeout);
  registerTextRules(opened);
  if (sqlite3_db_readonly(opened, "main") == 0) execute("PRAGMA journal_mode=WAL");
  execute("PRAGMA synchronous=FULL; PRAGMA temp_store=MEMORY; SELECT count(*) FROM sqlite_master");
  return database;
}

using Prepared =
    std::unique_ptr<sqlite3_stmt, decltype([](auto* statement) { sqlite3_finalize(statement); })>;

bool declares(sqlite3_stmt* statement, int column, std::string_view type) {
  const char* declared = sqlite3_column_decltype(statement, column);
  return declared && sqlite3_strnicmp(declared, type.data(), static_cast<int>(type.size())) == 0;
}

std::shared_ptr<Columns> columnsOf(sqlite3_stmt* statement, bool withLengths) {
  auto columns = std::make_shared<Columns>();
  for (int column = 0; column < sqlite3_column_count(statement); ++column) {
    columns->names << QString::fromUtf8(sqlite3_column_name(statement, column));
    if (withLengths)
      columns->longest << (declares(statement, column, "varchar(")
                               ? std::atoi(sqlite3_column_decltype(statement, column) + 8)
                               : 0);
  }
  return columns;
}

void read(sqlite3_value* value, bool isDate, ResultValues& values) {
  const int type = sqlite3_value_type(value);
  if (type == SQLITE_NULL) return values.addNull();
  if (type == SQLITE_INTEGER) return values.addInteger(sqlite3_value_int64(value));
  if (type == SQLITE_FLOAT) return values.addNumber(sqlite3_value_double(value));
  // The bytes as they are stored, which is UTF-8: asked for as a text they would be copied to end in a NUL.
  const void* bytes = sqlite3_value_blob(value);
  const std::string_view text(static_cast<const char*>(bytes),
                              static_cast<std::size_t>(sqlite3_value_bytes(value)));
  if (const auto date = isDate ? storedDate(text) : std::nullopt)
    return values.addDate(date->date, date->time);
  values.addText(text);
}

class EmbeddedEngine final : public Engine {
 public:
  explicit EmbeddedEngine(const QString& path) : path_(path), database_(openLibrary(path)) {}

  void run(std::span<const ReadStatement> statements, std::vector<Recordset>& results) override {
    for (const ReadStatement& one : statements)
      results.push_back(runText(toEmbeddedDialect(one), one.given.rows));
  }
  void begin() override { runText(u"BEGIN IMMEDIATE"_s, Rows::All); }
  void commit() override { runText(u"COMMIT"_s, Rows::All); }

 private:
  Recordset runText(const QString& sql, Rows rows) const {
    const Prepared prepared = prepare(sql.toUtf8());
    sqlite3_stmt* statement = prepared.get();
    if (statement == nullptr) return {};
    int outcome = sqlite3_step(statement);  // which reads a changed table's columns anew
    const int width = sqlite3_column_count(statement);
    QList<bool> dates;
    for (int column = 0; column < width; ++column) dates << declares(statement, column, "datetime");
    const auto columns = columnsOf(statement, outcome == SQLITE_DONE);
    ResultValues values;
    // A column's value may be read itself, for the library was opened without locks of its own.
    for (; outcome == SQLITE_ROW; outcome = rows == Rows::All ? sqlite3_step(statement) : SQLITE_DONE)
      for (int column = 0; column < width; ++column)
        read(sqlite3_column_value(statement, column), dates[column], values);
    if (outcome != SQLITE_DONE) fail();
    if (width == 0) return {};
    return {columns, std::move(values)};
  }

  [[nodiscard]] Prepared prepare(const QByteArray& sql) const {
    sqlite3_stmt* statement = nullptr;
    const int outcome = sqlite3_prepare_v2(database_.get(), sql.constData(), static_cast<int>(sql.size()),
                                           &statement, nullptr);
    Prepared prepared(statement);
    if (outcome != SQLITE_OK) fail();
    if (sqlite3_bind_parameter_count(statement) > 0)
      throw values::RuntimeError(values::kStatementFailed, u"A instrução tem uma variável sem valor."_s);
    return prepared;
  }

  [[noreturn]] void fail() const {
    throw values::RuntimeError(values::kStatementFailed, wordsOf(sqlite3_errcode(database_.get()),
                                                                 sqlite3_errmsg(database_.get()), path_));
  }

  QString path_;
  Database database_;
};

}  // namespace

std::unique_ptr<Engine> openEmbedded(const QString& path) { return std::make_unique<EmbeddedEngine>(path); }

void createEmbedded(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
    values::raise(values::kPathFileAccess, path);
  file.close();
  sqlite3* opened = nullptr;
  const int outcome = sqlite3_open_v2(path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
  const Database database(opened);
  if (outcome != SQLITE_OK ||
      sqlite3_exec(opened, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr) != SQLITE_OK)
    values::raise(values::kPathFileAccess, path);
}

}  // namespace data
