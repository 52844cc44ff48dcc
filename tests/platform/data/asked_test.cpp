#include "platform/data/asked.h"

#include <gtest/gtest.h>

#include <QThread>
#include <tuple>

#include "platform/data/connection.h"
#include "sqlserver/tds_server.h"
#include "support/errors.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;
using data::Asked;
using support::errorOf;

namespace {

// A forgotten co_await gives no value, and no text that may be gone names a column (setup/asked.py looks for
// the mistakes that compile).
static_assert(!std::is_convertible_v<Asked<QString>, QString>);
static_assert(!std::is_constructible_v<data::Literal, QStringView> &&
              !std::is_constructible_v<data::Literal, QString>);
static_assert(!std::is_constructible_v<data::Literal, const char16_t*>);

/// Ten notes "a" to "j", numbers 1 to 10, each of which names the next one, on a server and on the embedded
/// file.
class AskedTogether : public ::testing::TestWithParam<bool> {
 protected:
  AskedTogether() {
    connection.open(
        GetParam() ? server.connectionString() : u"server=(embutido);database="_s + server.databasePath(), 5);
    connection.execute(u"CREATE TABLE nota (id integer, nome varchar(20), outra integer)"_s);
    for (int i = 0; i < 10; ++i)
      connection.execute(
          u"INSERT INTO nota VALUES (%1, '%2', %3)"_s.arg(i + 1).arg(QChar(u'a' + i)).arg(i + 2));
    connection.setListener([this](const QString& sql) { sent << sql; });
    static_cast<void>(server.requests());
  }

  Asked<QString> value(QString column, QString id) {
    const data::Recordset rs =
        co_await connection.ask(u"SELECT "_s + column + u" FROM nota WHERE id = "_s + id, data::Rows::First);
    co_return rs.eof() ? QString() : rs.text(column);
  }
  /// The name of a note and that of the one after it.
  Asked<QString> pair(data::Recordset row) {
    auto name = value(u"nome"_s, row.text(u"id"));
    auto next = value(u"outra"_s, row.text(u"id"));
    const QString nextId = co_await next;
    const QString nextName = co_await value(u"nome"_s, nextId);
    const QString own = co_await name;
    co_return own + nextName;
  }
  Asked<double> raising(QString id) {
    const data::Recordset rs = co_await connection.ask(u"SELECT nome FROM nota WHERE id = "_s + id);
    co_return rs.number(u"nome");
  }
  Asked<QString> careful(QString column) {
    try {
      co_return co_await value(column, u"1"_s);
    } catch (const values::RuntimeError& error) {
      raised << error.statement();
    }
    co_return u"?"_s;
  }
  std::vector<Asked<QString>> pairs() {
    std::vector<Asked<QString>> all;
    for (auto rs = connection.query(u"SELECT id FROM nota ORDER BY id"_s); !rs.eof(); rs.moveNext())
      all.push_back(pair(rs));
    return all;
  }
  void expectRequests(int on) { EXPECT_EQ(server.requests(), GetParam() ? on : 0); }

  sqlserver::TdsServer server;
  data::Connection connection;
  QStringList sent, raised;
};

TEST_P(AskedTogether, RowsShareTheirRequestsAndEachStatementRunsForItself) {
  QString all;
  for (auto& one : pairs()) all += waitFor(one) + u' ';
  EXPECT_EQ(all, u"ab bc cd de ef fg gh hi ij j "_s);
  expectRequests(3);
  EXPECT_EQ(sent.size(), 1 + 3 * 10);
  EXPECT_EQ(sent.count(u"SELECT nome FROM nota WHERE id = 5"_s), 2) << "by row 4 and by row 5";
  const QString alone = waitFor(value(u"nome"_s, u"3"_s));
  EXPECT_EQ(alone, u"c"_s);
  expectRequests(1);
}

qsizetype walked = 0, walkedOf = 0;

TEST_P(AskedTogether, FullBatchesGoOneByOneAndLongWorkSaysHowFarItIs) {
  data::Walk::setWatcher([](qsizetype done, qsizetype of) {
    if (of > 0) std::tie(walked, walkedOf) = std::tie(done, of);
  });
  server.setDelay(510);
  std::vector<Asked<QString>> all;
  for (int i = 0; i < 4001; ++i) all.push_back(value(u"id"_s, QString::number(i % 10 + 1)));
  for (int i = 0; i < 4001; ++i)
    ASSERT_EQ(waitFor(all[static_cast<std::size_t>(i)]), QString::number(i % 10 + 1));
  expectRequests(3);
  if (GetParam()) {
    EXPECT_EQ(std::pair(walked, walkedOf), std::pair(qsizetype{4000}, qsizetype{4001}));
  }

  server.setDelay(0);
  const auto rows =
      waitFor(data::forEachRow(connection.query(u"SELECT * FROM nota"_s), [this](data::Recordset row) {
        QThread::msleep(120);
        return pair(row);
      }));
  EXPECT_EQ(rows.size(), 10U);
  // A server is asked when all rows have been started.
  EXPECT_EQ(std::pair(walked, walkedOf),
            GetParam() ? std::pair(qsizetype{0}, qsizetype{20}) : std::pair(qsizetype{9}, qsizetype{10}));
  data::Walk::setWatcher(nullptr);
}

TEST_P(AskedTogether, TheFirstBadStatementIsReportedAndTheRowsEndWithIt) {
  connection.execute(u"UPDATE nota SET outra = NULL WHERE id > 3"_s);
  static_cast<void>(server.requests());
  const QString reported = [&] {
    try {
      auto all = pairs();  // those after the third ask for a note without a number
      for (auto& one : all) static_cast<void>(waitFor(one));
    } catch (const values::RuntimeError& error) {
      EXPECT_EQ(error.number(), values::kStatementFailed);
      return error.statement();
    }
    return QString();
  }();
  EXPECT_EQ(reported, u"SELECT nome FROM nota WHERE id = "_s);
  expectRequests(3);
  EXPECT_EQ(waitFor(value(u"nome"_s, u"1"_s)), u"a"_s) << "nothing of the others is sent any more";
  EXPECT_EQ(errorOf([&] { static_cast<void>(waitFor(value(u"nada"_s, u"1"_s))); }), values::kStatementFailed);
}

TEST_P(AskedTogether, WhatARowRaisesLeavesItsOwnGet) {
  auto bad = raising(u"1"_s);
  auto good = value(u"nome"_s, u"2"_s);
  { auto forgotten = value(u"nome"_s, u"3"_s); }
  EXPECT_EQ(waitFor(good), u"b"_s);
  EXPECT_EQ(errorOf([&] { static_cast<void>(waitFor(bad)); }), values::kTypeMismatch);
  expectRequests(1);
}

TEST_P(AskedTogether, AFailingStatementEndsItsOwnRowAndThoseBehindIt) {
  auto good = careful(u"nome"_s), bad = careful(u"nada"_s);
  EXPECT_EQ(waitFor(bad) + waitFor(good), u"?a"_s);
  EXPECT_EQ(raised, QStringList{u"SELECT nada FROM nota WHERE id = 1"_s});
  auto late = value(u"nome"_s, u"2"_s);
  connection.close();
  EXPECT_EQ(errorOf([&] { EXPECT_EQ(waitFor(late), u"b"_s) << "it was asked at once"; }),
            GetParam() ? values::kClosedObject : 0);
  EXPECT_EQ(errorOf([&] { static_cast<void>(waitFor(value(u"nome"_s, u"2"_s))); }), values::kClosedObject);
}

INSTANTIATE_TEST_SUITE_P(Engines, AskedTogether, ::testing::Bool(),
                         [](const auto& one) { return one.param ? "Server" : "Embedded"; });

}  // namespace
