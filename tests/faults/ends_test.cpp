#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <csignal>
#include <exception>

#include "fault_case.h"
#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"
#include "support/errors.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// Each end in a process of its own, with its own temporary folders.
class Ends : public faults::FaultCase {
 protected:
  Ends() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(Ends, TheDisplayThatGoesAwayEndsTheProgramWithoutACrash) {
  // Qt ends the process there, with all forms still open.
  EXPECT_EXIT((start(), std::exit(1)), ::testing::ExitedWithCode(1), "");
}

TEST_F(Ends, ADisplayThatIsNotThereIsASentence) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto& name : {u"QT_QPA_PLATFORM"_s, u"WAYLAND_DISPLAY"_s}) environment.remove(name);
  for (const auto& display : {u""_s, u":4711"_s}) {
    environment.insert(u"DISPLAY"_s, display);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(ZARIM_BINARY_DIR "/src/zarim"), {u"7^0^PRD^"_s});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("precisa de uma tela"));
  }
}

TEST_F(Ends, AnErrorThatNobodyCatchesIsNoCrash) {
  EXPECT_EXIT((forms::endPlainly(), std::terminate()), ::testing::ExitedWithCode(1), "nenhuma caixa");
}

TEST_F(Ends, OutputThatIsClosedOrNotReadIsNone) {
  EXPECT_EXIT((::close(STDERR_FILENO), forms::endPlainly(), std::raise(SIGPIPE), std::raise(SIGXFSZ),
               std::_Exit(::fcntl(STDERR_FILENO, F_GETFD) >= 0 ? 3 : 4)),
              ::testing::ExitedWithCode(3), "");
}

TEST_F(Ends, MemoryThatRunsOutIsABox) {
  forms::guarded([] { throw std::bad_alloc(); });
  EXPECT_EQ(boxes.last(), u"Erro em tempo de execução '7':\n\nMemória insuficiente"_s);
  EXPECT_EQ(ended, 1);
}

TEST_F(Ends, TheLineOnStandardErrorNamesTheStatementThatFailed) {
  sqlserver::TdsServer server;
  for (const QString& string :
       {server.connectionString(), u"server=(embutido);database="_s + databasePath()}) {
    data::Connection connection(string, 5);
    ::testing::internal::CaptureStderr();
    forms::guarded(
        [&] {
          std::vector<data::Asked<data::Recordset>> asked;
          for (const auto& sql : {u"SELECT 1"_s, u"SELECT nada\nFROM nenhuma"_s, u"SELECT 2"_s})
            asked.push_back(connection.ask(sql));
          for (auto& one : asked) static_cast<void>(waitFor(one));
        },
        u"txtTeste"_s);
    const std::string line = ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(line.starts_with("Erro -2147217900 em txtTeste: ")) << line;
    EXPECT_TRUE(line.ends_with(" | comando: SELECT nada FROM nenhuma\n")) << line;
  }
}

/// Number of the error of a statement whose result is larger than the memory that is left.
int errorOfALargeResult(const QString& databasePath) {
  data::Connection connection = support::connectionTo(databasePath);
  QFile sizes(u"/proc/self/statm"_s);
  if (!sizes.open(QIODevice::ReadOnly)) return 0;
  constexpr rlim_t kLeft = 200'000'000;
  const rlim_t most = sizes.readLine().split(' ').first().toULongLong() * 4096 + kLeft;
  const rlimit limit{most, most};
  setrlimit(RLIMIT_AS, &limit);
  return support::errorOf([&] {
    (void)connection.query(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) "
        "SELECT i, 'um texto que ocupa a memória' FROM n"_s);
  });
}

TEST_F(Ends, AResultThatMemoryCannotHoldIsAFailingStatement) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the checks take more memory than a limit leaves";
#endif
  EXPECT_EXIT(std::_Exit(errorOfALargeResult(databasePath()) == values::kStatementFailed ? 3 : 4),
              ::testing::ExitedWithCode(3), "");
}

}  // namespace
