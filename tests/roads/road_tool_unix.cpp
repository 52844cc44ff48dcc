#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>

#include "support/printing.h"

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

QString tool(const QString& name) { return QStringLiteral(ZARIM_BINARY_DIR "/tools/zarim_") + name; }

struct Fault {
  const char* name;
  QString steps;
  QStringList reported;
};
void PrintTo(const Fault& one, std::ostream* out) { *out << one.name; }

/// Walks roads against a sample company of their own; what good roads do, those of the sample show.
class FaultyRoads : public ::testing::TestWithParam<Fault> {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<QTemporaryDir>();
    const QStringList arguments{u"--to"_s, drive(), u"--fresh"_s, u"--day"_s, u"16/03/2026"_s};
    ASSERT_EQ(QProcess::execute(tool(u"install"_s), arguments), 0);
  }
  static void TearDownTestSuite() { folder_.reset(); }
  static QString drive() { return folder_->filePath(u"drive"_s); }

  /// Starts a walk of the steps with one variable more in its environment.
  static void start(QProcess& process, const QString& pictures, const QString& variable,
                    const QString& value) {
    QFile file(folder_->filePath(u"a.road"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(GetParam().steps.toUtf8());
    file.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"XDG_RUNTIME_DIR"_s);  // temporary files would stand there
    environment.insert(u"ZARIM_DRIVE_C"_s, drive());
    environment.insert(variable, value);
    process.setProcessEnvironment(environment);
    process.start(tool(u"road"_s), {u"--pictures"_s, folder_->filePath(pictures), file.fileName()});
  }

  static inline std::unique_ptr<QTemporaryDir> folder_;
};

TEST_P(FaultyRoads, FailWithFileLineExpectedAndFound) {
  QProcess process;
  start(process, u"pictures"_s, u"ZARIM_MAIL_FOLDER"_s, folder_->filePath(u"mail"_s));
  process.waitForFinished(180'000);
  EXPECT_EQ(process.exitCode(), 1);
  const QString output = QString::fromUtf8(process.readAllStandardError());
  for (const QString& part : GetParam().reported)
    EXPECT_TRUE(output.contains(part)) << part.toStdString() << " in " << output.toStdString();
}

/// A walk that waits for a page that never comes, with a temporary folder of its own; killed in the midst of
/// it.
class KilledRoad : public FaultyRoads {};

TEST_P(KilledRoad, LeavesNothingInTheTemporaryFolder) {
  const QString temporary = folder_->filePath(u"tmp"_s);
  ASSERT_TRUE(QDir().mkpath(temporary));
  QProcess process;
  start(process, u"p"_s, u"TMPDIR"_s, temporary);
  const QString picture = folder_->filePath(u"p/begun.png"_s);
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(picture); }, 60'000));
  if (GetParam().name == "Asked"s)
    process.terminate();
  else
    process.kill();
  ASSERT_TRUE(process.waitForFinished(60'000));
  EXPECT_EQ(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
  EXPECT_EQ(QDir(folder_->filePath(u"p"_s)).entryList({u".walk*"_s}, QDir::Dirs | QDir::Hidden).isEmpty(),
            GetParam().name == "Asked"s);
  QDir(folder_->filePath(u"p"_s)).removeRecursively();
}

const QString kEndless =
    u"start 7^0^PRD^\nwait form frmPropCmrcTL\nscreenshot begun\nwait text txtDesc \"x\"\n"_s;
INSTANTIATE_TEST_SUITE_P(Ends, KilledRoad,
                         ::testing::Values(Fault{"Asked", kEndless, {}}, Fault{"Killed", kEndless, {}}),
                         [](const auto& one) { return std::string(one.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Faults, FaultyRoads,
    ::testing::Values(
        Fault{"Text",
              u"start 7^0^PRD^\nwait \"form frmPropCmrcTL\"\nexpect text txtDesc \"x\"\n"_s,
              {u"a.road:3: expect text txtDesc \"x\""_s, u"expected: text of txtDesc \"x\""_s,
               u"found:    \"\""_s}},
        Fault{"Disabled", u"start 7^0^PRD^\nclick cmdSALVAR\n"_s, {u"a.road:2"_s, u"cmdSALVAR enabled"_s}},
        Fault{"Hidden", u"start 7^0^PRD^\nclick txtCodProduto\n"_s, {u"a.road:2"_s, u"hidden"_s}},
        Fault{"BoxWithoutAnswer",
              u"start 7^0^PRD^\nclick cmdALTERAR\nclick cmdSAIR\n"_s,
              {u"a.road:3"_s, u"Selecione Um Registro Para Executar esta Operação!"_s}},
        Fault{"BoxAtTheEnd", u"start 7^0^PRD^\nclick cmdALTERAR\n"_s, {u"Selecione Um Registro"_s}},
        Fault{"AnswerWithoutBox",
              u"start 7^0^PRD^\nanswer \"Sim\"\nexpect form frmPropCmrcTL\n"_s,
              {u"an answer that no box took"_s}},
        Fault{"AnswerOfAnotherBox",
              u"start 7^0^PRD^\nanswer \"Sim\"\nclick cmdALTERAR\n"_s,
              {u"a button Sim"_s, u"buttons \"OK\""_s}},
        Fault{"EndedEarly",
              u"start 7^0^PRD^\nclick cmdSAIR\nclick cmdINCLUIR\n"_s,
              {u"a.road:3"_s, u"a form"_s}},
        Fault{"RowThatIsNone",
              u"start 7^0^PRD^\nexpect cell Flex primeira 0 \"ID\"\n"_s,
              {u"a.road:2"_s, u"a number"_s, u"primeira"_s}},
        Fault{"NoStep", u"start 7^0^PRD^\nexpect form frmPropCmrcTL\njump\n"_s, {u"a.road:3: jump"_s}}),
    [](const auto& fault) { return std::string(fault.param.name); });

}  // namespace
