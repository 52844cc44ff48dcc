#include <gtest/gtest.h>

#include <QSet>
#include <QTemporaryDir>

#include "platform/data/connection.h"
#include "platform/data/engine.h"
#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Schema, EveryTableOfTheEmbeddedFileHasItsColumnsInOrder) {
  const QTemporaryDir folder;
  data::createEmbedded(folder.filePath(u"a.db"_s));
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + folder.filePath(u"a.db"_s), 5);
  connection.begin();
  for (const QString& statement : schema::createStatements(schema::Dialect::Embedded))
    connection.execute(statement);
  connection.commit();
  for (const schema::Table& table : schema::tables()) {
    QStringList names;
    for (const schema::Column& column : table.columns) names << QString::fromLatin1(column.name);
    EXPECT_EQ(connection.query(u"SELECT * FROM "_s + QString::fromLatin1(table.name)).columns(), names);
  }
  for (const QString& statement : schema::dropStatements()) connection.execute(statement);
  EXPECT_EQ(connection.query(u"SELECT * FROM sqlite_master WHERE name NOT LIKE 'sqlite%'"_s).count(), 0);
}

TEST(Schema, NoNameStandsTwiceAndEveryIndexIsOnColumnsThatAreThere) {
  QSet<QString> tables;
  for (const schema::Table& table : schema::tables()) {
    tables.insert(QString::fromLatin1(table.name));
    QSet<QString> columns;
    for (const schema::Column& column : table.columns) {
      columns.insert(QString::fromLatin1(column.name));
      EXPECT_EQ(column.length > 0, column.type == schema::Type::Text) << table.name << '.' << column.name;
    }
    EXPECT_EQ(static_cast<std::size_t>(columns.size()), table.columns.size()) << table.name;
    for (const schema::Index& index : table.indexes)
      for (const char* column : index.columns)
        EXPECT_TRUE(columns.contains(QString::fromLatin1(column))) << table.name << '.' << column;
  }
  EXPECT_EQ(static_cast<std::size_t>(tables.size()), schema::tables().size());
}

/// What a lookup of one row reads must be found by an index, not by reading the whole table.
TEST(Schema, LookupsAndChildrenOfAQuoteAreFoundByIndex) {
  const QTemporaryDir folder;
  data::createEmbedded(folder.filePath(u"a.db"_s));
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + folder.filePath(u"a.db"_s), 5);
  for (const QString& statement : schema::createStatements(schema::Dialect::Embedded))
    connection.execute(statement);
  for (const auto& sql :
       {u"SELECT CODI_PROD FROM PROD WHERE IDPROD = 5"_s, u"SELECT IDPROD FROM PROD WHERE CODI_PROD='A'"_s,
        u"SELECT QTDE_DECI FROM UNID WHERE DESC_UNID='UN'"_s,
        u"SELECT VALO_CAMB FROM CAMB WHERE IDMOED =2 AND DATA_DESA IS NULL ORDER BY DATA_CAMB DESC"_s,
        u"SELECT CLIE.IDCLIE FROM CLIE, PESS WHERE PESS.IDPESS = CLIE.IDPESS AND PESS.NOME_PESS='X'"_s,
        u"SELECT VEND.IDVEND FROM VEND, PESS WHERE PESS.IDPESS = VEND.IDPESS AND PESS.NOME_CONH='X'"_s,
        u"SELECT * FROM PROP_CMRC_DETA_MONTA WHERE IDPROP_CMRC = '1' AND IDPROP_CMRC_DETA = '2'"_s,
        u"SELECT * FROM PROP_CMRC_DETA WHERE IDPROP_CMRC = '1'"_s,
        u"SELECT * FROM COND_PGTO_DETA WHERE IDCOND_PGTO = 1 ORDER BY NUME_PARC"_s,
        u"SELECT NUME_PEDI FROM PEDI_VEDS WHERE IDPROP_CMRC = '1'"_s,
        u"SELECT * FROM EMPR_CNFG WHERE NOME_PARA='COR_PADRAO'"_s}) {
    for (auto rs = connection.query(u"EXPLAIN QUERY PLAN "_s + sql); !rs.eof(); rs.moveNext()) {
      EXPECT_FALSE(rs.text(u"detail").startsWith(u"SCAN"_s)) << sql.toStdString();
      EXPECT_FALSE(rs.text(u"detail").contains(u"TEMP B-TREE"_s)) << sql.toStdString();
    }
  }
}

}  // namespace
