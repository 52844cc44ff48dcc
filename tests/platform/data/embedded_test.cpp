#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/data/connection.h"
#include "platform/data/engine.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class EmbeddedFile : public ::testing::Test {
 protected:
  EmbeddedFile() {
    data::createEmbedded(path);
    auto made = open();
    made.execute(u"CREATE TABLE t (id INTEGER PRIMARY KEY AUTOINCREMENT, nome TEXT COLLATE ZARIM)"_s);
  }

  data::Connection open() const { return {u"server=(embutido);database="_s + path, 5}; }

  /// Text of the error that opening raises; its number must be the one of a connection that can't be made.
  QString refusal() const {
    try {
      (void)open();
    } catch (const values::RuntimeError& error) {
      EXPECT_EQ(error.number(), values::kConnectionFailed);
      return error.text();
    }
    return u"aberto"_s;
  }

  QString ask(data::Connection& connection, const QString& sql) const {
    auto rs = connection.query(sql);
    return rs.eof() ? QString() : rs.text(rs.columns().first());
  }

  QTemporaryDir folder;
  QString path = folder.filePath(u"ação.db"_s);
};

TEST_F(EmbeddedFile, IsSafeAgainstPowerCutsAndWaitsForOthers) {
  auto connection = open();
  EXPECT_EQ(ask(connection, u"PRAGMA journal_mode"_s), u"wal"_s);
  EXPECT_EQ(ask(connection, u"PRAGMA synchronous"_s), u"2"_s);
  EXPECT_EQ(ask(connection, u"PRAGMA busy_timeout"_s), u"30000"_s);
}

TEST_F(EmbeddedFile, SaysWhatIsWrongWithAFile) {
  open().execute(u"INSERT INTO t (nome) VALUES ('%1')"_s.arg(QString(100'000, u'x')));
  QFile file(path);
  ASSERT_TRUE(file.resize(file.size() / 2));
  EXPECT_TRUE(refusal().contains(u"está danificado"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.resize(0));
  EXPECT_TRUE(refusal().contains(u"não é um banco de dados"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(4096, 'z')) == 4096);
  file.close();
  EXPECT_TRUE(refusal().contains(u"não é um banco de dados"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.remove());
  EXPECT_TRUE(refusal().contains(u"não foi encontrado"_s)) << refusal().toStdString();
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(EmbeddedFile, ThatMayOnlyBeReadIsReadAndRefusesWrites) {
  const uid_t anyone = geteuid() == 0 ? 65534 : geteuid();  // no right stops root
  const QByteArray place = folder.path().toUtf8();
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0444), 0);
  for (const mode_t rights : {0555U, 0777U}) {
    bool read = false;
    ASSERT_EQ(chmod(place.constData(), rights) | seteuid(anyone), 0);
    try {
      auto connection = open();
      read = ask(connection, u"SELECT count(*) FROM t"_s) == u"0"_s;
      connection.execute(u"INSERT INTO t (nome) VALUES ('x')"_s);
      ADD_FAILURE() << "it was written";
    } catch (const values::RuntimeError& error) {
      EXPECT_EQ(error.number(), rights == 0777U ? values::kStatementFailed : values::kConnectionFailed);
      EXPECT_EQ(error.text(), u"O arquivo de dados só permite leitura: "_s + path);
    }
    EXPECT_EQ(read, rights == 0777U);  // which wants to make files beside it
    ASSERT_EQ(seteuid(getuid()) | chmod(place.constData(), 0700), 0);
  }
}

}  // namespace
