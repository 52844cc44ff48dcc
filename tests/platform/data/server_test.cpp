#include <gtest/gtest.h>

#include <QElapsedTimer>

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
  data::Connection connection;
  connection.open(server.connectionString(), 1);
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
  data::Connection other;
  other.open(server.connectionString(), 5);
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
  data::Connection connection;
  connection.open(server.connectionString(), 1);
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
        Addition{"Driver=Firebird;Dbname=x", "", "Driver=Firebird;Dbname=x;"}})
    EXPECT_EQ(data::odbcString(QString::fromLatin1(one.given), QString::fromLatin1(one.port), 400),
              QString::fromLatin1(one.sent));
}

}  // namespace
