#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote/grids.h"
#include "screens/screen_case.h"

using namespace Qt::StringLiterals;
using support::click;
using support::type;

namespace {

/// The quote screen with an approved total, and the confirmation screen on top of it.
class Closing : public ScreenCase {
 protected:
  Closing() { clock(u"05/03/2024 10:30"_s); }

  static frmConfirmaPropCmrcTL& screen() { return forms::form<frmConfirmaPropCmrcTL>(); }

  /// Shows the screen for a quote with this approved total, lets a user act on it, and leaves it.
  void closingOf(const QString& approved, const std::function<void(frmConfirmaPropCmrcTL&)>& act) {
    quote().showForm();
    quote().lblTotaAprov->setText(approved);
    screen().RecalculaLiquido();
    script.modal([&](forms::Form& form) {
      act(screen());
      form.hide();
    });
    forms::guarded([] { screen().showModal(); });
  }

  /// Data rows of the instalments, "30 33,33 04/04/2024" each; they are numbered from 1.
  static QStringList instalments() {
    using namespace grades::parcela;
    QStringList rows;
    const forms::GridModel& grid = screen().Flex2->grid();
    for (int row = 1; row < grid.rows(); ++row) {
      EXPECT_EQ(grid.text(row, Parcela), QString::number(row));
      rows << grid.text(row, Dias) + u' ' + grid.text(row, Valor) + u' ' + grid.text(row, Vencimento);
    }
    return rows;
  }

  /// Chooses a condition by its id as a user does.
  static void choose(const QString& condition) {
    support::type(screen().txtIdCondPg, condition);
    support::click(screen().cmdPesquisa_CondPg);
  }
};

struct Discount {
  QString gross;
  QStringList typed;  ///< "$" and money, "%" and percent
  QString money, percent, net;
};

/// A condition of its own days and number of instalments, and what it makes of a net value.
struct Condition {
  QString net, down;
  int parts;
  QString days, rows;
};

}  // namespace

TEST_F(Closing, DiscountBothWays) {
  const Discount cases[] = {
      {u"100"_s, {u"$10"_s}, u"10,00"_s, u"10,0000"_s, u"90,00"_s},
      {u"100"_s, {u"%12.5"_s}, u"12,50"_s, u"12,5000"_s, u"87,50"_s},
      {u"1234,56"_s, {u"%7,77777"_s}, u"96,02"_s, u"7,7778"_s, u"1138,54"_s},
      // The percent has four decimals only: the money typed gives way to what it makes.
      {u"30000"_s, {u"$100"_s}, u"99,99"_s, u"0,3333"_s, u"29900,01"_s},
      {u"100"_s, {u"$100"_s}, u"100,00"_s, u"100,0000"_s, u"0,00"_s},
      // Money put to nothing comes back from the percent; only a percent of nothing ends a discount.
      {u"100"_s, {u"$10"_s, u"$0"_s}, u"10,00"_s, u"10,0000"_s, u"90,00"_s},
      {u"100"_s, {u"$10"_s, u"%0"_s}, u"0,00"_s, u"0,0000"_s, u"100,00"_s},
      {u"100"_s, {u"$10"_s, u"%"_s}, u"0,00"_s, u""_s, u"100,00"_s},
      {u"100"_s, {u"%150"_s}, u"150,00"_s, u"150,0000"_s, u"-50,00"_s},
      {u"0"_s, {u"%10"_s}, u"0,00"_s, u"10,0000"_s, u"0,00"_s},
  };
  for (const Discount& item : cases) {
    screen().LimpaFechamento();
    closingOf(item.gross, [&](frmConfirmaPropCmrcTL& form) {
      for (const QString& typed : item.typed) {
        type(typed.startsWith(u'$') ? form.txtDescontoGeral : form.txtPercDesc, typed.mid(1));
        support::focus(form.txtValorSinal);
      }
      EXPECT_EQ(form.txtDescontoGeral->text(), item.money);
      EXPECT_EQ(form.txtPercDesc->text(), item.percent);
      EXPECT_EQ(form.lblVrLiqTOT->text(), item.net);
    });
  }
}

TEST_F(Closing, InstalmentsOfEachCondition) {
  const QString months = u"30 60 90"_s;
  const Condition cases[] = {
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
      script.box(u"Deseja Realmente Desfazer o Calculo de Condições de Pagamento?"_s, forms::Answer::Yes);
      click(form.cmdDesfazer);
    });
  }
}

TEST_F(Closing, NoInstalmentsToDivideByEndsTheProgram) {
  sql(u"insert into cond_pgto (idcond_pgto, qtde_parc) values (70, 0)"_s);
  sql(u"insert into cond_pgto_deta values (70, 1, 10)"_s);
  closingOf(u"100"_s, [this](frmConfirmaPropCmrcTL& form) {
    choose(u"70"_s);
    script.box(u"Erro em tempo de execução '11':\n\nDivisão por zero"_s).expectEnd(1);
    click(form.cmdConfirmaCondPg);
  });
}
