#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "fault_case.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "support/printing.h"
#include "support/script.h"

using namespace Qt::StringLiterals;
using sqlserver::TdsServer;

namespace {

/// Lets a server answer so many statements and no more.
void cutAt(TdsServer& server, qsizetype victim) {
  server.setFault([victim, passed = qsizetype{0}](const QString&) mutable {
    return passed++ >= victim ? TdsServer::Act::Cut : TdsServer::Act::Answer;
  });
}

/// The parameter: 0 saves a new quote, 1 the stored one.
class Saving : public faults::FaultCase, public ::testing::WithParamInterface<int> {
 protected:
  static void prepare(frmPropCmrcTL& screen) { GetParam() == 0 ? enterQuote(screen) : alterQuote(screen); }

  /// Rows after a save that nothing disturbs, and its statements, BEGIN and COMMIT among them.
  QStringList saved(QStringList& statements) {
    auto& screen = start();
    prepare(screen);
    contexto().Conexao.setListener([&](const QString& sql) { statements << sql; });
    support::click(screen.cmdSALVAR);
    contexto().Conexao.setListener({});
    EXPECT_FALSE(ended.has_value()) << boxes.join(u' ').toStdString();
    return rowsOf(databasePath());
  }
};

TEST_P(Saving, KilledAtAnyStatementLeavesTheOldQuoteOrTheNewOne) {
  QStringList statements;
  const QStringList after = saved(statements);
  (void)start();
  const QStringList before = rowsOf(databasePath());
  ASSERT_NE(before, after);
  ASSERT_EQ(statements.first(), u"BEGIN"_s);
  ASSERT_EQ(statements.last(), u"COMMIT"_s);
  RecordProperty("kills", static_cast<int>(statements.size()) + 1);
  // One more: killed when the save has ended.
  for (qsizetype victim = 0; victim <= statements.size(); ++victim) {
    contexto().Conexao.close();
    const pid_t child = fork();
    if (child == 0) {
      alarm(60);
      auto& screen = start();
      prepare(screen);
      qsizetype passed = 0;
      contexto().Conexao.setListener([&](const QString&) {
        if (passed++ == victim) raise(SIGKILL);
      });
      screen.cmdSALVAR->click();
      raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "statement " << victim;
    EXPECT_EQ(rowsOf(databasePath()), victim == statements.size() ? after : before) << "statement " << victim;
  }
}

TEST_P(Saving, CutFromTheServerAtAnyStatementLeavesTheOldQuote) {
  QStringList statements;
  (void)saved(statements);
  RecordProperty("cuts", static_cast<int>(statements.size()));
  for (qsizetype victim = 0; victim < statements.size(); ++victim) {
    TdsServer server;
    auto& screen = startOn(server);
    prepare(screen);
    const QStringList before = rowsOf(server.databasePath());
    cutAt(server, victim);
    support::click(screen.cmdSALVAR);
    EXPECT_EQ(ended, 1) << "statement " << victim;
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes.first().contains(QString::number(values::kConnectionFailed)))
        << boxes.first().toStdString();
    contexto().Conexao.close();
    server.stop();
    EXPECT_EQ(rowsOf(server.databasePath()), before) << "statement " << victim;
  }
}

TEST_P(Saving, WaitsForAnotherProgramThatSaves) {
  auto& screen = start();
  prepare(screen);
  data::Connection other = support::connectionTo(databasePath());
  other.begin();
  other.execute(u"UPDATE prop_cmrc SET fone_clie='outro' WHERE idprop_cmrc=1"_s);
  std::thread finishing;
  contexto().Conexao.setListener([&](const QString& sql) {
    if (sql == u"BEGIN"_s) finishing = std::thread([&] { other.commit(); });
  });
  support::click(screen.cmdSALVAR);
  finishing.join();
  contexto().Conexao.setListener({});
  EXPECT_FALSE(ended.has_value()) << boxes.join(u' ').toStdString();
  // The last save wins on the quote that both have written.
  EXPECT_EQ(ask(u"SELECT fone_clie FROM prop_cmrc WHERE idprop_cmrc=1"_s),
            GetParam() == 0 ? u"outro"_s : QString());
  EXPECT_EQ(ask(u"SELECT count(*) FROM prop_cmrc"_s), GetParam() == 0 ? u"2"_s : u"1"_s);
}

INSTANTIATE_TEST_SUITE_P(Paths, Saving, ::testing::Values(0, 1),
                         [](const auto& one) { return one.param == 0 ? "Insert" : "Update"; });

using Loading = faults::FaultCase;

TEST_F(Loading, LeavesTheServerWithTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // a process of its own, with its own temporary folders
  TdsServer server;
  alterQuote(startOn(server));
  EXPECT_EXIT((forms::registry::clear(), std::exit(0)), ::testing::ExitedWithCode(0), "");
}

TEST_F(Loading, CutFromTheServerAtAnyStatementEndsTheProgram) {
  TdsServer server;
  auto* screen = &startOn(server);
  qsizetype all = 0;
  server.setFault([&all](const QString&) {
    ++all;
    return TdsServer::Act::Answer;
  });
  alterQuote(*screen);
  ASSERT_GT(all, 20);
  RecordProperty("cuts", static_cast<int>((all + 2) / 3));
  for (qsizetype victim = 0; victim < all; victim += 3) {
    TdsServer failing;
    screen = &startOn(failing);
    cutAt(failing, victim);
    screen->txtCodigo->setText(u"1"_s);
    support::click(screen->cmdPesquisar_PropCmrc);
    EXPECT_EQ(ended, 1) << "statement " << victim;
    contexto().Conexao.close();
  }
}

TEST_F(Loading, ReadsOnWhileAnotherProgramSaves) {
  auto& screen = start();
  data::Connection other = support::connectionTo(databasePath());
  other.begin();
  other.execute(u"DELETE FROM prop_cmrc_deta WHERE (idprop_cmrc=1)"_s);
  alterQuote(screen);
  EXPECT_FALSE(ended.has_value());
  EXPECT_EQ(screen.Flex->grid().rows(), 3);
}

}  // namespace
