#include <QTest>

#include "platform/files/paths.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

class Modes : public QuoteCase {
 protected:
  /// Names of the enabled ones among the main buttons.
  QString enabled() const {
    QStringList names = u"INCLUIR ALTERAR SALVAR EXCLUIR Reativar Imprimir SAIR Fechar"_s.split(u' ');
    names.removeIf([this](const QString& name) { return !control(u"cmd"_s + name)->isEnabled(); });
    return names.join(u' ');
  }
  void expectLocked(bool locked) const {
    for (const auto& name : {u"txtDesc"_s, u"cboCliente"_s, u"txtNumePess"_s, u"txtObserva"_s,
                             u"cboTipoServ"_s, u"mskDataEven"_s, u"txtNomeHomg"_s, u"cboItemPropCmrc"_s})
      EXPECT_EQ(forms::isLocked(control(name)), locked) << name.toStdString();
    EXPECT_EQ(forms::isLocked(screen->txtCodigo), !locked);
    for (const auto& name :
         {u"opPV"_s, u"opShowRoom"_s, u"cmdIncluirItem"_s, u"cmdIncluirMassa"_s, u"cmdAbreAprova"_s})
      EXPECT_EQ(control(name)->isEnabled(), !locked) << name.toStdString();
  }

 private:
  QWidget* control(const QString& name) const { return screen->findChild<QWidget*>(name); }
};

TEST_F(Modes, ANewQuoteAndAnAlteredOneUnlockTheFieldsAndTakeCommandsAway) {
  store(3);
  start();
  EXPECT_EQ(enabled(), u"INCLUIR ALTERAR EXCLUIR Reativar Imprimir SAIR Fechar"_s);
  EXPECT_EQ(screen->focusWidget(), screen->txtCodigo);
  expectLocked(true);
  support::type(screen->txtCodigo, u"12"_s);
  support::click(screen->cmdINCLUIR);
  EXPECT_EQ(enabled(), u"SALVAR SAIR"_s);
  expectLocked(false);
  EXPECT_EQ(contexto().ModoOrcamento, u"I"_s);
  EXPECT_EQ(contexto().ModoItem, u"I"_s);
  EXPECT_EQ(screen->txtCodigo->text(), QString());
  EXPECT_EQ(screen->focusWidget(), screen->mskDtPropCmrc);
  EXPECT_EQ(screen->mskDtPropCmrc->boxText(), u"15/03/2024"_s);
  EXPECT_EQ(forms::controlText(screen->txtCondPagto),
            u"5% de desconto para pagamento à vista ou\r\n50% de sinal e 50% na entrega\r\n"_s);
  forms::registry::clear();
  start();
  load(3);
  support::click(screen->cmdALTERAR);
  EXPECT_EQ(enabled(), u"SALVAR SAIR"_s);
  EXPECT_EQ(contexto().ModoOrcamento, u"A"_s);
  EXPECT_EQ(contexto().ModoItem, u"A"_s);
  expectLocked(false);
}

TEST_F(Modes, FieldsTrimAndLimitWhatIsTypedAndTheRemarkUnfolds) {
  start();
  support::type(screen->txtCodigo, u" 12 "_s);
  support::focus(screen->cmdINCLUIR);
  EXPECT_EQ(screen->txtCodigo->text(), u"12"_s);
  support::click(screen->cmdINCLUIR);
  forms::setControlText(screen->txtObserva, QString(300, u'x'));
  EXPECT_EQ(screen->txtObserva->toPlainText().size(), 200);
  support::click(screen->cmdExpandirObservacao);
  EXPECT_EQ(screen->txtObserva->height(), forms::pixels(1315));
}

TEST_F(Modes, OnAMachineOfTheMakersTheFirstUserStartsAndTheGroundShowsTheResolution) {
  const QString line = u"(embutido)^"_s + databasePath() + u"^sa^x^MS-SQL^^False^\r\n"_s;
  configure(u"server.ini"_s, line + line + line);
  configure(u"TREVANO.txt"_s, {});
  sql(u"INSERT INTO usen (idusen, usen) VALUES (1, 'ADMIN')"_s);
  contexto().LinhaComando = u"7^0^DEV^"_s;
  start();
  EXPECT_EQ(screen->windowTitle(), u"Zarim 1.2 (PRD) - Orçamento de Vendas (/ADMIN)"_s);
  EXPECT_NE(forms::foreColor(screen->lblTituloJanela), 255);
  script.box(u"768 x 1024"_s);
  QTest::mouseDClick(screen->area->viewport(), Qt::LeftButton, {}, QPoint(2, 2));
}

}  // namespace
