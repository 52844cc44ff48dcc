#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/files/paths.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;
using forms::Answer;

namespace {

constexpr char16_t kNone[] = u"Selecione Um Registro Para Executar esta Operação!";
constexpr char16_t kImpossible[] = u"Impossibilidade de Executar o Comando!\n";

struct Refusal {
  const char* button;
  const char16_t* change;  ///< of the stored quote; nullptr: no quote on the screen
  const char16_t* words;
  bool clears;
};

class Refused : public QuoteCase, public ::testing::WithParamInterface<Refusal> {};

TEST_P(Refused, ByTheStateOnTheScreen) {
  start();
  if (GetParam().change != nullptr) {
    store(3, QString::fromUtf16(GetParam().change));
    load(3);
  }
  const QString words = QString::fromUtf16(GetParam().words);
  script.box(words == QString::fromUtf16(kNone) ? words : QString::fromUtf16(kImpossible) + words);
  writes();
  support::click(screen->findChild<QPushButton*>(QString::fromLatin1(GetParam().button)));
  EXPECT_EQ(screen->txtRowId->text().isEmpty(), GetParam().clears);
  EXPECT_EQ(writes(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Refused,
    ::testing::Values(Refusal{"cmdEXCLUIR", nullptr, kNone, true},
                      Refusal{"cmdReativar", nullptr, kNone, true},
                      Refusal{"cmdFechar", nullptr, kNone, true}, Refusal{"cmdReabrir", nullptr, kNone, true},
                      Refusal{"cmdEXCLUIR", u"data_desa='20240101', data_fech='20240101'",
                              u"O Registro Já está como Desativado.", true},
                      Refusal{"cmdEXCLUIR", u"data_fech='20240101'", u"O Registro Já Está Fechado!", true},
                      Refusal{"cmdReativar", u"show_excl='E'", u"O Registro Já está como Ativo.", true},
                      Refusal{"cmdReativar", u"data_desa='20240101', data_fech='20240101'",
                              u"O Registro Já Está Fechado!", true},
                      Refusal{"cmdFechar", u"data_desa='20240101'", u"O Registro Está Desativado!", true},
                      Refusal{"cmdFechar", u"data_fech='20240101'", u"O Registro Já Está Fechado!", true},
                      Refusal{"cmdReabrir", u"data_desa='20240101', data_fech='20240101'",
                              u"O Registro Está Desativado!", true},
                      Refusal{"cmdReabrir", u"show_excl='E'", u"O Registro não está Fechado!", false}));

class States : public QuoteCase {
 protected:
  void open(const QString& changes = {}) {
    store(3, changes);
    start();
    load(3);
    writes();
  }
};

TEST_F(States, DeactivatingMarksQuoteLinesAndHonoreesAndReactivatingTakesTheMarkAway) {
  open();
  script.box(u"Deseja realmente Desativar?"_s, Answer::No);
  support::click(screen->cmdEXCLUIR);
  EXPECT_EQ(writes(), QStringList());
  EXPECT_EQ(screen->txtRowId->text(), QString());
  load(3);
  script.box(u"Deseja realmente Desativar?"_s, Answer::Yes)
      .box(u"Registro Desativado com sucesso!\nOrçamento nr.3"_s);
  support::click(screen->cmdEXCLUIR);
  EXPECT_EQ(
      writes(),
      (QStringList{u"BEGIN"_s,
                   u"UPDATE prop_cmrc SET user_desa='7', data_desa='20240315' WHERE (idprop_cmrc=3)"_s,
                   u"UPDATE prop_cmrc_deta SET data_desa='20240315' WHERE (idprop_cmrc=3)"_s,
                   u"UPDATE prop_cmrc_homg SET data_desa='20240315' WHERE (idprop_cmrc=3)"_s, u"COMMIT"_s}));
  load(3);
  EXPECT_EQ(screen->lblDTDesativa->text(), u"15/03/2024"_s);
  writes();
  script.box(u"Deseja realmente Reativar Este Registro ?"_s, Answer::Yes);
  support::click(screen->cmdReativar);
  EXPECT_EQ(
      writes(),
      (QStringList{u"BEGIN"_s, u"UPDATE prop_cmrc SET user_desa=null, data_desa=null WHERE (idprop_cmrc=3)"_s,
                   u"UPDATE prop_cmrc_deta SET data_desa=null WHERE (idprop_cmrc=3)"_s,
                   u"UPDATE prop_cmrc_homg SET data_desa=null WHERE (idprop_cmrc=3)"_s, u"COMMIT"_s}));
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

TEST_F(States, ClosingWantsAnApprovedLineAndAYes) {
  open();
  script.box(u"Deseja realmente Fechar?"_s, Answer::No);
  support::click(screen->cmdFechar);
  EXPECT_EQ(screen->txtRowId->text(), QString());
  sql(u"UPDATE prop_cmrc_deta SET data_aprov = null"_s);
  load(3);
  script.box(u"Impossibilidade de Executar o Comando!\nNão há itens aprovados!"_s);
  support::click(screen->cmdFechar);
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
  EXPECT_EQ(screen->txtRowId->text(), QString());
  EXPECT_EQ(writes(), QStringList());
}

TEST_F(States, TermsOfAnOpenQuoteAreATextThoseOfAClosedOneAreLookedAt) {
  open();
  support::click(screen->cmdCondPgto);
  EXPECT_TRUE(screen->frameCondPgto->isVisible());
  EXPECT_EQ(screen->focusWidget(), screen->txtCondPagto);
  support::click(screen->cmdFecharFrameCondPgto);
  sql(u"UPDATE prop_cmrc SET data_fech = '20240310'"_s);
  load(3);
  script.modal([](forms::Form& form) {
    auto& terms = static_cast<frmConfirmaPropCmrcTL&>(form);
    EXPECT_EQ(terms.FlagCondPgto, u"S"_s);
    EXPECT_FALSE(terms.Frame1->isEnabled() || terms.Frame7->isEnabled());
    EXPECT_EQ(terms.lblVrBrutoTOT->text(), u"57,75"_s);
    support::click(terms.cmdConfirmar);
  });
  support::click(screen->cmdCondPgto);
  EXPECT_TRUE(forms::form<frmConfirmaPropCmrcTL>().Frame1->isEnabled());
}

}  // namespace
