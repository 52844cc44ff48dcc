#include <QFile>
#include <cstdlib>
#include <unordered_map>

#include "platform/data/embedded_dialect.h"
#include "platform/data/embedded_library.h"
#include "platform/data/embedded_template.h"
#include "platform/data/embedded_text.h"
#include "platform/data/engine.h"
#include "platform/data/walk.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Frees the locks of a statement when its rows have been read, or an error ended it.
class Reset {
 public:
  explicit Reset(sqlite3_stmt* statement) : statement_(statement) {}
  ~Reset() { sqlite3_reset(statement_); }
  Reset(const Reset&) = delete;
  Reset& operator=(const Reset&) = delete;

 private:
  sqlite3_stmt* statement_;
};

/// The file's read lock, taken once for the statements of a walk, which read one state of the file then. It
/// is a read that has begun: as long as it lasts, other reads need no lock of their own.
class ReadLock {
 public:
  explicit ReadLock(Prepared read) : read_(std::move(read)) { sqlite3_step(read_.get()); }
  void free() { read_.reset(); }

 private:
  Prepared read_;
};

/// How the values of a column come out.
enum class Reading { Plain, Date };

/// A compiled statement with what is known of its result.
struct Compiled {
  Prepared statement;
  std::shared_ptr<const Columns> columns;
  std::vector<Reading> readings;
  int compiledAgain = 0;  // how often the library compiled it again since a table changed

  [[nodiscard]] sqlite3_stmt* get() const { return statement.get(); }
  void describe();
};

void Compiled::describe() {
  QStringList names;
  QList<int> longest;
  readings.clear();
  const int width = sqlite3_column_count(get());
  for (int column = 0; column < width; ++column) {
    names.append(QString::fromUtf8(sqlite3_column_name(get(), column)));
    const char* declared = sqlite3_column_decltype(get(), column);
    const bool date = declared && sqlite3_strnicmp(declared, "datetime", 8) == 0;
    readings.push_back(date ? Reading::Date : Reading::Plain);
    const bool text = declared && sqlite3_strnicmp(declared, "varchar(", 8) == 0;
    longest.append(text ? std::atoi(declared + 8) : 0);
  }
  auto described = std::make_shared<Columns>(names);
  described->longest = longest;
  columns = std::move(described);
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
  const QDateTime date = reading == Reading::Date ? storedDate(text) : QDateTime();
  if (date.isValid()) return values.addDate(date);
  values.addText(text);
}

class EmbeddedEngine final : public Engine {
 public:
  explicit EmbeddedEngine(QString path);
  ~EmbeddedEngine() override { freeLock(); }
  EmbeddedEngine(const EmbeddedEngine&) = delete;
  EmbeddedEngine& operator=(const EmbeddedEngine&) = delete;

  void run(std::span<const Statement> statements, std::vector<Recordset>& results) override;
  void begin() override { runText(u"BEGIN IMMEDIATE"_s, Rows::All); }
  void commit() override { runText(u"COMMIT"_s, Rows::All); }

 private:
  Recordset runText(const QString& sql, Rows rows);
  /// The one statement of a text, which may be empty; raises where there is a second one.
  Compiled compile(const QString& sql);
  Prepared prepare(QByteArrayView& text);
  /// The kept statement of a template, with its values bound.
  Compiled& keptStatement(const Template& form);
  Recordset readRows(Compiled& compiled, Rows rows);
  Recordset lastIdentity(const QString& column);
  void lockForWalk();
  /// What is written must see what others wrote since.
  void freeLock();
  [[noreturn]] void fail() const;

  QString path_;
  Database database_;
  std::weak_ptr<ReadLock> lock_;
  std::unordered_map<QString, Compiled> kept_;  // after the database: they end first
};

EmbeddedEngine::EmbeddedEngine(QString path) : path_(std::move(path)), database_(openLibrary(path_)) {}

void EmbeddedEngine::fail() const {
  throw values::RuntimeError(values::kStatementFailed, libraryWords(database_.get(), path_));
}

/// The next statement of a text, which loses it.
Prepared EmbeddedEngine::prepare(QByteArrayView& text) {
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  if (sqlite3_prepare_v2(database_.get(), text.data(), static_cast<int>(text.size()), &statement, &rest) !=
      SQLITE_OK)
    fail();
  text = text.sliced(rest - text.data());
  return Prepared(statement);
}

Compiled EmbeddedEngine::compile(const QString& sql) {
  const QByteArray utf8 = sql.toUtf8();
  QByteArrayView text = utf8;
  Compiled compiled{prepare(text), {}, {}};
  if (!text.isEmpty() && prepare(text))
    throw values::RuntimeError(values::kStatementFailed, u"São duas instruções em uma."_s);
  if (compiled.get()) compiled.describe();
  return compiled;
}

Compiled& EmbeddedEngine::keptStatement(const Template& form) {
  constexpr std::size_t kMostKept = 128;
  auto found = kept_.find(form.text);
  if (found == kept_.end()) {
    if (kept_.size() >= kMostKept) kept_.clear();
    found = kept_.emplace(form.text, compile(form.text)).first;
  }
  int place = 0;
  for (const auto& value : form.values) {
    ++place;
    if (const auto* number = std::get_if<qint64>(&value)) {
      sqlite3_bind_int64(found->second.get(), place, *number);
    } else {
      const auto& text = std::get<QByteArray>(value);
      sqlite3_bind_text64(found->second.get(), place, text.constData(),
                          static_cast<sqlite3_uint64>(text.size()), SQLITE_STATIC, SQLITE_UTF8);
    }
  }
  return found->second;
}

void EmbeddedEngine::lockForWalk() {
  const bool ownLock = sqlite3_get_autocommit(database_.get()) == 0;  // a transaction's
  if (ownLock || !Walk::isUnderWay() || !lock_.expired()) return;
  QByteArrayView text = "SELECT 1 FROM sqlite_master";
  const auto lock = std::make_shared<ReadLock>(prepare(text));
  lock_ = lock;
  Walk::keep(lock);
}

void EmbeddedEngine::freeLock() {
  if (const auto lock = lock_.lock()) lock->free();
}

Recordset EmbeddedEngine::readRows(Compiled& compiled, Rows rows) {
  sqlite3_stmt* statement = compiled.get();
  sqlite3_stmt_readonly(statement) != 0 ? lockForWalk() : freeLock();
  const Reset reset(statement);
  int outcome = sqlite3_step(statement);
  if (const int again = sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_REPREPARE, 0);
      again != compiled.compiledAgain) {
    compiled.compiledAgain = again;
    compiled.describe();
  }
  const auto width = static_cast<int>(compiled.readings.size());
  ResultValues values;
  // A column's value may be read itself, for the library was opened without locks of its own.
  for (; outcome == SQLITE_ROW; outcome = rows == Rows::All ? sqlite3_step(statement) : SQLITE_DONE)
    for (int column = 0; column < width; ++column)
      read(sqlite3_column_value(statement, column), compiled.readings[static_cast<std::size_t>(column)],
           values);
  if (outcome != SQLITE_DONE) fail();
  if (width == 0) return {};
  return {compiled.columns, std::move(values)};
}

Recordset EmbeddedEngine::lastIdentity(const QString& column) {
  const qlonglong id = sqlite3_last_insert_rowid(database_.get());
  ResultValues values;
  if (id == 0)
    values.addNull();
  else
    values.addInteger(id);
  return {std::make_shared<Columns>(QStringList{column}), std::move(values)};
}

Recordset EmbeddedEngine::runText(const QString& sql, Rows rows) {
  const QString text = toEmbeddedDialect(sql);
  if (const auto form = templateOf(text)) return readRows(keptStatement(*form), rows);
  Compiled compiled = compile(text);
  if (!compiled.get()) return {};
  if (sqlite3_bind_parameter_count(compiled.get()) > 0)
    throw values::RuntimeError(values::kStatementFailed, u"A instrução tem uma variável sem valor."_s);
  return readRows(compiled, rows);
}

void EmbeddedEngine::run(std::span<const Statement> statements, std::vector<Recordset>& results) {
  for (const Statement& one : statements) {
    const auto column = identityColumn(one.sql);
    results.push_back(column ? lastIdentity(*column) : runText(one.sql, one.rows));
  }
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
