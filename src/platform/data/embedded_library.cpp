#include "platform/data/embedded_library.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "platform/data/embedded_text.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr int kBusyTimeout = 30'000;  // milliseconds that a statement waits for another program's
constexpr qsizetype kHeaderSize = 100;
constexpr qsizetype kPageSizeAt = 16;
constexpr qsizetype kChangeCounterAt = 24;
constexpr qsizetype kPageCountAt = 28;
constexpr qsizetype kPageCountValidForAt = 92;

[[noreturn]] void refuse(const QString& text) { throw values::RuntimeError(values::kConnectionFailed, text); }

quint32 big32(const QByteArray& header, qsizetype at) {
  return qFromBigEndian<quint32>(header.constData() + at);
}

/// Size recorded in the header; 0 if unknown.
qint64 toldSize(const QByteArray& header) {
  if (big32(header, kChangeCounterAt) != big32(header, kPageCountValidForAt)) return 0;
  const quint16 pageSize = qFromBigEndian<quint16>(header.constData() + kPageSizeAt);
  constexpr qint64 kLargestPage = 65536;  // does not fit the field, stands there as 1
  return big32(header, kPageCountAt) * (pageSize == 1 ? kLargestPage : pageSize);
}

/// Whether pages of the file may still stand in its log, which another program moves over as we look.
bool hasLog(const QString& path) { return QFileInfo(path + "-wal"_L1).size() > 0; }

/// Raises where the file is missing, is no database, or is shorter than it says it is.
void checkEmbeddedFile(const QString& path) {
  if (!QFileInfo(path).isFile())
    refuse(
        u"O arquivo de dados não foi encontrado: %1\nVerifique o nome do banco em server.ini."_s.arg(path));
  const bool logBefore = hasLog(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    refuse(u"O arquivo de dados não pode ser lido: %1\nVerifique as permissões do arquivo."_s.arg(path));
  const QByteArray header = file.read(kHeaderSize);
  if (header.size() < kHeaderSize || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
    refuse(u"O arquivo não é um banco de dados: %1\nVerifique o nome do banco em server.ini."_s.arg(path));
  if (!logBefore && file.size() < toldSize(header) && !hasLog(path))
    refuse(u"O arquivo de dados está incompleto: %1\nRestaure uma cópia de segurança."_s.arg(path));
}

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

QString toEmbeddedDialect(const ReadStatement& statement) {
  QString sql = statement.given.sql;
  const auto& [verb, next] = statement.first;
  const qsizetype at = next.text.data() - QStringView(sql).data();
  if (verb.isWord(u"DELETE") && next.kind != SqlToken::Kind::End && !next.isWord(u"FROM"))
    sql.insert(at, u"FROM "_s);
  if (verb.isWord(u"SELECT") && next.isWord(u"@@IDENTITY"))
    sql.replace(at, next.text.size(), u"nullif(last_insert_rowid(), 0)"_s);
  return sql;
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
