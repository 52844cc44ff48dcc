#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include "quote_case.h"

using namespace Qt::StringLiterals;
using forms::Answer;

namespace {

constexpr char16_t kSairPergunta[] =
    u"Existe operação não concluída!!!\n<Sim> Sair sem Concluir\n<Não> Retornar para a Operação Atual\n"
    u"<Cancela> Retornar e Abortar a Operação Atual";

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
    for (const QWidget* field : std::initializer_list<const QWidget*>{
             screen->txtDesc, screen->cboCliente, screen->txtNumePess, screen->txtObserva,
             screen->cboTipoServ, screen->mskDataEven, screen->txtNomeHomg, screen->cboItemPropCmrc})
      EXPECT_EQ(forms::isLocked(field), locked) << field->objectName().toStdString();
    EXPECT_EQ(forms::isLocked(screen->txtCodigo), !locked);
    for (const QWidget* control :
         std::initializer_list<const QWidget*>{screen->opPV, screen->opShowRoom, screen->cmdIncluirItem,
                                               screen->cmdIncluirMassa, screen->cmdAbreAprova})
      EXPECT_EQ(control->isEnabled(), !locked) << control->objectName().toStdString();
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

TEST_F(Modes, AlteringWantsAnOpenQuote) {
  store(3);
  start();
  script.box(u"Selecione Um Registro Para Executar esta Operação!"_s);
  support::click(screen->cmdALTERAR);
  load(3);
  support::click(screen->cmdALTERAR);
  EXPECT_EQ(enabled(), u"SALVAR SAIR"_s);
  EXPECT_EQ(contexto().ModoOrcamento + contexto().ModoItem, u"AA"_s);
  expectLocked(false);
}

TEST_F(Modes, LeavingWhileEditingAsksThreeWays) {
  start();
  const QPointer<frmPropCmrcTL> form(screen);
  support::click(screen->cmdINCLUIR);
  screen->txtDesc->setText(u"x"_s);
  script.box(QString::fromUtf16(kSairPergunta), Answer::No);
  support::click(screen->cmdSAIR);
  EXPECT_EQ(screen->txtDesc->text(), u"x"_s);
  script.box(QString::fromUtf16(kSairPergunta), Answer::Cancel);
  screen->close();
  support::settle();
  EXPECT_EQ(screen->txtDesc->text(), QString());
  EXPECT_EQ(contexto().ModoOrcamento, u" "_s);
  expectLocked(true);
  support::click(screen->cmdINCLUIR);
  script.box(QString::fromUtf16(kSairPergunta), Answer::Yes);
  support::click(screen->cmdSAIR);
  EXPECT_TRUE(form.isNull());
}

TEST_F(Modes, AKnownCustomerAndContactBringTheirPhonesAndAddresses) {
  start();
  support::click(screen->cmdINCLUIR);
  support::type(screen->cboCliente, u"clara festas ltda"_s);
  support::type(screen->cboClienteContato, u"dora"_s);
  support::focus(screen->txtDesc);
  EXPECT_EQ(screen->txtEmailExtra->text(), u"contato@clara.example"_s);
  EXPECT_TRUE(screen->txtFoneExtra->text().contains(u"(19) 3333-1000"_s));
  EXPECT_EQ(screen->txtFoneExtraContato->text(), u"(19) 99999-0001"_s);
  EXPECT_EQ(screen->txtEmailExtraContato->text(), u"dora@clara.example"_s);
}

struct List {
  const char* combo;
  const char16_t* known;
  const char16_t* words;
};
class Lists : public QuoteCase, public ::testing::WithParamInterface<List> {};

TEST_P(Lists, ATextThatIsNotInTheListIsEmptiedAndTheFocusStays) {
  start();
  support::click(screen->cmdINCLUIR);
  auto* combo = screen->findChild<forms::Combo*>(QString::fromLatin1(GetParam().combo));
  script.box(QString::fromUtf16(GetParam().words));
  support::type(combo, u"nada"_s);
  support::focus(screen->txtDesc);
  EXPECT_EQ(combo->text(), QString());
  EXPECT_EQ(screen->focusWidget(), combo);
  support::focus(screen->txtDesc);
  support::type(combo, QString::fromUtf16(GetParam().known));
  support::focus(screen->txtDesc);
  EXPECT_EQ(combo->text(), QString::fromUtf16(GetParam().known));
}
INSTANTIATE_TEST_SUITE_P(
    Fields, Lists,
    ::testing::Values(List{"cboVendedor", u"bia", u"Este(a) Vendedor(a) não Existe!"},
                      List{"cboLocalVenda", u"loja centro", u"Este Local de Vendas não Existe!"},
                      List{"cboTipoMktg", u"Indicação", u"Esta Estratégia (Tipo) de Marketing não Existe!"},
                      List{"cboTipoEven", u"CASAMENTO", u"Este Tipo de Evento não Existe!"},
                      List{"cboTipoServ", u"Lembrança", u"Este Tipo de Serviço não Existe!"}));

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
