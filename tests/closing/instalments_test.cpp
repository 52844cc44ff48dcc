#include "closing_case.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

/// A condition of its own days and number of instalments, and what it makes of a net value.
struct Case {
  QString net, down;
  int parts;
  QString days, rows;
};

}  // namespace

TEST_F(Closing, InstalmentsOfEachCondition) {
  const QString months = u"30 60 90"_s;
  const Case cases[] = {
      {u"100"_s, {}, 3, months, u"30 33,33 04/04/2024|60 33,33 04/05/2024|90 33,34 03/06/2024"_s},
      {u"100"_s, u"20"_s, 3, months, u"30 20,00 04/04/2024|60 40,00 04/05/2024|90 40,00 03/06/2024"_s},
      {u"100"_s, u"0,01"_s, 3, months, u"30 0,01 04/04/2024|60 50,00 04/05/2024|90 49,99 03/06/2024"_s},
      {u"100"_s, u"100"_s, 3, months, u"30 100,00 04/04/2024"_s},
      {u"100"_s, u"150,50"_s, 3, months, u"30 100,00 04/04/2024"_s},
      {u"100"_s, u"20"_s, 1, u"28"_s, u"28 100,00 02/04/2024"_s},
      {u"99,99"_s, {}, 1, u"0"_s, u"0 99,99 05/03/2024"_s},
      // Fewer days than instalments: the others fall on the base date.
      {u"10"_s, {}, 3, u"366"_s, u"366 3,33 06/03/2025|0 3,33 05/03/2024|0 3,34 05/03/2024"_s},
      // Rounded up twice, the third gives back what is too much.
      {u"0,05"_s, {}, 3, u"1 2 3"_s, u"1 0,02 06/03/2024|2 0,02 07/03/2024|3 0,01 08/03/2024"_s},
      {u"1234567,89"_s, {}, 2, u"7 14"_s, u"7 617283,95 12/03/2024|14 617283,94 19/03/2024"_s},
      {u"100"_s, u"30"_s, 0, u"10"_s, u"10 100,00 15/03/2024"_s},
  };
  int id = 70;
  for (const auto& [net, down, parts, days, rows] : cases) {
    const QString condition = QString::number(++id);
    sql(u"insert into cond_pgto (idcond_pgto, qtde_parc) values (%1, %2)"_s.arg(condition).arg(parts));
    const QStringList all = days.split(u' ');
    for (int part = 1; part <= all.size(); ++part)
      sql(u"insert into cond_pgto_deta values (%1, %2, %3)"_s.arg(condition).arg(part).arg(all[part - 1]));
    closingOf(net, [&, this, sinal = down, expected = rows](frmConfirmaPropCmrcTL& form) {
      choose(condition);
      type(form.txtValorSinal, sinal);
      click(form.cmdConfirmaCondPg);
      EXPECT_EQ(instalments().join(u'|'), expected);
      script_.box(u"Deseja Realmente Desfazer o Calculo de Condições de Pagamento?"_s, forms::Answer::Yes);
      click(form.cmdDesfazer);
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

TEST_F(Closing, ADayAloneCountsFromToday) {
  closingOf(u"10"_s, [](frmConfirmaPropCmrcTL& form) {
    type(form.mskDataBase, u"15"_s);
    support::focus(form.txtValorSinal);
    EXPECT_EQ(form.mskDataBase->boxText(), u"20/03/2024"_s);
  });
}
