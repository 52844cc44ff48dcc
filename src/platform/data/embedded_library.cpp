#include "platform/data/embedded_library.h"

#include "platform/data/embedded_file.h"
#include "platform/data/embedded_text.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr int kBusyTimeout = 30'000;  // milliseconds that a statement waits for another program's

}  // namespace

QString libraryWords(sqlite3* database, const QString& path) {
  switch (sqlite3_errcode(database)) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return u"O arquivo de dados está em uso por outro programa: %1"_s.arg(path);
    case SQLITE_READONLY:
      return u"O arquivo de dados só permite leitura: %1"_s.arg(path);
    case SQLITE_FULL:
      return u"O disco do arquivo de dados está cheio: %1"_s.arg(path);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return u"O arquivo de dados está danificado: %1\nRestaure uma cópia de segurança."_s.arg(path);
    default:
      return QString::fromUtf8(sqlite3_errmsg(database));
  }
}

Database openLibrary(const QString& path) {
  checkEmbeddedFile(path);
  // The library's count of its memory takes a lock for every piece; nobody asks for it.
  static const int quiet = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  static_cast<void>(quiet);
  sqlite3* opened = nullptr;
  const int outcome = sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  Database database(opened);
  const auto check = [&](int result) {
    if (result != SQLITE_OK)
      throw values::RuntimeError(values::kConnectionFailed, libraryWords(opened, path));
  };
  const auto execute = [&](const char* sql) { check(sqlite3_exec(opened, sql, nullptr, nullptr, nullptr)); };
  check(outcome);
  sqlite3_busy_timeout(opened, kBusyTimeout);
  registerTextRules(opened);
  if (sqlite3_db_readonly(opened, "main") == 0) execute("PRAGMA journal_mode=WAL");
  execute("PRAGMA synchronous=FULL; PRAGMA temp_store=MEMORY; SELECT count(*) FROM sqlite_master");
  return database;
}

}  // namespace data
