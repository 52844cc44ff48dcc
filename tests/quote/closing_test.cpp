#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/files/paths.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;
using forms::Answer;

namespace {

class States : public QuoteCase {
 protected:
  void open(const QString& changes = {}) {
    store(3, changes);
    start();
    load(3);
    writes();
  }
  /// What ran since the last call is one transaction with a change of each table of quote 3.
  void expectChanges(const QStringList& changes) {
    QStringList expected{u"BEGIN"_s};
    for (const QString& change : changes) expected << u"UPDATE "_s + change + u" WHERE (idprop_cmrc=3)"_s;
    EXPECT_EQ(writes(), expected << u"COMMIT"_s);
  }
};

TEST_F(States, OfAQuoteThatIsDeactivatedAndClosedAreLookedAtInTheirOrder) {
  open(u"data_desa='20240101', data_fech='20240101'"_s);
  const std::pair<QPushButton*, QString> refusals[] = {
      {screen->cmdEXCLUIR, u"O Registro Já está como Desativado."_s},
      {screen->cmdReativar, u"O Registro Já Está Fechado!"_s},
      {screen->cmdFechar, u"O Registro Está Desativado!"_s},
      {screen->cmdReabrir, u"O Registro Está Desativado!"_s}};
  for (const auto& [button, reason] : refusals) {
    load(3);
    script.box(u"Impossibilidade de Executar o Comando!\n"_s + reason);
    support::click(button);
    EXPECT_EQ(screen->txtRowId->text(), QString());
  }
  EXPECT_EQ(writes(), QStringList());
}

TEST_F(States, DeactivatingMarksQuoteLinesAndHonoreesAndReactivatingTakesTheMarkAway) {
  open();
  script.box(u"Deseja realmente Desativar?"_s, Answer::Yes)
      .box(u"Registro Desativado com sucesso!\nOrçamento nr.3"_s);
  support::click(screen->cmdEXCLUIR);
  expectChanges({u"prop_cmrc SET user_desa='7', data_desa='20240315'"_s,
                 u"prop_cmrc_deta SET data_desa='20240315'"_s, u"prop_cmrc_homg SET data_desa='20240315'"_s});
  load(3);
  EXPECT_EQ(screen->lblDTDesativa->text(), u"15/03/2024"_s);
  writes();
  script.box(u"Deseja realmente Reativar Este Registro ?"_s, Answer::Yes);
  support::click(screen->cmdReativar);
  expectChanges({u"prop_cmrc SET user_desa=null, data_desa=null"_s, u"prop_cmrc_deta SET data_desa=null"_s,
                 u"prop_cmrc_homg SET data_desa=null"_s});
  EXPECT_EQ(screen->txtRowId->text(), QString());
}

TEST_F(States, ClosingConfirmsTheTermsMarksTheQuoteWritesTheDetailAndSendsThreeNotices) {
  files::write(u"c:\\zarim\\documentos\\deta_orca_000003.html"_s, "velho");
  open();
  script.box(u"Deseja realmente Fechar?"_s, Answer::Yes)
      .modal([](forms::Form& form) {
        auto& terms = static_cast<frmConfirmaPropCmrcTL&>(form);
        EXPECT_EQ(terms.lblVrBrutoTOT->text(), u"57,75"_s);
        EXPECT_EQ(forms::controlText(terms.txtDescontoGeral), u"1,50"_s);
        EXPECT_EQ(forms::controlText(terms.txtPercDesc), u"2,00"_s);
        EXPECT_EQ(terms.lblVrLiqTOT->text(), u"56,25"_s);
        form.hideForm();
      })
      .box(u"Orçamento Fechado com sucesso!\nOrçamento nr.3"_s);
  static_cast<void>(statements());
  support::click(screen->cmdFechar);
  const QStringList ran = statements();
  qsizetype last = -1;
  for (const auto& step :
       {u"BEGIN"_s, u"UPDATE prop_cmrc SET user_fech='7', data_fech='20240315 10:30' WHERE (idprop_cmrc=3)"_s,
        u"COMMIT"_s, u"'PROJETACOMPRA'"_s, u"FROM PROP_CMRC"_s, u"'AVISOORCAFECHADO'"_s,
        u"'AVISOORCAFECHADOFULL'"_s}) {
    const auto at = std::find_if(ran.begin() + last + 1, ran.end(), [&step](const QString& one) {
      return one.contains(step, Qt::CaseInsensitive);
    });
    ASSERT_NE(at, ran.end()) << step.toStdString();
    last = at - ran.begin();
  }
  const QByteArray detail = files::readAll(u"c:\\zarim\\documentos\\deta_orca_000003.html"_s);
  EXPECT_FALSE(detail.startsWith("velho"));
  EXPECT_GT(detail.size(), 100);
  EXPECT_EQ(screen->txtRowId->text(), QString());
}

TEST_F(States, AFailingNoticeKeepsTheQuoteClosedAndTheOthersAreTried) {
  sql(u"UPDATE empr SET emai_serv = '127.0.0.1:1'"_s);
  sql(u"INSERT INTO work_even (idwork_even, codi_work_even) VALUES (1, 'PROJETACOMPRA')"_s);
  sql(u"INSERT INTO work_even_usen (idwork_even, idusen) VALUES (1, 7)"_s);
  open();
  QStringList boxes;
  forms::setBoxAnswerer([&boxes](const forms::Box& box) {
    boxes << box.text;
    return Answer::Yes;
  });
  script.modal([](forms::Form& form) { form.hideForm(); }).expectEnd(1);
  support::click(screen->cmdFechar);
  ASSERT_EQ(boxes.size(), 2);
  EXPECT_TRUE(boxes[1].startsWith(u"Erro em tempo de execução"_s));
  EXPECT_EQ(ask(u"SELECT data_fech FROM prop_cmrc WHERE idprop_cmrc = 3"_s), u"15/03/2024 10:30:00"_s);
  EXPECT_TRUE(files::exists(u"c:\\zarim\\documentos\\deta_orca_000003.html"_s));
  EXPECT_TRUE(statements().join(u' ').contains(u"AVISOORCAFECHADOFULL"_s));
}

}  // namespace
