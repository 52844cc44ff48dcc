#include "closing_case.h"

using namespace Qt::StringLiterals;
using support::type;

namespace {

struct Case {
  QString gross;
  QStringList typed;  ///< "$" and money, "%" and percent
  QString money, percent, net;
};

}  // namespace

TEST_F(Closing, DiscountBothWays) {
  const Case cases[] = {
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
  for (const Case& item : cases) {
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

TEST_F(Closing, DiscountAboveTheGrossSendsTheUserToTheMoneyBox) {
  closingOf(u"100"_s, [this](frmConfirmaPropCmrcTL& form) {
    for (QLineEdit* left : {form.txtDescontoGeral, form.txtPercDesc}) {
      support::focus(left);
      form.txtDescontoGeral->setText(u"100,01"_s);
      form.txtPercDesc->setText(u"1"_s);
      script_.box(u"O desconto nao pode ser maior que o valor bruto!"_s);
      support::focus(form.txtValorSinal);
      EXPECT_EQ(form.focusWidget(), form.txtDescontoGeral);
      EXPECT_EQ(form.txtPercDesc->text(), u"1"_s);
      form.txtDescontoGeral->setText(u"0"_s);
    }
  });
}

TEST_F(Closing, StartsFromTheApprovedTotal) {
  quote().lblTotaAprov->setText(u"250"_s);
  forms::registry::find(u"frmConfirmaPropCmrcTL"_s)->unload();
  EXPECT_EQ(screen().lblVrBrutoTOT->text(), u"250,00"_s);
  EXPECT_EQ(screen().lblVrLiqTOT->text(), u"250,00"_s);
  EXPECT_EQ(screen().mskDataBase->boxText(), u"05/03/2024"_s);
  forms::setControlText(screen().txtObservacaoPedido, u"á"_s.repeated(300));
  EXPECT_EQ(forms::controlText(screen().txtObservacaoPedido), u"á"_s.repeated(250));
}
