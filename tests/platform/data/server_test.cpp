#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/data/connection.h"
#include "platform/data/odbc_string.h"
#include "sqlserver/tds_server.h"
#include "support/errors.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;
using sqlserver::TdsServer;
using support::errorOf;

namespace {

/// Opening that must fail: what is wrong with the server or the string, and what the driver says of it.
struct Refusal {
  const char* name;
  std::function<QString(TdsServer&)> prepare;  // gives the connection string
  const char* words;
  int timeout = 1;
};

class ServerOpening : public ::testing::TestWithParam<Refusal> {};

TEST_P(ServerOpening, FailsWithTheNumberOfAConnectionAndTheDriversWords) {
  TdsServer server;
  const QString string = GetParam().prepare(server);
  data::Connection connection;
  QElapsedTimer waited;
  waited.start();
  try {
    connection.open(string, GetParam().timeout);
    FAIL() << "it opened";
  } catch (const values::RuntimeError& error) {
    EXPECT_EQ(error.number(), values::kConnectionFailed);
    EXPECT_TRUE(error.text().contains(QString::fromLatin1(GetParam().words))) << error.text().toStdString();
  }
  EXPECT_FALSE(connection.isOpen());
  EXPECT_LT(waited.elapsed(), 30'000);
}

QString with(const TdsServer& server, const QString& before, const QString& after) {
  return server.connectionString().replace(before, after);
}
QString stopped(TdsServer& server) {
  server.stop();
  return server.connectionString();
}
QString silent(TdsServer& server) {
  server.setFault([](const QString&) { return TdsServer::Act::Silence; });
  return server.connectionString();
}

INSTANTIATE_TEST_SUITE_P(
    All, ServerOpening,
    ::testing::Values(
        Refusal{"ServerOff", stopped, "Unable to connect"},
        Refusal{"WrongPassword", [](auto& one) { return one.connectionString(u"x"_s); }, "Login failed"},
        Refusal{"UnknownDatabase", [](auto& one) { return with(one, u"=zarim"_s, u"=nada"_s); },
                "does not exist"},
        Refusal{"NameThatDoesNotResolve",
                [](auto& one) { return with(one, u"127.0.0.1"_s, u"nao-existe.invalid"_s); },
                "Unable to connect"},
        Refusal{"SilentServer", silent, "Timeout expired"},
        Refusal{"SilentServerByTheTimeoutOfTheString",
                [](auto& one) { return silent(one) + u";TimeOut = 1"_s; }, "Timeout expired", 400},
        Refusal{"NoSuchDriver", [](auto&) { return u"driver={Nao Existe};server=localhost"_s; },
                "Can't open lib"}),
    [](const auto& one) { return std::string(one.param.name); });

class ServerInMidSession : public ::testing::TestWithParam<std::tuple<TdsServer::Act, const char*>> {};

TEST_P(ServerInMidSession, LeavesNothingOfAnOpenTransaction) {
  const auto [act, statement] = GetParam();
  TdsServer server;
  data::Connection connection(server.connectionString(), 1);
  connection.execute(u"CREATE TABLE nota (a varchar(20))"_s);
  server.setFault([&](const QString& sql) {
    return sql.contains(QString::fromLatin1(statement)) ? act : TdsServer::Act::Answer;
  });
  const auto save = [&] {
    connection.begin();
    connection.execute(u"INSERT INTO nota VALUES ('um')"_s);
    (void)connection.query(u"SELECT a FROM nota"_s);
    connection.execute(u"INSERT INTO nota VALUES ('dois')"_s);
    connection.commit();
  };
  EXPECT_EQ(errorOf(save), values::kConnectionFailed);
  EXPECT_EQ(errorOf([&] { connection.commit(); }), values::kConnectionFailed);
  connection.close();
  server.setFault({});
  data::Connection other(server.connectionString(), 5);
  EXPECT_TRUE(other.query(u"SELECT a FROM nota"_s).eof());
}

INSTANTIATE_TEST_SUITE_P(All, ServerInMidSession,
                         ::testing::Combine(::testing::Values(TdsServer::Act::Cut, TdsServer::Act::Silence),
                                            ::testing::Values("BEGIN", "'um'", "SELECT a", "'dois'",
                                                              "COMMIT")));

class ServerInMidBatch : public ::testing::TestWithParam<std::tuple<TdsServer::Act, int>> {};

TEST_P(ServerInMidBatch, IsLostAndNoShortResultPassesForAWholeOne) {
  const auto [act, victim] = GetParam();
  TdsServer server;
  data::Connection connection(server.connectionString(), 1);
  connection.execute(u"CREATE TABLE nota (a varchar(200))"_s);
  connection.begin();
  std::vector<data::Statement> inserts(300, {u"INSERT INTO nota VALUES ('%1')"_s.arg(QString(150, u'x'))});
  EXPECT_EQ(connection.batch(inserts).size(), 300);
  connection.commit();
  server.setFault([act = act, victim = victim, seen = 0](const QString&) mutable {
    return seen++ == victim ? act : TdsServer::Act::Answer;
  });
  const std::vector<data::Statement> reads(3, {u"SELECT a FROM nota"_s});
  EXPECT_EQ(errorOf([&] { connection.batch(reads); }), values::kConnectionFailed);
  EXPECT_EQ(errorOf([&] { connection.execute(u"DELETE FROM nota"_s); }), values::kConnectionFailed);
}

INSTANTIATE_TEST_SUITE_P(All, ServerInMidBatch,
                         ::testing::Combine(::testing::Values(TdsServer::Act::Cut, TdsServer::Act::CutInside,
                                                              TdsServer::Act::Silence),
                                            ::testing::Values(0, 1, 2)));

TEST(ServerInBatch, RefusesAResultThatNobodyAskedFor) {
  const std::vector<data::Statement> batch{
      {u"SELECT a FROM nota"_s}, {u"INSERT INTO nota VALUES ('dois')"_s}, {u"SELECT a FROM nota"_s}};
  for (const data::Statement& victim : batch) {
    TdsServer server;
    data::Connection connection(server.connectionString(), 5);
    connection.execute(u"CREATE TABLE nota (a varchar(20))"_s);
    server.setFault([&, seen = false](const QString& sql) mutable {
      return sql == victim.sql && !std::exchange(seen, true) ? TdsServer::Act::Another
                                                             : TdsServer::Act::Answer;
    });
    connection.begin();
    EXPECT_EQ(errorOf([&] { connection.batch(batch); }), values::kStatementFailed);
    EXPECT_EQ(errorOf([&] { connection.commit(); }), values::kStatementFailed)
        << "the answers may be shifted";
  }
}

struct Addition {
  const char* given;
  const char* port;  // of the environment
  const char* sent;
};

TEST(ServerString, GetsWhatTheDriverNeedsAppended) {
  for (const Addition& one :
       {Addition{"driver={SQL Server};server=s;uid=u;pwd=p;database=d", "",
                 "driver={SQL Server};server=s;uid=u;pwd=p;database=d;port=1433;TDS_Version=7.4;Timeout=400;"
                 "ClientCharset=UTF-8;"},
        Addition{"driver={sql server};server=s;PORT=5;tds_version=7.3;", "",
                 "driver={sql server};server=s;PORT=5;tds_version=7.3;Timeout=400;ClientCharset=UTF-8;"},
        Addition{"driver={SQL Server};server=s;timeout=9", "1444",
                 "driver={SQL Server};server=s;timeout=9;TDS_Version=7.4;ClientCharset=UTF-8;"},
        Addition{
            "driver={SQL Server};server=s\\EXPRESS;uid=u", "",
            "driver={SQL Server};server=s\\EXPRESS;uid=u;TDS_Version=7.4;Timeout=400;ClientCharset=UTF-8;"},
        Addition{"Driver=Firebird;Dbname=x", "", "Driver=Firebird;Dbname=x;"}})
    EXPECT_EQ(data::odbcString(QString::fromLatin1(one.given), QString::fromLatin1(one.port), 400),
              QString::fromLatin1(one.sent));
}

/// What a server that shows its certificate to the program gets to read.
QString readBy(const QString& certificate, const QString& authorities, const QString& name) {
  QProcess server;
  server.start(u"/usr/bin/python3"_s, {QStringLiteral(ZARIM_SOURCE_DIR "/tests/support/tls_sql_server.py"),
                                       certificate, certificate + u".key"_s});
  EXPECT_TRUE(server.waitForReadyRead());
  const QString port = QString::fromLatin1(server.readLine().trimmed());
  const QString string =
      u"driver={SQL Server};server=%1;CAFile=%2;port=%3;uid=vendas;pwd=Segredo1;database=d"_s.arg(
          name, authorities, port);
  data::Connection connection;
  EXPECT_EQ(errorOf([&] { connection.open(string, 10); }), values::kConnectionFailed);
  EXPECT_TRUE(server.waitForFinished());
  return QString::fromLatin1(server.readAll().trimmed());
}

TEST(ServerString, SendsNoLoginToAServerWithoutACertificateOfItsAuthorities) {
  const QTemporaryDir folder;
  const QString own = folder.filePath(u"own.pem"_s), impostor = folder.filePath(u"impostor.pem"_s);
  for (const QString& file : {own, impostor})
    ASSERT_EQ(QProcess::execute(u"openssl"_s,
                                {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-subj"_s,
                                 u"/CN=localhost"_s, u"-addext"_s, u"subjectAltName=DNS:localhost"_s,
                                 u"-keyout"_s, file + u".key"_s, u"-out"_s, file}),
              0);
  EXPECT_GT(readBy(own, own, u"localhost"_s).toInt(), 0);
  EXPECT_EQ(readBy(impostor, own, u"localhost"_s), u"refused"_s);
  EXPECT_EQ(readBy(own, own, u"127.0.0.1"_s), u"refused"_s) << "another name";
  EXPECT_EQ(readBy(own, folder.filePath(u"none.pem"_s), u"localhost"_s), u"refused"_s);
}

}  // namespace
