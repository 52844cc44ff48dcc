#include "contract_engine.h"

#include "platform/data/engine.h"

using namespace Qt::StringLiterals;

namespace contract {

std::vector<std::string> engines() {
  std::vector<std::string> names{"Embedded", "SqliteOdbc", "FreeTds"};
  if (qEnvironmentVariableIsSet("ZARIM_TEST_SERVER")) names.emplace_back("RealServer");
  return names;
}

Engine::Engine(const std::string& name) : name_(name) {
  const QString path = folder_.filePath(u"zarim.db"_s);
  if (name == "Embedded") {
    data::createEmbedded(path);
    connectionString_ = u"driver={SQL Server};server=(embutido);uid=sa;pwd=x;database="_s + path;
  } else if (name == "SqliteOdbc") {
    connectionString_ = u"Driver=SQLite3;Timeout=2000;Database="_s + path;
  } else if (name == "FreeTds") {
    server_ = std::make_unique<sqlserver::TdsServer>();
    connectionString_ = server_->connectionString();
  } else {
    connectionString_ = qEnvironmentVariable("ZARIM_TEST_SERVER");
  }
}

QStringList Engine::createTable(const schema::Table& table) const {
  if (name_ == "Embedded") return schema::createStatements(table, schema::Dialect::Embedded);
  QStringList statements = schema::createStatements(table, schema::Dialect::SqlServer);
  if (isLikeTheServer(name_)) return statements;
  statements.replaceInStrings(u"int IDENTITY(1,1) NOT NULL PRIMARY KEY"_s,
                              u"integer PRIMARY KEY AUTOINCREMENT"_s);
  statements.replaceInStrings(u"decimal(18,6)"_s, u"double"_s);  // which it would give as text
  return statements.replaceInStrings(u"varchar(max)"_s, u"text"_s);
}

}  // namespace contract
