#include <QTest>

#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

class Modes : public QuoteCase {
 protected:
  /// Names of the enabled ones among the main buttons.
  QString enabled() const {
    QString names;
    for (const QPushButton* button :
         {screen->cmdINCLUIR, screen->cmdALTERAR, screen->cmdSALVAR, screen->cmdEXCLUIR, screen->cmdReativar,
          screen->cmdImprimir, screen->cmdSAIR, screen->cmdFechar})
      if (button->isEnabled()) names += button->objectName().mid(3) + u' ';
    return names.trimmed();
  }
  void expectLocked(bool locked) const {
    for (const auto& name : {u"txtDesc"_s, u"cboCliente"_s, u"txtNumePess"_s, u"txtObserva"_s,
                             u"cboTipoServ"_s, u"mskDataEven"_s, u"txtNomeHomg"_s, u"cboItemPropCmrc"_s})
      EXPECT_EQ(forms::isLocked(screen->findChild<QWidget*>(name)), locked) << name.toStdString();
    EXPECT_EQ(forms::isLocked(screen->txtCodigo), !locked);
    for (const auto& name :
         {u"opPV"_s, u"opShowRoom"_s, u"cmdIncluirItem"_s, u"cmdIncluirMassa"_s, u"cmdAbreAprova"_s})
      EXPECT_EQ(screen->findChild<QWidget*>(name)->isEnabled(), !locked) << name.toStdString();
  }
};

TEST_F(Modes, NewQuoteUnlocksTheFieldsAndSetsDateAndTerms) {
  start();
  EXPECT_EQ(enabled(), u"INCLUIR ALTERAR EXCLUIR Reativar Imprimir SAIR Fechar"_s);
  EXPECT_EQ(screen->focusWidget(), screen->txtCodigo);
  expectLocked(true);
  support::type(screen->txtCodigo, u"12"_s);
  support::click(screen->cmdINCLUIR);
  EXPECT_EQ(enabled(), u"SALVAR SAIR Fechar"_s);
  expectLocked(false);
  EXPECT_EQ(contexto().ModoOrcamento + contexto().ModoItem, u"II"_s);
  EXPECT_EQ(screen->txtCodigo->text(), QString());
  EXPECT_EQ(screen->focusWidget(), screen->mskDtPropCmrc);
  EXPECT_EQ(screen->mskDtPropCmrc->boxText(), u"15/03/2024"_s);
  EXPECT_EQ(forms::controlText(screen->txtCondPagto),
            u"5% de desconto para pagamento à vista ou\r\n50% de sinal e 50% na entrega\r\n"_s);
  EXPECT_EQ(screen->lblSituacao->text(), u"Novo orçamento"_s);
}

TEST_F(Modes, AlteringTakesTheCommandsOfTheQuoteAway) {
  store(3);
  start();
  load(3);
  support::click(screen->cmdALTERAR);
  EXPECT_EQ(enabled(), u"SALVAR SAIR"_s);
  EXPECT_EQ(contexto().ModoOrcamento + contexto().ModoItem, u"AA"_s);
  expectLocked(false);
}

TEST_F(Modes, FieldsCompleteLimitAndFilterWhatIsTyped) {
  start();
  support::type(screen->txtCodigo, u" 12 "_s);
  support::focus(screen->cmdINCLUIR);
  EXPECT_EQ(screen->txtCodigo->text(), u"12"_s);
  support::click(screen->cmdINCLUIR);
  support::focus(screen->mskDataEven);
  QTest::keyClicks(screen->mskDataEven, u"15"_s);
  support::focus(screen->txtNumePess);
  EXPECT_EQ(screen->mskDataEven->boxText(), u"30/03/2024"_s);
  support::type(screen->txtNumePess, u"1a2.5"_s);
  EXPECT_EQ(screen->txtNumePess->text(), u"12,5"_s);
  support::key(screen->txtNumePess, Qt::Key_Return);
  EXPECT_NE(screen->focusWidget(), screen->txtNumePess);
  forms::setControlText(screen->txtObserva, QString(300, u'x'));
  EXPECT_EQ(screen->txtObserva->toPlainText().size(), 200);
}

TEST_F(Modes, TheRemarkOpensAndFoldsByItsButton) {
  start();
  const int folded = screen->txtObserva->height();
  support::click(screen->cmdExpandirObservacao);
  EXPECT_EQ(screen->txtObserva->height(), forms::pixels(1315));
  EXPECT_EQ(screen->cmdExpandirObservacao->text(), u"-"_s);
  support::click(screen->cmdExpandirObservacao);
  EXPECT_EQ(screen->txtObserva->height(), folded);
}

TEST_F(Modes, AShortcutLeavesTheFieldFirstAndEscNeverEndsTheProgram) {
  start();
  support::key(screen, Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(contexto().ModoOrcamento, u"I"_s);
  script.box(u"Este(a) Vendedor(a) não Existe!"_s);
  support::type(screen->cboVendedor, u"nada"_s);
  support::key(screen->cboVendedor, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(screen->focusWidget(), screen->cboVendedor);
  support::key(screen->cboVendedor, Qt::Key_Escape);
  EXPECT_TRUE(screen->isVisible());
}

TEST_F(Modes, ADoubleClickOnTheGroundTellsTheResolution) {
  start();
  script.box(u"768 x 1024"_s);
  QTest::mouseDClick(screen->area->viewport(), Qt::LeftButton, {}, QPoint(2, 2));
}

}  // namespace
