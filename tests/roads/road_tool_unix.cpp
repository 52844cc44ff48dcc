#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "support/printing.h"

using namespace Qt::StringLiterals;

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

  /// Starts a walk of the steps.
  static void start(QProcess& process) {
    QFile file(folder_->filePath(u"a.road"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(GetParam().steps.toUtf8());
    file.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ZARIM_DRIVE_C"_s, drive());
    environment.insert(u"ZARIM_MAIL_FOLDER"_s, folder_->filePath(u"mail"_s));
    process.setProcessEnvironment(environment);
    process.start(tool(u"road"_s), {u"--pictures"_s, folder_->filePath(u"pictures"_s), file.fileName()});
  }

  static inline std::unique_ptr<QTemporaryDir> folder_;
};

TEST_P(FaultyRoads, FailWithFileLineExpectedAndFound) {
  QProcess process;
  start(process);
  process.waitForFinished(180'000);
  EXPECT_EQ(process.exitCode(), 1);
  const QString output = QString::fromUtf8(process.readAllStandardError());
  for (const QString& part : GetParam().reported)
    EXPECT_TRUE(output.contains(part)) << part.toStdString() << " in " << output.toStdString();
}

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
