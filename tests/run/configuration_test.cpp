#include "run/configuration.h"

#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <csignal>
#include <optional>

#include "platform/files/paths.h"
#include "platform/forms/process.h"
#include "run/context.h"
#include "support/company.h"
#include "support/script.h"

using namespace Qt::StringLiterals;

namespace {

const QString kNoAplic =
    u"Há Problemas de Configuração do Aplicativo ZARIM!\n\nContate o Administrador do Sistema e informe este "
    u"fato, "
    "identificado\no motivo [Falta do Arquivo Server_Aplic]!"_s;
const QString kNoLine =
    u"Conteúdo do Arquivo NÃO Encontrado!\nContate o seu Desenvolvedor para posicionar a falha de Conexão!"_s;
const QString kNoServer =
    u"O Servidor de dados não está respondendo.\n\nVerifique se o servidor NT/SQL/LINUX ((embutido)) está "
    u"ligado.\n"
    "O Ambiente selecionado () pode não estar configurado!"_s;

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

TEST_F(Configuration, ReadsEverythingFromTheInstallRoot) {
  EXPECT_TRUE(connects());
  EXPECT_TRUE(contexto().Conexao.isOpen());
  EXPECT_EQ(contexto().StringConexaoMSSQL,
            u"driver={SQL Server};server=(embutido);uid=sa;pwd=segredo;database="_s + databasePath());
  EXPECT_EQ(contexto().ArqPaths, u"c:\\zarim\\config\\paths.ini");
  EXPECT_EQ(contexto().PathImagens2, u"c:\\zarim\\imagens2\\");
  EXPECT_EQ(contexto().ArqSemImagem, u"c:\\zarim\\imagens\\sem_imagem.jpg");
  EXPECT_EQ(contexto().PathLink, u"http://www.exemplo.com.br/fotos/");
}

// What the chosen line of server.ini leads to.
TEST_F(Configuration, LinesOfServerIni) {
  const QString other = u"(embutido)^/nada/nada.db^^^MS-SQL^^False^"_s;
  const struct {
    QString file, ambiente, box;
    bool open;
    QString kind, images;
  } cases[] = {
      {line() + u"\r\n"_s + other + u"\r\n"_s, u"PRD"_s, {}, true, u"MS-SQL"_s, u"c:\\zarim\\imagens\\"_s},
      {line(), u""_s, {}, true, u"MS-SQL"_s, u"c:\\zarim\\imagens\\"_s},
      {other + u"\n"_s + line() + u"\n\n"_s, u"HIST"_s, {}, true, u"MS-SQL"_s, u"c:\\zarim\\imagens\\"_s},
      {other + u"\n\n  "_s + line() + u"  \n"_s, u"DEV"_s, {}, true, u"MS-SQL"_s, u"c:\\zarim\\imagens\\"_s},
      {line(u"^^^MSSQL^^True^"_s), u"PRD"_s, {}, true, u"MSSQL"_s, u"c:\\zarim\\imagens\\"_s},
      {line(u"^^^^^0^"_s), u"PRD"_s, {}, true, u"MS-SQL"_s, u"c:\\zarim\\imagens\\"_s},
      {u"a^b^c^d^FIREBIRD^server=(embutido);database="_s + databasePath() + u"^False^"_s,
       u"PRD"_s,
       {},
       true,
       u"FIREBIRD"_s,
       u"c:\\zarim\\imagens\\"_s},
      // a kind that is none opens nothing and goes on
      {line(u"^^^firebird^^False^"_s), u"PRD"_s, {}, false, u"firebird"_s, u"c:\\zarim\\imagens\\"_s},
      // no switch in field 7: silence, no folders
      {line(u"^sa^x^MS-SQL^"_s), u"PRD"_s, {}, false, u"MS-SQL"_s, {}},
      {line(u"^sa^x^MS-SQL^x^"_s), u"PRD"_s, {}, false, u"MS-SQL"_s, {}},
      {line(u"^sa^x^MS-SQL^x^talvez^"_s), u"PRD"_s, {}, false, u"MS-SQL"_s, {}},
      {u"so-um-campo"_s, u"PRD"_s, {}, false, u"."_s, {}},
      {u"\n"_s + line(), u"PRD"_s, kNoLine, false, {}, {}},
      {u"   \n"_s + line(), u"PRD"_s, kNoLine, false, {}, {}},
      {line(), u"HIST"_s, kNoLine, false, {}, {}},
      {line(), u"."_s, kNoLine, false, {}, {}},
      {line() + u"\n"_s + line() + u"\n"_s + line(), u"prd"_s, kNoLine, false, {}, {}},
      {u""_s, u"PRD"_s, kNoLine, false, {}, {}},
      {other, u"PRD"_s, kNoServer, false, u"MS-SQL"_s, {}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE((one.ambiente + u" | "_s + one.file).toStdString());
    configure(u"server.ini"_s, one.file);
    support::Script script;
    if (!one.box.isEmpty()) script.box(one.box).expectEnd(1);
    EXPECT_EQ(connects(one.ambiente), one.box.isEmpty());
    EXPECT_EQ(contexto().Conexao.isOpen(), one.open);
    EXPECT_EQ(contexto().TipoBanco, one.kind);
    EXPECT_EQ(contexto().PathImagens, one.images);
  }
}

TEST_F(Configuration, BoxesOfFailures) {
  {
    support::Script script;
    configure(u"server.ini"_s, u"(embutido)^/nada.db^^^^^0^"_s);
    script.box(kNoServer).expectEnd(1);
    connects();
    EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
    EXPECT_FALSE(script.lastBox().title.has_value());
  }
  {
    support::Script script;
    configure(u"server.ini"_s, u""_s);
    script.box(kNoLine).expectEnd(1);
    connects();
    EXPECT_EQ(script.lastBox().icon, forms::Icon::None);
    EXPECT_EQ(script.lastBox().title, u"Falha de Conexão com o Servidor"_s);
  }
  support::Script script;
  remove(u"server_aplic.ini"_s);
  script.box(kNoAplic).expectEnd(1);
  EXPECT_FALSE(connects());
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
  EXPECT_EQ(script.lastBox().title, u"Zarim 1.2"_s);
}

// Where the files are looked for, by what server_aplic.ini says: root "c:\outra\" has its own files, others
// fall back on the fixed folder.
TEST_F(Configuration, InstallRoots) {
  QDir(drive()).mkpath(u"outra/config"_s);
  files::write(u"c:\\outra\\config\\server.ini"_s, (line(u"^outra^x^^^0^"_s)).toUtf8());
  const struct {
    QByteArray aplic;
    QString user, paths;
  } cases[] = {
      {"c:\\^outra\\^", u"outra"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {"  c:\\ ^ outra\\ ^ \r\nresto", u"outra"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {"\xEF\xBB\xBF"
       "c:\\^outra\\^\r\n",
       u"outra"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {"c:\\^nada\\^", u"sa"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {"c:\\outra\\", u"sa"_s, u"c:\\zarim\\config\\paths.ini"_s},  // field 2 is "."
      {"", u"sa"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {"\n", u"sa"_s, u"c:\\zarim\\config\\paths.ini"_s},
      {QByteArray("c:\\^\0utra\\^", 11), u"sa"_s, u"c:\\zarim\\config\\paths.ini"_s},  // a bad file name
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.aplic.toStdString());
    write(u"server_aplic.ini"_s, one.aplic);
    EXPECT_TRUE(connects());
    EXPECT_TRUE(contexto().Conexao.isOpen());
    EXPECT_EQ(contexto().UsuarioBanco, one.user);
    EXPECT_EQ(contexto().ArqPaths, one.paths);
  }
}

TEST_F(Configuration, FilesMissingShortOrInAnotherEncoding) {
  const struct {
    std::optional<QByteArray> paths;
    QString images, docs;
  } cases[] = {{std::nullopt, u""_s, u""_s},
               {"", u""_s, u""_s},
               {"a", u"."_s, u"."_s},
               {"a^b^c:\\fotos\\", u"c:\\fotos\\"_s, u"."_s},
               {"\xEF\xBB\xBF"
                "a^b^c:\\promo\xC3\xA7\xC3\xB5"
                "es\\^\r\n",
                u"c:\\promoções\\"_s, u"."_s},
               {"a^b^ c:\\promo\xE7\xF5"
                "es\\ ^c^d^e^f^g^h^ c:\\docs\\ \n",
                u"c:\\promoções\\"_s, u"c:\\docs\\"_s}};
  for (const auto& one : cases) {
    if (one.paths)
      write(u"paths.ini"_s, *one.paths);
    else
      remove(u"paths.ini"_s);
    EXPECT_TRUE(connects());
    EXPECT_TRUE(contexto().Conexao.isOpen());
    EXPECT_EQ(contexto().PathImagens, one.images);
    EXPECT_EQ(contexto().PathDocs, one.docs);
  }
  remove(u"server.ini"_s);
  EXPECT_TRUE(connects()) << "a file that can't be opened is passed over in silence";
  EXPECT_FALSE(contexto().Conexao.isOpen());
}

// Three lines and a final line end are read; a fourth line never returns.
TEST_F(Configuration, AFourthLineNeverReturns) {
  const auto returns = [&](const QString& file) {
    configure(u"server.ini"_s, file);
    const pid_t child = fork();
    if (child == 0) {
      std::signal(SIGALRM, SIG_DFL);
      const itimerval timer{{0, 0}, {0, 700'000}};
      setitimer(ITIMER_REAL, &timer, nullptr);
      contexto().Ambiente = u"PRD"_s;
      ConectaServidor();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) || WTERMSIG(status) == SIGALRM);
    return WIFEXITED(status);
  };
  reiniciaContexto();
  EXPECT_TRUE(returns(line() + u"\nb\nc\n"_s));
  EXPECT_FALSE(returns(line() + u"\nb\nc\n\n"_s));
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
               {u"7"_s, 3, u"."_s, u"7^"_s},
               {u"a^b^"_s, 0, u""_s, u"a^b^"_s},
               {u"a^b^"_s, -1, u""_s, u"a^b^"_s},
               {u"  "_s, 1, u""_s, u"^"_s},
               {u"  "_s, 2, u"."_s, u"^"_s},
               {u"a^ b "_s, 2, u" b"_s, u"a^ b^"_s},
               {u"\ta"_s, 1, u"\ta"_s, u"\ta^"_s}};
  for (const auto& one : cases) {
    QString text = one.text;
    EXPECT_EQ(PegaCampo(text, one.n), one.field) << one.text.toStdString();
    EXPECT_EQ(text, one.after);
    EXPECT_EQ(PegaCampo(std::as_const(one.text), one.n), one.field);
  }
  EXPECT_EQ(PegaCampoDelimitado(u"a;b^;c"_s, 2, u';'), u"b^");
}

// Fields joined are the fields found again, whatever they hold.
TEST(Fields, AnyFieldsComeBack) {
  QRandomGenerator random(99);
  const QString alphabet = u"a ^\t\r\n.|'\"\0é\U0001F600"_s;
  for (int i = 0; i < 20'000; ++i) {
    QStringList fields;
    for (int n = 1 + random.bounded(8); n > 0; --n) {
      QString field;
      for (int length = random.bounded(6); length > 0; --length)
        field += alphabet[random.bounded(alphabet.size())];
      fields << field.replace(u'^', u'x');
    }
    fields.first().prepend(u'x');  // blanks at the very start are trimmed
    const QString text = fields.join(u'^') + u'^';
    for (int n = 1; n <= fields.size(); ++n) ASSERT_EQ(PegaCampo(text, n), fields[n - 1]);
    ASSERT_EQ(PegaCampo(text, static_cast<int>(fields.size()) + 1), u".");
  }
}

TEST_F(Configuration, MarkerAndScreen) {
  EXPECT_EQ(TipoInstalacao(), u"CLIENTE");
  write(u"trevano.TXT"_s, "");
  EXPECT_EQ(TipoInstalacao(), u"TREVANO");
  EXPECT_EQ(ResolucaoTela(), u"768 x 1024");
}

TEST_F(Configuration, ClosingEndsOnlyAnOpenConnection) {
  {
    support::Script script;
    script.expectEnd(0);
    EXPECT_THROW(FechaConexao(u"SAIR"_s), forms::Ended);
    EXPECT_FALSE(contexto().Conexao.isOpen());
  }
  support::Script script;
  FechaConexao(u"SAIR"_s);
}

// Any bytes in the three files: a box and an end, silence, or a connection, never a crash.
TEST_F(Configuration, AnyBytes) {
  const QByteArray alphabet("^^^^^(embutido) ;=\\:c\r\t.0\0\xE7\xC3\xA7", 32);
  QRandomGenerator random(3);
  forms::setBoxAnswerer([](const forms::Box&) { return forms::Answer::Ok; });
  forms::setEnd([](int) {});
  for (int i = 0; i < 400; ++i) {
    for (const auto& name : {u"server_aplic.ini"_s, u"server.ini"_s, u"paths.ini"_s}) {
      QByteArray bytes;
      for (int length = random.bounded(60); length > 0; --length) bytes += alphabet[random.bounded(32)];
      write(name, bytes.replace('\r', bytes.count('\r') < 3 ? "\r" : " "));
    }
    connects();
  }
  forms::setBoxAnswerer({});
  forms::setEnd({});
}

}  // namespace
