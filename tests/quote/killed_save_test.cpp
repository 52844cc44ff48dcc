#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QFile>
#include <csignal>
#include <functional>

#include "platform/forms/boxes.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "support/company.h"

using namespace Qt::StringLiterals;

namespace {

// A process that is killed in the middle of a save leaves the quote as it was, or the new one, whole: each
// run is a child process that ends at one statement, or at one instant.
class KilledSave : public support::Company {
 protected:
  KilledSave() {
    support::fillBasics(databasePath());
    reiniciaContexto();  // no connection of ours goes over to a child
  }

  static void addLine(const QString& remark, const QString& quantity) {
    auto& screen = forms::form<frmPropCmrcTL>();
    const int line = screen.Flex->grid().rows();
    screen.Flex->grid().addItem(
        u"101\tPROD\tCX-100\tCaixa branca\t12,50\t0,00\t12,50\t%1\t25,00\t\tUN\t%2\t"_s.arg(quantity,
                                                                                            remark));
    for (const auto& material : {u"101"_s, u"104"_s})
      screen.FlexMonta.addItem(u"%1\tX\tMaterial\t%2\tUN\t1\t2,50\t5,00\tFECHAMENTO\t%3\t4\t%4\t"_s.arg(
          material, quantity, remark, QString::number(line)));
  }

  static void newQuote() {
    auto& screen = forms::form<frmPropCmrcTL>();
    screen.cmdINCLUIR->click();
    screen.cboRespAtendimento->setText(u"MARIA"_s);
    screen.txtDesc->setText(u"PRIMEIRA"_s);
    addLine(u"AZUL"_s, u"2"_s);
    addLine(u"BRANCA"_s, u"3"_s);
    screen.FlexHomg->grid().addItem(u"\tANA\t"_s);
  }

  static void changedQuote() {
    auto& screen = forms::form<frmPropCmrcTL>();
    screen.txtCodigo->setText(u"1"_s);
    screen.cmdPesquisar_PropCmrc->click();
    screen.cmdALTERAR->click();
    screen.txtDesc->setText(u"SEGUNDA"_s);
    screen.MontaGridItens();
    screen.MontaGridMontagem();
    screen.FlexHomg->grid().removeItem(1);
    addLine(u"VERDE"_s, u"5"_s);
    addLine(u"ROSA"_s, u"7"_s);
  }

  enum class At { Statement, Instant };
  /// Runs the save in a child, killed at a statement (its number) or at an instant (microseconds from the
  /// start of the save). Whether it was killed.
  static bool saveKilled(const std::function<void()>& fill, At at, int when) {
    const pid_t child = fork();
    if (child == 0) {
      forms::setBoxAnswerer([](const forms::Box&) { return forms::Answer::Ok; });
      contexto().LinhaComando = u"7^0^PRD^"_s;
      fill();
      int seen = 0;
      contexto().Conexao.setListener([&](const QString&) {
        if (at == At::Statement && ++seen == when) kill(getpid(), SIGKILL);
      });
      std::signal(SIGALRM, SIG_DFL);
      const itimerval instant{{0, 0}, {0, when}};
      if (at == At::Instant) setitimer(ITIMER_REAL, &instant, nullptr);
      forms::form<frmPropCmrcTL>().cmdSALVAR->click();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status);
  }

  /// All that is stored of the quote, as one text.
  QString stored() {
    return ask(
        u"SELECT ifnull((SELECT group_concat(prop_cmrc_desc) FROM prop_cmrc), '-') || '|' || "
        "ifnull((SELECT group_concat(d.obse_prop_cmrc_deta || ' ' || m.idprod || ' ' || m.qtde) FROM "
        "prop_cmrc_deta d LEFT JOIN prop_cmrc_deta_monta m ON m.idprop_cmrc_deta = d.idprop_cmrc_deta), '-') "
        "|| '|' || (SELECT count(*) FROM prop_cmrc_deta_monta) || '|' || "
        "ifnull((SELECT group_concat(nome_homg) FROM prop_cmrc_homg), '-')"_s);
  }

  void keep() {
    QFile::remove(databasePath() + u".kept"_s);
    QFile::copy(databasePath(), databasePath() + u".kept"_s);
  }
  void restore() {
    for (const auto& suffix : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(databasePath() + suffix);
    QFile::copy(databasePath() + u".kept"_s, databasePath());
  }

  void killsEverywhere(const std::function<void()>& fill, const QString& before, const QString& after) {
    keep();
    int statement = 1;
    for (; saveKilled(fill, At::Statement, statement); ++statement) {
      EXPECT_EQ(stored(), before) << "killed at statement " << statement;
      EXPECT_EQ(ask(u"PRAGMA integrity_check"_s), u"ok");
      restore();
    }
    EXPECT_GT(statement, 15) << "a save runs a statement for each row";
    EXPECT_EQ(stored(), after);
    restore();
    int killed = 0;
    for (int instant = 200; instant <= 12'000; instant += 590) {
      killed += saveKilled(fill, At::Instant, instant) ? 1 : 0;
      const QString now = stored();
      EXPECT_TRUE(now == before || now == after) << now.toStdString();
      restore();
    }
    EXPECT_GT(killed, 0);
  }
};

const QString kFirst = u"PRIMEIRA|AZUL 101 2,AZUL 104 2,BRANCA 101 3,BRANCA 104 3|4|ANA"_s;
const QString kSecond = u"SEGUNDA|VERDE 101 5,VERDE 104 5,ROSA 101 7,ROSA 104 7|4|-"_s;

TEST_F(KilledSave, ANewQuoteIsStoredWholeOrNotAtAll) { killsEverywhere(newQuote, u"-|-|0|-"_s, kFirst); }

TEST_F(KilledSave, AChangedQuoteIsTheOldOneOrTheNewOneWhole) {
  ASSERT_FALSE(saveKilled(newQuote, At::Statement, 0));
  ASSERT_EQ(stored(), kFirst);
  killsEverywhere(changedQuote, kFirst, kSecond);
}

}  // namespace
