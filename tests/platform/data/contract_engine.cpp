#include "contract_engine.h"

#include "platform/data/engine.h"
#include "support/tds_server.h"

using namespace Qt::StringLiterals;

namespace contract {

namespace {

class Embedded final : public Engine {
 public:
  Embedded() { data::createEmbedded(path_); }
  QString connectionString() override {
    return u"driver={SQL Server};server=(embutido);uid=sa;pwd=x;database="_s + path_;
  }
  QStringList createTable(const schema::Table& table) override {
    return schema::createStatements(table, schema::Dialect::Embedded);
  }

 private:
  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"zarim.db"_s);
};

/// The SQLite library behind the driver manager, without anything that the embedded engine adds to it.
class SqliteOdbc final : public Engine {
 public:
  QString connectionString() override {
    return u"Driver=SQLite3;Timeout=2000;Database="_s + folder_.filePath(u"odbc.db"_s);
  }
  QStringList createTable(const schema::Table& table) override {
    QStringList statements = Engine::createTable(table);
    statements.replaceInStrings(u"int IDENTITY(1,1) NOT NULL PRIMARY KEY"_s,
                                u"integer PRIMARY KEY AUTOINCREMENT"_s);
    statements.replaceInStrings(u"decimal(18,6)"_s, u"double"_s);  // which it would give as text
    return statements.replaceInStrings(u"varchar(max)"_s, u"text"_s);
  }

 private:
  QTemporaryDir folder_;
};

class FreeTds final : public Engine {
 public:
  QString connectionString() override { return server_.connectionString(); }

 private:
  support::TdsServer server_;
};

class RealServer final : public Engine {
 public:
  QString connectionString() override { return qEnvironmentVariable("ZARIM_TEST_SERVER"); }
};

}  // namespace

std::vector<std::string> engines() {
  std::vector<std::string> names{"Embedded", "SqliteOdbc", "FreeTds"};
  if (qEnvironmentVariableIsSet("ZARIM_TEST_SERVER")) names.emplace_back("RealServer");
  return names;
}

std::unique_ptr<Engine> make(const std::string& engine) {
  if (engine == "Embedded") return std::make_unique<Embedded>();
  if (engine == "SqliteOdbc") return std::make_unique<SqliteOdbc>();
  if (engine == "FreeTds") return std::make_unique<FreeTds>();
  return std::make_unique<RealServer>();
}

}  // namespace contract
