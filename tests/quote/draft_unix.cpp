#include <sys/resource.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <csignal>
#include <utility>

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
    contexto().Conexao.close();
    contexto().ModoOrcamento = u" "_s;
    start();
    look();
  }
  /// Looks for what was left, as the start does.
  void look() {
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
  /// A draft as another run has left it, in a file of its own or in one that is there.
  void leave(const rascunho::Rascunho& draft, const QString& path = {}) {
    files::KeptFile file(folder(), u".rascunho"_s);
    if (!path.isEmpty()) {
      EXPECT_TRUE(file.take(path, std::chrono::seconds(20)).has_value());
    }
    file.keep(rascunho::texto(draft));
    EXPECT_TRUE(file.settle(std::chrono::seconds(20)));
  }
  /// The only draft that is there.
  [[nodiscard]] rascunho::Rascunho draft() const {
    QFile file(folder() + u'/' + kept().value(0));
    EXPECT_TRUE(kept().size() == 1 && file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    return rascunho::le(bytes.first(bytes.lastIndexOf("fim\t"))).value();
  }
};

/// A disk that takes no file beyond a few bytes, while it lives.
class FullDisk {
 public:
  FullDisk() {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit full{256, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

/// The parameter: a new quote, or number 1 altered.
class StoredDraft : public Draft, public ::testing::WithParamInterface<bool> {
 protected:
  /// Saves what was entered while the disk is full from one statement on, and ends with that.
  void saveOnFullDisk(const QString& from) {
    std::optional<FullDisk> full;
    contexto().Conexao.setListener([&](const QString& sql) {
      if (sql == from) full.emplace();
    });
    script.box(u"Erro em tempo de execução '-2147217900':\n\ndisk I/O error"_s).expectEnd(1);
    support::click(screen->cmdSALVAR);
    contexto().Conexao.setListener({});
    contexto().Conexao.close();
    rascunho::guarda().desliga();
  }
};

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
  QFile file(folder() + u"/20240315-103000-000-1.rascunho"_s);
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

TEST_P(StoredDraft, IsThereWhenAFullDiskTakesNeitherItsMarkNorTheCommit) {
  if (GetParam()) store(1);
  begin();
  GetParam() ? alter() : enter();
  saveOnFullDisk(u"BEGIN"_s);
  EXPECT_EQ(draft().gravacao.orcamento, QString()) << "the mark was not to be written";

  begin();
  support::click(screen->cmdRecuperar);
  EXPECT_EQ(screen->txtDesc->text(), GetParam() ? u"Prata"_s : QString());
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.1"_s);
  support::click(screen->cmdSALVAR);
  EXPECT_EQ(ask(u"SELECT count(*) FROM prop_cmrc"_s), u"1"_s);
  EXPECT_EQ(ask(u"SELECT prop_cmrc_desc FROM prop_cmrc"_s), GetParam() ? u"PRATA"_s : QString());
}

TEST_P(StoredDraft, OfACommitThatFailedIsNotTakenForWhatGotItsIdsNext) {
  if (GetParam()) store(1);
  begin();
  GetParam() ? alter() : enter();
  saveOnFullDisk(u"COMMIT"_s);
  EXPECT_EQ(draft().gravacao.orcamento, u"1"_s);

  // The next save of the same user gets the same ids.
  forms::registry::clear();
  contexto().Conexao.close();
  contexto().ModoOrcamento = u" "_s;
  start();
  GetParam() ? alter() : enter();
  screen->txtDesc->setText(u"Outra"_s);
  script.box(u"Registro Gravado com sucesso!\nOrçamento nr.1"_s);
  support::click(screen->cmdSALVAR);

  begin();
  const QString question =
      (GetParam() ? u"O orçamento nr. 1 foi alterado no banco de dados depois do que não foi salvo."_s
                  : u"O nr. 1, que este orçamento ia receber, está gravado com outro conteúdo."_s) +
      u"\n\nDeseja recuperar mesmo assim o que não foi salvo?"_s;
  script.box(question, forms::Answer::No);
  support::click(screen->cmdRecuperar);
  EXPECT_EQ(script.lastBox().usual, forms::Answer::No);
  EXPECT_NE(line(), QString());
  EXPECT_EQ(kept().size(), 1);
  script.box(question, forms::Answer::Yes);
  support::click(screen->cmdRecuperar);
  EXPECT_EQ(screen->txtDesc->text(), GetParam() ? u"Prata"_s : QString());
  script.box(GetParam() ? u"Registro Gravado com sucesso!\nOrçamento nr.1"_s
                        : u"Registro Gravado com sucesso!\nOrçamento nr.2"_s);
  support::click(screen->cmdSALVAR);
  EXPECT_EQ(ask(u"SELECT count(*) FROM prop_cmrc"_s), GetParam() ? u"1"_s : u"2"_s);
  EXPECT_EQ(ask(u"SELECT prop_cmrc_desc FROM prop_cmrc WHERE idprop_cmrc = 1"_s),
            GetParam() ? u"PRATA"_s : u"OUTRA"_s);
  rascunho::guarda().desliga();
  EXPECT_EQ(kept(), QStringList());
}

/// Two drives whose configuration names their database by one text.
TEST_F(Draft, IsOfferedToItsOwnCompanyAlone) {
  const QString link = drive() + u"/empresa.db"_s;
  const QString other = drive() + u"/other.db"_s;
  configure(u"server.ini"_s, u"(embutido)^"_s + link + u"^sa^x^MS-SQL^^False^\r\n"_s);
  const auto leadTo = [&](const QString& database) {
    rascunho::guarda().desliga();
    forms::registry::clear();
    contexto().Conexao.close();
    QFile::remove(link);
    ASSERT_TRUE(QFile::link(database, link));
    begin();
  };
  store(1);
  contexto().Conexao.close();
  ASSERT_TRUE(QFile::copy(databasePath(), other));
  leadTo(databasePath());
  alter();
  leadTo(other);
  EXPECT_EQ(line(), QString());
  EXPECT_EQ(kept().size(), 1);
  leadTo(databasePath());
  EXPECT_EQ(line(), u"Não salvo: Nr. 1, em alteração, Clara Festas Ltda, 2 itens, de 15/03 10:30"_s);
}

TEST_F(Draft, ThatIsThrownAwayIsTheOneThatWasNamed) {
  begin();
  enter();
  rascunho::guarda().desliga();
  const auto first = draft();
  auto newer = first;
  newer.quando = u"2024-03-15T11:00:00"_s;
  newer.cliente = u"Outra"_s;
  const QString named = folder() + u'/' + kept().value(0);
  QStringList boxes;
  std::function<void()> meanwhile = [&] {
    leave(newer);
    look();
  };
  forms::setBoxAnswerer([&](const forms::Box& box) {
    boxes << box.text;
    EXPECT_TRUE(box.buttons == forms::Buttons::Ok || box.usual == forms::Answer::No);
    if (const auto act = std::exchange(meanwhile, {})) act();
    return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  });
  begin();
  support::click(screen->cmdDescartar);
  // The disk is another thread's.
  QElapsedTimer since;
  for (since.start(); QFile::exists(named) && since.elapsed() < 10'000;) support::settle();
  EXPECT_EQ(draft().cliente, u"Outra"_s);
  // Another program has gone on with it and has ended.
  meanwhile = [&] { leave(first, folder() + u'/' + kept().value(0)); };
  support::click(screen->cmdDescartar);
  EXPECT_EQ(boxes.size(), 3);
  EXPECT_EQ(boxes.last(), u"Este orçamento não salvo não está mais disponível."_s);
  EXPECT_EQ(kept().size(), 1);
}

TEST_F(Draft, ThatCantBeRecoveredIsShownAndKeptAndAnothersIsNot) {
  begin();
  enter();
  rascunho::guarda().desliga();
  const auto mine = draft();
  for (auto change :
       {&rascunho::Rascunho::usuario, &rascunho::Rascunho::ambiente, &rascunho::Rascunho::banco}) {
    auto other = mine;
    other.*change = u"outro"_s;
    other.versao = u"9.9"_s;
    leave(other);
  }
  auto newer = mine;
  newer.versao = u"9.9"_s;
  leave(newer);
  QFile broken(folder() + u"/20240315-103000-000-1.rascunho"_s);
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write(rascunho::texto(mine));
  broken.close();

  begin();
  EXPECT_EQ(line(), u"Não salvo: novo, Clara Festas Ltda, 1 item, de 15/03 10:30 (mais 2)"_s);
  script.box(u"Não salvo: novo, Clara Festas Ltda, 1 item, de 15/03 10:30.\n\nDeseja descartá-lo?"_s,
             forms::Answer::Yes);
  support::click(screen->cmdDescartar);
  begin();
  EXPECT_TRUE(line().endsWith(u"fica guardado (mais 1)"_s)) << line().toStdString();
  EXPECT_FALSE(screen->cmdRecuperar->isEnabled());
  EXPECT_EQ(kept().size(), 5);
}

}  // namespace
