#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "platform/data/connection.h"
#include "platform/data/odbc_string.h"
#include "support/printing.h"
#include "support/tds_server.h"

using namespace Qt::StringLiterals;
using support::TdsServer;

namespace {

struct Failure {
  int number = 0;
  QString text;
};

template <typename Act>
Failure failureOf(Act act) {
  try {
    act();
  } catch (const values::RuntimeError& error) {
    return {error.number(), error.text()};
  }
  return {};
}

/// Opening that must fail: what is wrong with the server or the string, and what the driver says of it.
struct Refusal {
  const char* name;
  std::function<QString(TdsServer&)> prepare;  // gives the connection string
  const char* words;
};

class ServerOpening : public ::testing::TestWithParam<Refusal> {};

TEST_P(ServerOpening, FailsWithTheNumberOfAConnectionInTheTimeSet) {
  TdsServer server;
  const QString string = GetParam().prepare(server);
  data::Connection connection;
  QElapsedTimer timer;
  timer.start();
  const Failure failure = failureOf([&] { connection.open(string, 1); });
  EXPECT_EQ(failure.number, values::kConnectionFailed) << failure.text.toStdString();
  EXPECT_TRUE(failure.text.contains(QString::fromLatin1(GetParam().words))) << failure.text.toStdString();
  EXPECT_FALSE(connection.isOpen());
  EXPECT_LT(timer.elapsed(), 10'000);
}

INSTANTIATE_TEST_SUITE_P(
    All, ServerOpening,
    ::testing::Values(
        Refusal{"ServerOff",
                [](TdsServer& server) {
                  server.stop();
                  return server.connectionString();
                },
                "Unable to connect"},
        Refusal{"WrongPassword", [](TdsServer& server) { return server.connectionString(u"x"_s); },
                "Login failed"},
        Refusal{"UnknownDatabase",
                [](TdsServer& server) {
                  return server.connectionString().replace(u"database=zarim"_s, u"database=nada"_s);
                },
                "does not exist"},
        Refusal{"NameThatDoesNotResolve",
                [](TdsServer& server) {
                  return server.connectionString().replace(u"127.0.0.1"_s, u"nao-existe.invalid"_s);
                },
                "Unable to connect"},
        Refusal{"SilentServer",
                [](TdsServer& server) {
                  server.setFault([](const QString&) { return TdsServer::Act::Silence; });
                  return server.connectionString();
                },
                "Timeout expired"},
        Refusal{"NoSuchDriver", [](TdsServer&) { return u"driver={Nao Existe};server=localhost"_s; },
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
  QElapsedTimer timer;
  timer.start();
  const Failure failure = failureOf([&] {
    connection.begin();
    connection.execute(u"INSERT INTO nota VALUES ('um')"_s);
    (void)connection.query(u"SELECT a FROM nota"_s);
    connection.execute(u"INSERT INTO nota VALUES ('dois')"_s);
    connection.commit();
  });
  EXPECT_EQ(failure.number, values::kConnectionFailed) << failure.text.toStdString();
  EXPECT_LT(timer.elapsed(), 10'000);
  EXPECT_EQ(failureOf([&] { connection.commit(); }).number, values::kConnectionFailed);
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

TEST(ServerSession, SendsNothingAfterAFailingStatement) {
  TdsServer server;
  data::Connection connection;
  connection.open(server.connectionString(), 5);
  connection.begin();
  EXPECT_EQ(failureOf([&] { connection.execute(u"INSERT INTO nada VALUES ('x')"_s); }).number,
            values::kStatementFailed);
  const auto sent = server.statements().size();
  EXPECT_EQ(failureOf([&] { connection.execute(u"INSERT INTO outra VALUES ('x')"_s); }).number,
            values::kStatementFailed);
  EXPECT_EQ(failureOf([&] { connection.commit(); }).number, values::kStatementFailed);
  EXPECT_EQ(server.statements().size(), sent);
}

struct Addition {
  const char* given;
  const char* port;  // of the environment
  const char* sent;
};

TEST(ServerString, GetsWhatTheDriverNeedsBehindIt) {
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
