#include "run/configuration.h"

#include <QDir>
#include <QRandomGenerator>
#include <optional>

#include "platform/files/contents.h"
#include "platform/files/log_file.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "run/context.h"
#include "sqlserver/tds_server.h"
#include "support/company.h"
#include "support/script.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNoAplic =
    u"Há Problemas de Configuração do Aplicativo ZARIM!\n\nContate o Administrador do Sistema e informe "
    "este fato, identificado\no motivo [Falta do Arquivo Server_Aplic]!"_s;
const QString kNoLine =
    u"Conteúdo do Arquivo NÃO Encontrado!\nContate o seu Desenvolvedor para posicionar a falha de Conexão!"_s;
const QString kNoServer =
    u"O Servidor de dados não está respondendo.\n\nVerifique se o servidor NT/SQL/LINUX ((embutido)) está "
    "ligado.\nO Ambiente selecionado () pode não estar configurado!"_s;

class Configuration : public support::Company {
 protected:
  void remove(const QString& name) { files::remove(u"c:\\zarim\\config\\"_s + name); }
  void write(const QString& name, const QByteArray& bytes) {
    files::write(u"c:\\zarim\\config\\"_s + name, bytes);
  }

  /// A line for the embedded file of this company.
  QString line(const QString& rest = u"^sa^x^MS-SQL^^False^"_s) const {
    return u"(embutido)^"_s + databasePath() + rest;
  }

  /// Starts afresh; false when the process ended.
  bool connects(const QString& ambiente = u"PRD"_s) {
    reiniciaContexto();
    contexto().Ambiente = ambiente;
    try {
      ConectaServidor();
      return true;
    } catch (const forms::Ended&) {
      return false;
    }
  }
};

TEST_F(Configuration, AConnectionThatCantBeClosedIsReported) {
  sqlserver::TdsServer server;
  contexto().Conexao.open(server.connectionString(), 5);
  contexto().TipoBanco = u"MS-SQL"_s;
  contexto().Conexao.begin();
  server.stop();
  support::Script script;
  script
      .box(
          u"Erro ao fechar banco de dados (MS-SQL)\nTente Novamente. Caso o problema persista, "
          u"contate o Desenvolvedor!"_s)
      .expectEnd(1);
  forms::guarded([] { FechaConexao(u"SAIR"_s); });
  EXPECT_EQ(script.lastBox().title, u"Falha Conexão"_s);
  EXPECT_FALSE(contexto().Conexao.isOpen());
}

TEST_F(Configuration, WhyAConnectionFailedIsForSupportAndWithoutThePassword) {
  sqlserver::TdsServer server;
  qputenv("TDSPORT", QByteArray::number(server.port()));
  configure(u"server.ini"_s, sqlserver::TdsServer::configurationLine().replace(u"Segredo"_s, u"Segredos"_s));
  support::Script script;
  script.box(QString(kNoServer).replace(u"((embutido))"_s, u"(127.0.0.1)"_s)).expectEnd(1);
  const QString log = drive() + u"/estado/zarim.log"_s;
  files::logInto(log);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(connects());
  files::logInto({});
  const QString reported = QString::fromStdString(::testing::internal::GetCapturedStderr());
  EXPECT_TRUE(reported.startsWith(u"Erro -2147467259 em ConectaServidor: [FreeTDS]"_s))
      << reported.toStdString();
  EXPECT_FALSE(reported.contains(u"Segredo"_s) || reported.contains(u"pwd"_s));
  // The same in the log, and what the files have to do with it.
  const QString logged = QString::fromUtf8(files::readAll(log));
  EXPECT_TRUE(logged.contains(reported.section(u'\n', 0, 0))) << logged.toStdString();
  EXPECT_TRUE(logged.contains(u"[FALTA] imagem de quem não tem imagem"_s)) << logged.toStdString();
  EXPECT_TRUE(logged.contains(u"recusa usuário ou senha"_s)) << logged.toStdString();
  EXPECT_FALSE(logged.contains(u"Segredo"_s));
  qunsetenv("TDSPORT");
}

// What the chosen line of server.ini leads to. Where the reading breaks off, the folders stay empty.
TEST_F(Configuration, LinesOfServerIni) {
  enum Outcome { Opens, StaysClosed, BreaksOff };
  const QString other = u"(embutido)^/nada/nada.db^^^MS-SQL^^False^"_s;
  const QString firebird = u"a^b^c^d^FIREBIRD^server=(embutido);database=%1^False^"_s.arg(databasePath());
  const struct {
    QString file, ambiente;
    Outcome outcome;
    QString kind;
  } cases[] = {
      {line() + u"\r\n"_s + other + u"\r\n"_s, u"PRD"_s, Opens, u"MS-SQL"_s},
      {line(), u""_s, Opens, u"MS-SQL"_s},
      {other + u"\n"_s + line() + u"\n\n"_s, u"HIST"_s, Opens, u"MS-SQL"_s},
      {other + u"\n\n  "_s + line() + u"  \n"_s, u"DEV"_s, Opens, u"MS-SQL"_s},
      {line() + u"\nb\nc\nd\n\n"_s, u"PRD"_s, Opens, u"MS-SQL"_s},
      {line(u"^^^MSSQL^^True^"_s), u"PRD"_s, Opens, u"MSSQL"_s},
      {line(u"^^^^^0^"_s), u"PRD"_s, Opens, u"MS-SQL"_s},
      {firebird, u"PRD"_s, Opens, u"FIREBIRD"_s},
      {line(u"^^^firebird^^False^"_s), u"PRD"_s, StaysClosed, u"firebird"_s},
      {line(u"^sa^x^MS-SQL^x^"_s), u"PRD"_s, BreaksOff, u"MS-SQL"_s},
      {line(u"^sa^x^MS-SQL^x^talvez^"_s), u"PRD"_s, BreaksOff, u"MS-SQL"_s},
      {u"so-um-campo"_s, u"PRD"_s, BreaksOff, u"."_s},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE((one.ambiente + u" | "_s + one.file).toStdString());
    configure(u"server.ini"_s, one.file);
    const support::Script script;
    EXPECT_TRUE(connects(one.ambiente));
    EXPECT_EQ(contexto().Conexao.isOpen(), one.outcome == Opens);
    EXPECT_EQ(contexto().TipoBanco, one.kind);
    EXPECT_EQ(contexto().PathImagens.isEmpty(), one.outcome == BreaksOff);
  }
}

// What ends the program, with its box.
TEST_F(Configuration, Failures) {
  const QString nobody = u"(embutido)^/nada.db^^^^^0^"_s;
  const QString linesTitle = u"Falha de Conexão com o Servidor"_s;
  const struct {
    QString file, ambiente, box;
    forms::Icon icon;
    std::optional<QString> title;
  } cases[] = {{u"\n"_s + line(), u"PRD"_s, kNoLine, forms::Icon::None, linesTitle},
               {line(), u"HIST"_s, kNoLine, forms::Icon::None, linesTitle},
               {line() + u"\nb\nc"_s, u"prd"_s, kNoLine, forms::Icon::None, linesTitle},
               {u""_s, u"PRD"_s, kNoLine, forms::Icon::None, linesTitle},
               {nobody, u"PRD"_s, kNoServer, forms::Icon::Critical, std::nullopt},
               {{}, u"PRD"_s, kNoAplic, forms::Icon::Critical, u"Zarim 1.2"_s}};
  for (const auto& one : cases) {
    SCOPED_TRACE((one.ambiente + u" | "_s + one.file).toStdString());
    configure(u"server.ini"_s, one.file);
    if (one.box == kNoAplic) remove(u"server_aplic.ini"_s);
    support::Script script;
    script.box(one.box).expectEnd(1);
    EXPECT_FALSE(connects(one.ambiente));
    EXPECT_EQ(script.lastBox().icon, one.icon);
    EXPECT_EQ(script.lastBox().title, one.title);
  }
}

// Where the files are looked for, by what server_aplic.ini says: root "c:\outra\" has its own server.ini,
// others fall back on the fixed folder.
TEST_F(Configuration, InstallRoots) {
  QDir(drive()).mkpath(u"outra/config"_s);
  files::write(u"c:\\outra\\config\\server.ini"_s, (line(u"^outra^x^^^0^"_s)).toUtf8());
  const std::pair<QByteArray, QString> cases[] = {
      {"c:\\^outra\\^", u"outra"_s},
      {"  c:\\ ^ outra\\ ^ \r\nresto", u"outra"_s},
      {"c:\\^nada\\^", u"sa"_s},
      {"c:\\outra\\", u"sa"_s},  // field 2 is "."
      {"", u"sa"_s},
      {QByteArray("c:\\^\0utra\\^", 11), u"sa"_s},  // a bad file name
  };
  for (const auto& [aplic, user] : cases) {
    SCOPED_TRACE(aplic.toStdString());
    write(u"server_aplic.ini"_s, aplic);
    EXPECT_TRUE(connects());
    EXPECT_EQ(contexto().UsuarioBanco, user);
    EXPECT_EQ(contexto().ArqPaths, u"c:\\zarim\\config\\paths.ini");
  }
}

TEST_F(Configuration, FilesMissingShortOrInAnotherEncoding) {
  const struct {
    QByteArray paths;
    QString images, docs;
  } cases[] = {{"", u""_s, u""_s},
               {"a^b^c:\\fotos\\", u"c:\\fotos\\"_s, u"."_s},
               {"\xEF\xBB\xBF"
                "a^b^c:\\promo\xC3\xA7\xC3\xB5"
                "es\\^\r\n",
                u"c:\\promoções\\"_s, u"."_s},
               {"a^b^ c:\\promo\xE7\xF5"
                "es\\ ^c^d^e^f^g^h^ c:\\docs\\ \n",
                u"c:\\promoções\\"_s, u"c:\\docs\\"_s}};
  for (const auto& one : cases) {
    write(u"paths.ini"_s, one.paths);
    EXPECT_TRUE(connects());
    EXPECT_EQ(contexto().PathImagens, one.images);
    EXPECT_EQ(contexto().PathDocs, one.docs);
  }
  for (const auto& [name, open] : {std::pair{u"paths.ini"_s, true}, {u"server.ini"_s, false}}) {
    remove(name);
    EXPECT_TRUE(connects()) << "a file that can't be opened is passed over in silence";
    EXPECT_EQ(contexto().Conexao.isOpen(), open);
    EXPECT_EQ(contexto().PathImagens, u"");
  }
}

// A drive that is named and not there opens no other company: a folder, a dead link, a file.
TEST_F(Configuration, ADriveThatIsNotThereEndsWithItsName) {
  const QString link = drive() + u"/atalho"_s;
  QFile::link(drive() + u"/nada"_s, link);
  for (const QString& named : {drive() + u"/nada"_s, link, databasePath()}) {
    qputenv("ZARIM_DRIVE_C", named.toUtf8());
    support::Script script;
    script
        .box(u"A pasta que faz as vezes do drive C não está acessível:\n\n"_s + named +
             u"\n\nO compartilhamento pode não estar montado. Contate o Administrador do Sistema!"_s)
        .expectEnd(1);
    EXPECT_FALSE(connects());
    EXPECT_FALSE(contexto().Conexao.isOpen());
  }
}

TEST(Fields, PegaCampo) {
  const struct {
    QString text;
    int n;
    QString field, after;
  } cases[] = {{u""_s, 1, u""_s, u""_s},
               {u"a^b"_s, 3, u"."_s, u"a^b^"_s},
               {u" a^^c^ "_s, 2, u""_s, u"a^^c^"_s},
               {u"7"_s, 1, u"7"_s, u"7^"_s},
               {u"  "_s, 1, u""_s, u"^"_s},
               {u"a^ b "_s, 2, u" b"_s, u"a^ b^"_s},
               {u"\ta"_s, 1, u"\ta"_s, u"\ta^"_s}};
  for (const auto& one : cases) {
    QString text = one.text;
    EXPECT_EQ(PegaCampo(text, one.n), one.field) << one.text.toStdString();
    EXPECT_EQ(text, one.after);
    EXPECT_EQ(PegaCampo(std::as_const(one.text), one.n), one.field);
  }
}

// Any bytes in the three files: a box and an end, silence, or a connection, never a crash.
TEST_F(Configuration, AnyBytes) {
  constexpr char kLetters[] = "^^^^^(embutido) ;=\\:c\r\n\t.0\0\xE7\xC3\xA7";
  QRandomGenerator random(3);
  forms::setBoxAnswerer([](const forms::Box&) { return forms::Answer::Ok; });
  forms::setEnd([](int) {});
  for (int i = 0; i < 400; ++i) {
    for (const auto& name : {u"server_aplic.ini"_s, u"server.ini"_s, u"paths.ini"_s}) {
      QByteArray bytes;
      for (int length = random.bounded(60); length > 0; --length)
        bytes += kLetters[random.bounded(int{sizeof kLetters})];
      write(name, bytes);
    }
    connects();
  }
  forms::setBoxAnswerer({});
  forms::setEnd({});
}

}  // namespace
