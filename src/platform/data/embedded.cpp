#include <QFile>
#include <cstdlib>
#include <string_view>

#include "platform/data/embedded_library.h"
#include "platform/data/embedded_text.h"
#include "platform/data/engine.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// How the values of a column come out.
enum class Reading { Plain, Date };

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

void read(sqlite3_value* value, Reading reading, ResultValues& values) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return values.addNull();
    case SQLITE_INTEGER:
      return values.addInteger(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
      return values.addNumber(sqlite3_value_double(value));
    default:
      break;
  }
  // The bytes as they are stored, which is UTF-8: asked for as a text they would be copied to end in a NUL.
  const void* bytes = sqlite3_value_blob(value);
  const std::string_view text(static_cast<const char*>(bytes),
                              static_cast<std::size_t>(sqlite3_value_bytes(value)));
  if (const auto date = reading == Reading::Date ? storedDate(text) : std::nullopt)
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
  Recordset runText(const QString& sql, Rows rows) const;
  [[nodiscard]] Prepared prepare(const QByteArray& sql) const;
  [[noreturn]] void fail() const {
    throw values::RuntimeError(values::kStatementFailed, libraryWords(database_.get(), path_));
  }

  QString path_;
  Database database_;
};

Prepared EmbeddedEngine::prepare(const QByteArray& sql) const {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql.constData(), static_cast<int>(sql.size()), &statement,
                         nullptr) != SQLITE_OK)
    fail();
  if (sqlite3_bind_parameter_count(statement) > 0) {
    sqlite3_finalize(statement);
    throw values::RuntimeError(values::kStatementFailed, u"A instrução tem uma variável sem valor."_s);
  }
  return Prepared(statement);
}

Recordset EmbeddedEngine::runText(const QString& sql, Rows rows) const {
  const Prepared prepared = prepare(sql.toUtf8());
  sqlite3_stmt* statement = prepared.get();
  if (statement == nullptr) return {};
  int outcome = sqlite3_step(statement);  // which reads a changed table's columns anew
  const int width = sqlite3_column_count(statement);
  std::vector<Reading> readings;
  readings.reserve(static_cast<std::size_t>(width));
  for (int column = 0; column < width; ++column)
    readings.push_back(declares(statement, column, "datetime") ? Reading::Date : Reading::Plain);
  const auto columns = columnsOf(statement, outcome == SQLITE_DONE);
  ResultValues values;
  // A column's value may be read itself, for the library was opened without locks of its own.
  for (; outcome == SQLITE_ROW; outcome = rows == Rows::All ? sqlite3_step(statement) : SQLITE_DONE)
    for (int column = 0; column < width; ++column)
      read(sqlite3_column_value(statement, column), readings[static_cast<std::size_t>(column)], values);
  if (outcome != SQLITE_DONE) fail();
  if (width == 0) return {};
  return {columns, std::move(values)};
}

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
