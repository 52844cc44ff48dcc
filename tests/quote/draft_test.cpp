#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include "draft/keeper.h"
#include "quote_case.h"

namespace {

/// The draft of the quote that is being edited.
class Draft : public QuoteCase {
 protected:
  ~Draft() override { rascunho::guarda().desliga(); }

  [[nodiscard]] QString folder() const { return drive() + u"/rascunhos"_s; }
  [[nodiscard]] QStringList kept() const { return QDir(folder()).entryList({u"*.rascunho"_s}, QDir::Files); }
  [[nodiscard]] QString line() const {
    return screen->lblRascunho->isVisible() ? screen->lblRascunho->text() : QString();
  }

  /// The program begins again; what was left is known when this returns.
  void begin() {
    rascunho::guarda().desliga();
    forms::registry::clear();
    contexto().ModoOrcamento = u" "_s;
    start();
    bool known = false;
    const auto seen =
        QObject::connect(&rascunho::guarda(), &rascunho::Guarda::ofertasMudaram, [&] { known = true; });
    rascunho::guarda().liga(folder());
    QElapsedTimer since;
    for (since.start(); !known && since.elapsed() < 10'000;) support::settle();
    QObject::disconnect(seen);
  }

  void enter() {
    support::click(screen->cmdINCLUIR);
    screen->cboCliente->setText(u"Clara Festas Ltda"_s);
    screen->cboRespAtendimento->setText(u"MARIA"_s);
    addItem(u"101;PROD;CX-100;Caixa branca;19,25;0,00;19,25;3;57,75;;UN; Azul "_s);
    support::click(screen->cmdMultiHomenagem);
  }
  void alter() {
    load(1);
    support::click(screen->cmdALTERAR);
    support::type(screen->txtDesc, u"Prata"_s);
    support::click(screen->cmdMultiHomenagem);
  }
  /// A draft as another run has left it.
  void leave(const rascunho::Rascunho& draft) {
    files::KeptFile file(folder(), u".rascunho"_s);
    file.keep(rascunho::texto(draft));
    EXPECT_TRUE(file.settle(std::chrono::seconds(20)));
  }
};

/// The parameter: a new quote, or number 1 altered.
class StoredDraft : public Draft, public ::testing::WithParamInterface<bool> {};

TEST_P(StoredDraft, ThatWasNotRemovedYetIsNotStoredTwice) {
  if (GetParam()) store(1);
  begin();
  GetParam() ? alter() : enter();
  // As the disk is when the process is killed after the commit.
  QByteArray atCommit;
  contexto().Conexao.setListener([&](const QString& sql) {
    QFile file(folder() + u'/' + kept().value(0));
    if (sql == u"COMMIT" && file.open(QIODevice::ReadOnly)) atCommit = file.readAll();
  });
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.1"_s);
  support::click(screen->cmdSALVAR);
  ASSERT_FALSE(atCommit.isEmpty());
  rascunho::guarda().desliga();
  EXPECT_EQ(kept(), QStringList());
  QFile file(folder() + u"/1.rascunho"_s);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(atCommit);
  file.close();
  const QString lines = ask(u"SELECT max(idprop_cmrc_deta) FROM prop_cmrc_deta"_s);

  begin();
  ASSERT_NE(line(), QString());
  script.box(u"Este orçamento já foi gravado: nr. 1"_s);
  support::click(screen->cmdRecuperar);
  EXPECT_EQ(screen->txtRowId->text(), u"1"_s);
  EXPECT_FALSE(screen->cmdSALVAR->isEnabled());
  EXPECT_EQ(line(), QString());
  rascunho::guarda().desliga();
  EXPECT_EQ(kept(), QStringList());
  EXPECT_EQ(ask(u"SELECT count(*) FROM prop_cmrc"_s), u"1"_s);
  EXPECT_EQ(ask(u"SELECT max(idprop_cmrc_deta) FROM prop_cmrc_deta"_s), lines);
}

INSTANTIATE_TEST_SUITE_P(Modes, StoredDraft, ::testing::Bool(),
                         [](const auto& one) { return one.param ? "Altered" : "New"; });

TEST_F(Draft, ThatCantBeRecoveredIsShownAndKeptAndAnothersIsNot) {
  begin();
  enter();
  rascunho::guarda().desliga();
  QFile mine(folder() + u'/' + kept().value(0));
  ASSERT_TRUE(mine.open(QIODevice::ReadOnly));
  QByteArray bytes = mine.readAll();
  const auto draft = *rascunho::le(bytes.first(bytes.lastIndexOf("fim\t")));
  for (auto change :
       {&rascunho::Rascunho::usuario, &rascunho::Rascunho::ambiente, &rascunho::Rascunho::banco}) {
    auto other = draft;
    other.*change = u"outro"_s;
    leave(other);
  }
  auto newer = draft;
  newer.versao = u"9.9"_s;
  leave(newer);
  QFile broken(folder() + u"/1.rascunho"_s);
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write(bytes.chopped(9));
  broken.close();

  begin();
  EXPECT_EQ(line(), u"Orçamento não salvo de 15/03 10:30, Clara Festas Ltda, 1 item (mais 2)"_s);
  script.box(u"Orçamento não salvo de 15/03 10:30, Clara Festas Ltda, 1 item.\n\nDeseja descartá-lo?"_s,
             forms::Answer::Yes);
  support::click(screen->cmdDescartar);
  begin();
  EXPECT_TRUE(line().endsWith(u"fica guardado (mais 1)"_s)) << line().toStdString();
  EXPECT_FALSE(screen->cmdRecuperar->isEnabled());
  EXPECT_EQ(kept().size(), 5);
}

}  // namespace
