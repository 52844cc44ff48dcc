#include "floor.h"

#include <sqlite3.h>

#include <QFile>
#include <cstdio>
#include <cstdlib>

#include "platform/data/embedded_text.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

/// What the library is given for a statement of the program.
QByteArray forLibrary(const QString& statement) {
  if (statement == u"BEGIN") return "BEGIN IMMEDIATE";
  return data::toEmbeddedDialect(data::readStatement({statement})).toUtf8();
}

void runOne(sqlite3* database, const QByteArray& sql) {
  sqlite3_stmt* statement = nullptr;
  int outcome =
      sqlite3_prepare_v2(database, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr);
  if (outcome == SQLITE_OK) {
    const int width = sqlite3_column_count(statement);
    while ((outcome = sqlite3_step(statement)) == SQLITE_ROW)
      for (int column = 0; column < width; ++column)
        static_cast<void>(sqlite3_column_text(statement, column));
  }
  sqlite3_finalize(statement);
  if (outcome == SQLITE_DONE) return;
  std::fprintf(stderr, "The floor could not run: %s\n%s\n", sql.constData(), sqlite3_errmsg(database));
  std::exit(1);
}

}  // namespace

Floor::Floor(const QStringList& statements) {
  for (const QString& statement : statements) statements_.push_back(forLibrary(statement));
}

Times Floor::run(const QString& databasePath) const {
  const QString copy = databasePath + u".floor"_s;
  for (const auto& suffix : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(copy + suffix);
  QFile::copy(databasePath, copy);
  sqlite3* database = nullptr;
  sqlite3_open_v2(copy.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  data::registerTextRules(database);
  runOne(database, "PRAGMA synchronous=FULL");
  runOne(database, "PRAGMA temp_store=MEMORY");
  const Times times = timeOf([&] {
    for (const QByteArray& sql : statements_) runOne(database, sql);
  });
  sqlite3_close_v2(database);
  return times;
}

}  // namespace bench
