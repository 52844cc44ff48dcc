#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QString tool(const QString& name) { return QStringLiteral(ZARIM_BINARY_DIR "/tools/zarim_") + name; }

struct Outcome {
  int status = -1;
  QString told;
};

/// Walks roads against a sample company of their own.
class Roads : public ::testing::Test {
 protected:
  Roads() {
    QProcess install;
    install.start(tool(u"install"_s), {u"--to"_s, drive(), u"--fresh"_s, u"--day"_s, u"16/03/2026"_s});
    EXPECT_TRUE(install.waitForFinished(60'000));
    EXPECT_EQ(install.exitCode(), 0);
  }
  [[nodiscard]] QString drive() const { return folder_.filePath(u"drive"_s); }
  [[nodiscard]] QString pictures() const { return folder_.filePath(u"pictures"_s); }

  Outcome walk(const QString& steps) {
    QFile file(folder_.filePath(u"a.road"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(steps.toUtf8());
    file.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ZARIM_DRIVE_C"_s, drive());
    environment.insert(u"ZARIM_MAIL_FOLDER"_s, folder_.filePath(u"mail"_s));
    process.setProcessEnvironment(environment);
    process.start(tool(u"road"_s), {u"--pictures"_s, pictures(), file.fileName()});
    process.waitForFinished(180'000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
  }

  QTemporaryDir folder_;
};

}  // namespace

TEST_F(Roads, WalksThroughFormsBoxesAndRestarts) {
  QFile road(QStringLiteral(ZARIM_SOURCE_DIR "/tests/roads/each_step.road"));
  ASSERT_TRUE(road.open(QIODevice::ReadOnly));
  const Outcome outcome = walk(QString::fromUtf8(road.readAll()));
  EXPECT_EQ(outcome.told, QString());
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(QImage(pictures() + u"/idle.png"_s).size(), QSize(1024, 768));
}

TEST_F(Roads, ARuntimeErrorEndsTheProgramAndTheRoadGoesOn) {
  const Outcome outcome = walk(
      u"start 7^0^PRD^\n"
      "sql \"alter table tipo_even rename to tipo_outro\"\n"
      "click cmdINCLUIR\n"
      "answer \"OK\"\n"
      "click cboTipoEven\n"
      "key F4\n"
      "expect ended 1\n"
      "sql \"alter table tipo_outro rename to tipo_even\"\n"
      "expect sql \"select count(*) from usen where idusen = 7\" \"1\"\n"_s);
  EXPECT_EQ(outcome.told, QString());
  EXPECT_EQ(outcome.status, 0);
}

struct Fault {
  const char* name;
  QString steps;
  QStringList told;
};

class FaultyRoads : public Roads, public ::testing::WithParamInterface<Fault> {};

TEST_P(FaultyRoads, FailWithFileLineExpectedAndFound) {
  const Outcome outcome = walk(GetParam().steps);
  EXPECT_EQ(outcome.status, 1);
  for (const QString& part : GetParam().told) {
    EXPECT_TRUE(outcome.told.contains(part)) << part.toStdString() << " in " << outcome.told.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Faults, FaultyRoads,
    ::testing::Values(
        Fault{"Text",
              u"start 7^0^PRD^\n\nexpect text txtDesc \"x\"\n"_s,
              {u"a.road:3: expect text txtDesc \"x\""_s, u"expected: text of txtDesc \"x\""_s,
               u"found:    \"\""_s}},
        Fault{"Disabled", u"start 7^0^PRD^\nclick cmdSALVAR\n"_s, {u"a.road:2"_s, u"cmdSALVAR enabled"_s}},
        Fault{"Hidden", u"start 7^0^PRD^\nclick txtCodProduto\n"_s, {u"a.road:2"_s, u"hidden"_s}},
        Fault{
            "Missing", u"start 7^0^PRD^\nclick cmdNada\n"_s, {u"a.road:2"_s, u"cmdNada on frmPropCmrcTL"_s}},
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
        Fault{
            "BadSql", u"start 7^0^PRD^\nsql \"insert into nada values (1)\"\n"_s, {u"a.road:2"_s, u"nada"_s}},
        Fault{"NoStart", u"click cmdINCLUIR\n"_s, {u"a.road:1"_s}},
        Fault{"NoStep", u"start 7^0^PRD^\nexpect form frmPropCmrcTL\njump\n"_s, {u"a.road:3: jump"_s}},
        Fault{"NoExpectation", u"start 7^0^PRD^\nexpect weather \"fine\"\n"_s, {u"a.road:2"_s, u"weather"_s}},
        Fault{"OpenQuote", u"start 7^0^PRD^\ntype txtDesc \"x\n"_s, {u"a.road:2"_s, u"a closing quote"_s}}),
    [](const auto& fault) { return std::string(fault.param.name); });
