#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t kHowTo[] =
    u"Para usar o campo desconto:\nEm valores - Basta informar o valor do desconto;\n"
    u"Em percentual - Basta informar o valor em percentual e acrescentar o sinal % no final do valor";

/// The panel that users don't see, shown, with the origin chosen.
class Panel : public QuoteCase {
 protected:
  void open() {
    start();
    support::click(screen->cmdINCLUIR);
    for (QWidget* hidden : std::initializer_list<QWidget*>{screen->Frame3, screen->opPROD, screen->opPROT})
      hidden->show();
    support::settle();
  }
  void look(QRadioButton* origin, const QString& code) {
    origin->setChecked(true);
    screen->txtCodProduto->setText(code);
    support::click(screen->cmdPesquisar_ProdProt);
  }
};

TEST_F(Panel, PricesFollowTheRateAndThePromotion) {
  sql(u"INSERT INTO camb (idmoed, data_camb, valo_camb, data_desa) VALUES (3, '20240310', '9', '20240311')"_s);
  open();
  // Changes of a product of 200,00: gross, discount, net.
  const std::pair<QString, QString> cases[] = {
      {u"perc_dect=null"_s, u"200,00 0,00 200,00"_s},
      {u"perc_dect='10'"_s, u"200,00 20,00 180,00"_s},
      {u"perc_dect='10', data_limi_prom='20240315'"_s, u"200,00 20,00 180,00"_s},
      {u"perc_dect='10', data_limi_prom='20240314'"_s, u"200,00 0,00 200,00"_s},
      {u"perc_dect=null, data_limi_prom='20240314'"_s, u"200,00 0,00 200,00"_s},
      {u"data_limi_prom=null, idmoed=2"_s, u"1040,00 0,00 1040,00"_s},
      {u"idmoed=3"_s, u"200,00 0,00 200,00"_s}};
  for (const auto& [change, prices] : cases) {
    sql(u"UPDATE prod SET valo_veds = '200', %1 WHERE idprod = 101"_s.arg(change));
    look(screen->opPROD, u"cx-100"_s);
    EXPECT_EQ(screen->lblVrBrutoProt->text() + u' ' + screen->txtDesconto->text() + u' ' +
                  screen->lblVrLiqProt->text(),
              prices)
        << change.toStdString();
    EXPECT_EQ(screen->focusWidget(), screen->txtQuantidade);
  }
  sql(u"UPDATE prod SET data_limi_prom='20240320' WHERE idprod = 101"_s);
  script.box(u"Erro em tempo de execução '94':\n\nUso inválido de Null"_s).expectEnd(1);
  look(screen->opPROD, u"CX-100"_s);
}

TEST_F(Panel, APrototypeKeepsTheDiscountAndTheUnitOfTheLastLookup) {
  sql(u"UPDATE prod SET perc_dect='40' WHERE idprod = 101"_s);
  sql(u"UPDATE prot SET idprod=0 WHERE idprot = 201"_s);
  open();
  look(screen->opPROD, u"CX-100"_s);
  look(screen->opPROT, u"201"_s);
  EXPECT_EQ(screen->txtDesconto->text(), u"5,00"_s);
  EXPECT_EQ(screen->lblVrLiqProt->text(), u"30,00"_s);
  screen->txtQuantidade->setText(u"2,5"_s);
  support::click(screen->cmdIncluir_ProdProt);
  EXPECT_EQ(cells(screen->Flex->grid(), 1), u"201;PROT;201;Caixa lembrança;35,00;5,00;30,00;3;90,00;;UN;");
  EXPECT_EQ(screen->txtCodProduto->text() + screen->txtQuantidade->text(), u"0"_s);
  EXPECT_EQ(screen->lblTotaGeral->text(), u"0,00"_s);
}

TEST_F(Panel, TheDiscountIsMoneyOrAPercentageAndNeverAboveThePrice) {
  open();
  screen->lblVrBrutoProt->setText(u"200,00"_s);
  script.box(QString::fromUtf16(kHowTo));
  support::type(screen->txtDesconto, u"10%"_s);
  support::focus(screen->txtQuantidade);
  EXPECT_EQ(screen->txtDesconto->text() + screen->lblVrLiqProt->text(), u"20,00180,00"_s);
  script.box(QString::fromUtf16(kHowTo)).box(u"O Desconto não poderá ser superior ao valor do Produto!"_s);
  script.box(QString::fromUtf16(kHowTo));
  support::type(screen->txtDesconto, u"150%"_s);
  support::focus(screen->txtQuantidade);
  EXPECT_EQ(screen->txtDesconto->text() + screen->lblVrLiqProt->text(), u"300,00180,00"_s);
  EXPECT_EQ(screen->focusWidget(), screen->txtDesconto);
  support::type(screen->txtDesconto, u"200.0"_s);
  support::focus(screen->txtQuantidade);
  EXPECT_EQ(screen->txtDesconto->text() + screen->lblVrLiqProt->text(), u"200,000,00"_s);
}

}  // namespace
