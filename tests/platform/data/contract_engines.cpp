#include "contract_engines.h"

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

/// Stands for any driver that a whole connection string names: the SQLite library behind the driver manager,
/// without anything that the embedded engine adds to it.
class SqliteOdbc final : public Engine {
 public:
  QString connectionString() override {
    return u"Driver=SQLite3;Timeout=2000;Database="_s + folder_.filePath(u"odbc.db"_s);
  }
  QStringList createTable(const schema::Table& table) override {
    QStringList statements = schema::createStatements(table, schema::Dialect::SqlServer);
    statements.replaceInStrings(u"int IDENTITY(1,1) NOT NULL PRIMARY KEY"_s,
                                u"integer PRIMARY KEY AUTOINCREMENT"_s);
    statements.replaceInStrings(u"decimal(18,6)"_s, u"double"_s);  // which it would give as text
    return statements.replaceInStrings(u"varchar(max)"_s, u"text"_s);
  }
  std::set<Trait> lacks() const override {
    return {Trait::CaseOfAccents, Trait::PaddedEquality, Trait::EmptyIsZero, Trait::Refusal,
            Trait::Dates,         Trait::Identity,       Trait::BareDelete,  Trait::AllOfUnicode};
  }

 private:
  QTemporaryDir folder_;
};

/// The server's protocol through FreeTDS, against the test server.
class FreeTds final : public Engine {
 public:
  QString connectionString() override { return server_.connectionString(); }
  QStringList createTable(const schema::Table& table) override {
    return schema::createStatements(table, schema::Dialect::SqlServer);
  }
  std::set<Trait> lacks() const override { return {Trait::AllOfUnicode}; }

 private:
  support::TdsServer server_;
};

/// A real server, where ZARIM_TEST_SERVER holds the connection string of an empty database.
class RealServer final : public Engine {
 public:
  QString connectionString() override { return qEnvironmentVariable("ZARIM_TEST_SERVER"); }
  QStringList createTable(const schema::Table& table) override {
    return schema::createStatements(table, schema::Dialect::SqlServer);
  }
  std::set<Trait> lacks() const override { return {Trait::AllOfUnicode}; }
};

}  // namespace

const std::vector<EngineKind>& engines() {
  static const std::vector<EngineKind> all = [] {
    std::vector<EngineKind> kinds{
        {"Embedded", [] { return std::make_unique<Embedded>(); }},
        {"SqliteOdbc", [] { return std::make_unique<SqliteOdbc>(); }},
        {"FreeTds", [] { return std::make_unique<FreeTds>(); }},
    };
    if (qEnvironmentVariableIsSet("ZARIM_TEST_SERVER"))
      kinds.push_back({"RealServer", [] { return std::make_unique<RealServer>(); }});
    return kinds;
  }();
  return all;
}

}  // namespace contract
