#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <future>

#include "platform/data/connection.h"
#include "platform/data/embedded_template.h"
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

  data::Connection open() const {
    data::Connection made;
    made.open(u"server=(embutido);database="_s + path, 5);
    return made;
  }

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

TEST_F(EmbeddedFile, ReadersSeeTheOldStateWhileOneWritesAndTheSecondWriterWaits) {
  auto first = open();
  first.begin();
  first.execute(u"INSERT INTO t (nome) VALUES ('um')"_s);
  auto reader = open();
  EXPECT_EQ(ask(reader, u"SELECT count(*) FROM t"_s), u"0"_s);
  std::promise<void> about;
  auto second = std::async(std::launch::async, [&] {
    auto connection = open();
    connection.setListener([&](const QString& sql) {
      if (sql == u"BEGIN"_s) about.set_value();
    });
    connection.begin();
    const QString seen = ask(connection, u"SELECT count(*) FROM t"_s);
    connection.execute(u"INSERT INTO t (nome) VALUES ('dois')"_s);
    connection.commit();
    return seen;
  });
  about.get_future().wait();
  first.execute(u"INSERT INTO t (nome) VALUES ('um e meio')"_s);
  first.commit();
  EXPECT_EQ(second.get(), u"2"_s);
  EXPECT_EQ(ask(reader, u"SELECT count(*) FROM t"_s), u"3"_s);
}

TEST_F(EmbeddedFile, TellsWhatIsWrongWithAFile) {
  open().execute(u"INSERT INTO t (nome) VALUES ('%1')"_s.arg(QString(100'000, u'x')));
  QFile file(path);
  ASSERT_TRUE(file.resize(file.size() / 2));
  EXPECT_TRUE(refusal().contains(u"está incompleto"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.resize(50));
  EXPECT_TRUE(refusal().contains(u"não é um banco de dados"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(QByteArray(4096, 'z')) == 4096);
  file.close();
  EXPECT_TRUE(refusal().contains(u"não é um banco de dados"_s)) << refusal().toStdString();
  ASSERT_TRUE(file.remove());
  EXPECT_TRUE(refusal().contains(u"não foi encontrado"_s)) << refusal().toStdString();
  EXPECT_FALSE(QFile::exists(path));
}

/// What comes of reading and then writing the file as a user with these rights on it and on its folder.
QString outcomeWithRights(const QString& path, const QByteArray& folder, mode_t fileMode, mode_t folderMode) {
  constexpr uid_t kNobody = 65534;
  const bool root = geteuid() == 0;  // whom no right stops
  if (chmod(path.toUtf8().constData(), fileMode) != 0 || chmod(folder.constData(), folderMode) != 0 ||
      (root && seteuid(kNobody) != 0))
    return u"os direitos não mudaram"_s;
  QString outcome = u"abriu"_s;
  try {
    data::Connection connection;
    connection.open(u"server=(embutido);database="_s + path, 5);
    outcome += u", leu "_s + connection.query(u"SELECT count(*) as n FROM t"_s).text(u"n");
    connection.execute(u"INSERT INTO t (nome) VALUES ('x')"_s);
  } catch (const values::RuntimeError& error) {
    outcome += u", %1 %2"_s.arg(error.number()).arg(error.text());
  }
  if (root && seteuid(0) != 0) outcome += u", ficou sem direitos"_s;
  chmod(folder.constData(), 0700);
  return outcome;
}

TEST_F(EmbeddedFile, ThatMayOnlyBeReadIsReadAndRefusesWrites) {
  const QString refused = u"O arquivo de dados só permite leitura: "_s + path;
  EXPECT_EQ(outcomeWithRights(path, folder.path().toUtf8(), 0444, 0555), u"abriu, -2147467259 "_s + refused);
  EXPECT_EQ(outcomeWithRights(path, folder.path().toUtf8(), 0444, 0777),
            u"abriu, leu 0, -2147217900 "_s + refused);
}

TEST_F(EmbeddedFile, KeepsCompiledStatementsRightWhenATableChanges) {
  auto connection = open();
  const QString sql = u"SELECT * FROM t WHERE nome = 'a'"_s;
  connection.execute(u"INSERT INTO t (nome) VALUES ('a')"_s);
  EXPECT_EQ(connection.query(sql).columns(), (QStringList{u"id"_s, u"nome"_s}));
  open().execute(u"ALTER TABLE t ADD COLUMN fone TEXT DEFAULT '55'"_s);
  EXPECT_EQ(connection.query(sql).text(u"fone"), u"55"_s);
}

TEST_F(EmbeddedFile, RefusesANulInsteadOfLosingWhatStandsBehindIt) {
  auto connection = open();
  QString sql = u"INSERT INTO t (nome) VALUES ('ab')"_s;
  sql.insert(sql.indexOf(u'b'), QChar::Null);
  EXPECT_THROW(connection.execute(sql), values::RuntimeError);
  auto after = open();
  EXPECT_EQ(ask(after, u"SELECT count(*) FROM t"_s), u"0"_s);
}

struct Form {
  const char* sql;
  const char* text;  // null where there is no template
  int values;
};

class StatementTemplates : public ::testing::TestWithParam<Form> {};

TEST_P(StatementTemplates, TakeOutValuesAndNothingElse) {
  const auto form = data::templateOf(GetParam().sql);
  ASSERT_EQ(form.has_value(), GetParam().text != nullptr) << GetParam().sql;
  if (!form) return;
  EXPECT_EQ(form->text.toStdString(), GetParam().text);
  EXPECT_EQ(static_cast<int>(form->values.size()), GetParam().values);
}

INSTANTIATE_TEST_SUITE_P(
    All, StatementTemplates,
    ::testing::Values(
        Form{"SELECT A FROM T WHERE ID =12 AND N LIKE '%x%' AND C='it''s'",
             "SELECT A FROM T WHERE ID =? AND N LIKE ? AND C=?", 3},
        Form{"SELECT A AS 'B1', 2 FROM T ORDER BY 2", "SELECT A AS 'B1', 2 FROM T ORDER BY 2", 0},
        Form{"UPDATE T SET A=null, B='' WHERE (ID=7)", "UPDATE T SET A=null, B=? WHERE (ID=?)", 2},
        Form{"SELECT A FROM T WHERE B > 1.5 AND C2=3e1", "SELECT A FROM T WHERE B > 1.5 AND C2=3e1", 0},
        Form{"SELECT [a 'b], \"c'd\" FROM T WHERE A='x'", "SELECT [a 'b], \"c'd\" FROM T WHERE A=?", 1},
        Form{"SELECT A FROM T WHERE B='x", nullptr, 0}, Form{"DELETE FROM T; DELETE FROM U", nullptr, 0},
        Form{"SELECT A FROM T WHERE B=1 -- '", nullptr, 0},
        Form{"CREATE TABLE t (a CHECK(a='x'))", nullptr, 0},
        Form{"SELECT 99999999999999999999 WHERE A=99999999999999999999",
             "SELECT 99999999999999999999 WHERE A=99999999999999999999", 0}));

}  // namespace
