#include "closing_case.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

/// A condition of its own number of instalments and days, and what it makes of a net value.
struct Case {
  QString net;
  QString down;
  int parts;
  QList<int> days;
  QStringList rows;
};

}  // namespace

TEST_F(Closing, InstalmentsOfEachCondition) {
  const Case cases[] = {
      {u"100"_s,
       {},
       3,
       {30, 60, 90},
       {u"1 30 33,33 04/04/2024"_s, u"2 60 33,33 04/05/2024"_s, u"3 90 33,34 03/06/2024"_s}},
      {u"100"_s,
       u"20"_s,
       3,
       {30, 60, 90},
       {u"1 30 20,00 04/04/2024"_s, u"2 60 40,00 04/05/2024"_s, u"3 90 40,00 03/06/2024"_s}},
      {u"100"_s,
       u"0,01"_s,
       3,
       {30, 60, 90},
       {u"1 30 0,01 04/04/2024"_s, u"2 60 50,00 04/05/2024"_s, u"3 90 49,99 03/06/2024"_s}},
      {u"100"_s, u"100"_s, 3, {30, 60, 90}, {u"1 30 100,00 04/04/2024"_s}},
      {u"100"_s, u"150,50"_s, 3, {30, 60, 90}, {u"1 30 100,00 04/04/2024"_s}},
      {u"100"_s, u"20"_s, 1, {28}, {u"1 28 100,00 02/04/2024"_s}},
      {u"99,99"_s, {}, 1, {0}, {u"1 0 99,99 05/03/2024"_s}},
      // Fewer days than instalments: the others fall on the base date.
      {u"10"_s,
       {},
       3,
       {366},
       {u"1 366 3,33 06/03/2025"_s, u"2 0 3,33 05/03/2024"_s, u"3 0 3,34 05/03/2024"_s}},
      // Rounded up five times, the sixth gives back what is too much.
      {u"0,03"_s,
       {},
       6,
       {1, 2, 3, 4, 5, 6},
       {u"1 1 0,01 06/03/2024"_s, u"2 2 0,01 07/03/2024"_s, u"3 3 0,01 08/03/2024"_s,
        u"4 4 0,01 09/03/2024"_s, u"5 5 0,01 10/03/2024"_s, u"6 6 -0,02 11/03/2024"_s}},
      {u"1234567,89"_s, {}, 2, {7, 14}, {u"1 7 617283,95 12/03/2024"_s, u"2 14 617283,94 19/03/2024"_s}},
      {u"100"_s, u"30"_s, 0, {10}, {u"1 10 100,00 15/03/2024"_s}},
  };
  int id = 70;
  for (const auto& [net, down, parts, days, rows] : cases) {
    const QString condition = QString::number(++id);
    sql(u"insert into cond_pgto (idcond_pgto, qtde_parc) values (%1, %2)"_s.arg(condition).arg(parts));
    for (int part = 1; part <= days.size(); ++part)
      sql(u"insert into cond_pgto_deta values (%1, %2, %3)"_s.arg(condition).arg(part).arg(days[part - 1]));
    closingOf(net, [&, this](frmConfirmaPropCmrcTL& form) {
      choose(condition);
      type(form.txtValorSinal, down);
      click(form.cmdConfirmaCondPg);
      EXPECT_EQ(instalments(), rows) << net.toStdString() << " down " << down.toStdString();
      script_.box(u"Deseja Realmente Desfazer o Calculo de Condições de Pagamento?"_s, forms::Answer::Yes);
      click(form.cmdDesfazer);
      EXPECT_TRUE(instalments().isEmpty());
    });
  }
}

TEST_F(Closing, NoInstalmentsToDivideByEndsTheProgram) {
  sql(u"insert into cond_pgto (idcond_pgto, qtde_parc) values (70, 0)"_s);
  sql(u"insert into cond_pgto_deta values (70, 1, 10)"_s);
  closingOf(u"100"_s, [this](frmConfirmaPropCmrcTL& form) {
    choose(u"70"_s);
    script_.box(u"Erro em tempo de execução '11':\n\nDivisão por zero"_s).expectEnd(1);
    click(form.cmdConfirmaCondPg);
  });
}

TEST_F(Closing, ComputedTermsAreFrozenUntilUndone) {
  closingOf(u"90"_s, [this](frmConfirmaPropCmrcTL& form) {
    const auto expect = [&form](bool frozen, forms::ColorNumber ground) {
      EXPECT_NE(form.cmdConfirmaCondPg->isEnabled(), frozen);
      EXPECT_EQ(form.cmdDesfazer->isEnabled(), frozen);
      EXPECT_EQ(forms::isLocked(form.txtIdCondPg), frozen);
      EXPECT_NE(form.mskDataBase->isEnabled(), frozen);
      EXPECT_EQ(forms::backColor(form.txtIdCondPg), ground);
      EXPECT_EQ(forms::backColor(form.mskDataBase), ground);
    };
    choose(u"41"_s);
    click(form.cmdConfirmaCondPg);
    expect(true, 0x80000000);
    script_.box(u"Deseja Realmente Desfazer o Calculo de Condições de Pagamento?"_s, forms::Answer::Yes);
    click(form.cmdDesfazer);
    expect(false, 0xFFFFFF);
  });
}

TEST_F(Closing, NetValueAndBaseDateComeFirst) {
  closingOf(u"0"_s, [this](frmConfirmaPropCmrcTL& form) {
    form.mskDataBase->setBoxText(QString());
    script_.box(u"O Valor Liquido Ainda está zerado. Impossível Processar!"_s);
    click(form.cmdConfirmaCondPg);
  });
  closingOf(u"10"_s, [this](frmConfirmaPropCmrcTL& form) {
    script_.box(u"Informe Data Base!"_s);
    click(form.cmdConfirmaCondPg);
    EXPECT_EQ(form.focusWidget(), form.mskDataBase);
    // A day alone counts from today.
    type(form.mskDataBase, u"15"_s);
    support::focus(form.txtValorSinal);
    EXPECT_EQ(form.mskDataBase->boxText(), u"20/03/2024"_s);
  });
}
