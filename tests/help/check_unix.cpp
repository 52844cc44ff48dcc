#include "help/check.h"

#include <QFile>
#include <QGuiApplication>

#include "platform/files/contents.h"
#include "schema/rights.h"
#include "sqlserver/tds_server.h"
#include "support/company.h"
#include "support/printing.h"
#include "support/smtp_server.h"

using namespace Qt::StringLiterals;
using sqlserver::TdsServer;

namespace {

/// A company on the test server where all is well.
class Check : public support::Company {
 protected:
  Check() {
    QFile::remove(server.databasePath());
    QFile::copy(databasePath(), server.databasePath());
    support::fillBasics(server.databasePath());
    qputenv("TDSPORT", QByteArray::number(server.port()));
    serverIni(TdsServer::configurationLine());
    files::write(u"c:\\zarim\\imagens\\sem_imagem.jpg"_s, "x");
    mailServer(mail.address());
  }
  ~Check() override { qunsetenv("TDSPORT"); }

  void serverIni(const QString& content) { serverIni(content.toUtf8()); }
  void serverIni(const QByteArray& content) {
    files::write(u"c:\\zarim\\config\\server.ini"_s, content, files::Readers::Nobody);
  }
  void onServer(const QString& statement) { support::connectionTo(server.databasePath()).execute(statement); }
  void mailServer(const QString& address) { onServer(u"UPDATE empr SET emai_serv = '%1'"_s.arg(address)); }

  /// The lines with something to do; all lines are in `said`.
  QStringList faults() {
    QStringList found;
    said.clear();
    const bool well = verificaInstalacao(u"PRD"_s, [&](const Achado& one) {
      said << linhaDo(one);
      if (!one.conselho.isEmpty()) found << linhaDo(one);
    });
    EXPECT_EQ(well, found.isEmpty());
    return found;
  }

  TdsServer server;
  const support::SmtpServer mail;
  QStringList said;
};

TEST_F(Check, SaysThatAllIsWellAndWritesNothing) {
  QStringList writing;
  server.setFault([&writing](const QString& statement) {
    if (!statement.contains(u"WHERE 1=0"_s) && !statement.startsWith(u"SELECT"_s)) writing << statement;
    return TdsServer::Act::Answer;
  });
  EXPECT_EQ(faults(), QStringList());
  EXPECT_GT(said.size(), 60);
  EXPECT_TRUE(said.filter(u"servidor 127.0.0.1, banco zarim, usuário vendas, senha dada"_s).size() == 1);
  EXPECT_FALSE(said.join(u' ').contains(TdsServer::Password));
  writing.removeIf([](const QString& one) { return one == u"LOGIN" || one.startsWith(u"SET "_s); });
  EXPECT_EQ(writing, QStringList());
  EXPECT_TRUE(mail.messages().isEmpty());
}

TEST_F(Check, NamesEachRightThatIsTakenAway) {
  for (const schema::Right& right : schema::rights()) {
    const auto& [act, table] = right;
    server.setFault([taken = act + u' ' + table](const QString& statement) {
      return TdsServer::rightOf(statement) == taken ? TdsServer::Act::Refuse : TdsServer::Act::Answer;
    });
    // Writes whose rows are found by reading are refused with the reading.
    QStringList found = faults();
    found.removeIf([&](const QString& line) { return act == u"SELECT" && line.contains(u" em "_s + table); });
    ASSERT_EQ(found.size(), 1) << (act + u' ' + table + u": "_s + found.join(u'\n')).toStdString();
    const QString subject = act == u"SELECT" ? u"tabela "_s + table : act + u" em "_s + table;
    EXPECT_TRUE(found.first().startsWith(u"[FALTA] "_s + subject + u": "_s)) << found.first().toStdString();
  }
}

TEST_F(Check, NamesEachFault) {
  const QString line = TdsServer::configurationLine();
  const QString root = drive() + u"/zarim/"_s;
  const auto again = [&] { serverIni(line); };
  const struct {
    QString expected;
    std::function<void()> make, mend;
  } cases[] = {
      {u"parece um comentário"_s, [&] { serverIni(u"# produção\n"_s + line); }, again},
      {u"depois da terceira"_s, [&] { serverIni(line + u"\nb\nc\n\n"_s); }, again},
      {u"está em UTF-16"_s,
       [&] {
         serverIni(
             QByteArray("\xFF\xFE"
                        "1\0^\0",
                        6));
       },
       again},
      {u"faltam campos"_s, [&] { serverIni(u"127.0.0.1^zarim^vendas^Segredo1^MS-SQL^^"_s); }, again},
      {u"True ou False"_s, [&] { serverIni(QString(line).replace(u"Segredo1"_s, u"Seg^Segredo1"_s)); },
       again},
      {u"em maiúsculas"_s, [&] { serverIni(QString(line).toLower()); }, again},
      {u"ponto e vírgula"_s, [&] { serverIni(QString(line).replace(u"Segredo1"_s, u"Segredo1;x"_s)); },
       again},
      {u"qualquer usuário da máquina"_s,
       [&] {
         QFile::setPermissions(root + u"config/server.ini"_s,
                               QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
       },
       again},
      {u"recusa usuário ou senha"_s, [&] { serverIni(QString(line).replace(u"Segredo1"_s, u"outra"_s)); },
       again},
      {u"o banco não existe"_s, [&] { serverIni(QString(line).replace(u"^zarim^"_s, u"^outro^"_s)); }, again},
      {u"nada responde"_s, [&] { qputenv("TDSPORT", "1"); },
       [&] { qputenv("TDSPORT", QByteArray::number(server.port())); }},
      {u"pasta dos documentos"_s, [&] { QFile::rename(root + u"documentos"_s, root + u"d"_s); },
       [&] { QFile::rename(root + u"d"_s, root + u"documentos"_s); }},
      {u"imagem de quem não tem imagem"_s,
       [&] { QFile::rename(root + u"imagens/sem_imagem.jpg"_s, root + u"x.jpg"_s); },
       [&] { QFile::rename(root + u"x.jpg"_s, root + u"imagens/sem_imagem.jpg"_s); }},
      {u"faltam colunas, ou o direito de lê-las: nome_homg"_s,
       [&] { onServer(u"ALTER TABLE prop_cmrc_homg RENAME COLUMN nome_homg TO n"_s); },
       [&] { onServer(u"ALTER TABLE prop_cmrc_homg RENAME COLUMN n TO nome_homg"_s); }},
      {u"tabela cota_comp_deta"_s, [&] { onServer(u"ALTER TABLE cota_comp_deta RENAME TO c"_s); },
       [&] { onServer(u"ALTER TABLE c RENAME TO cota_comp_deta"_s); }},
      {u"nenhum servidor"_s, [&] { mailServer({}); }, [&] { mailServer(mail.address()); }},
      {u"correio dos avisos"_s, [&] { mailServer(u"localhost:1"_s); }, [&] { mailServer(mail.address()); }},
      {u"server_aplic.ini"_s, [&] { QFile::rename(root + u"config/server_aplic.ini"_s, root + u"s"_s); },
       [&] { QFile::rename(root + u"s"_s, root + u"config/server_aplic.ini"_s); }},
      {u"drive C"_s, [&] { qputenv("ZARIM_DRIVE_C", "/nada"); },
       [&] { qputenv("ZARIM_DRIVE_C", drive().toUtf8()); }},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.expected.toStdString());
    one.make();
    const QStringList found = faults();
    EXPECT_FALSE(found.filter(one.expected).isEmpty()) << found.join(u'\n').toStdString();
    EXPECT_FALSE(said.join(u' ').contains(u"Segredo1"_s)) << said.join(u'\n').toStdString();
    one.mend();
  }
  EXPECT_EQ(faults(), QStringList());
}

TEST_F(Check, TriesTheLoginOfTheMailServerByName) {
  const support::SmtpServer strict({u"--login"_s, u"vendas@aurora.example:senha-empresa"_s});
  mailServer(strict.address());
  const QStringList found = faults();
  ASSERT_EQ(found.size(), 1) << found.join(u'\n').toStdString();
  EXPECT_TRUE(found.first().startsWith(u"[FALTA] correio dos orçamentos"_s)) << found.first().toStdString();
  EXPECT_FALSE(found.first().contains(u"senha-orca"_s));
  EXPECT_TRUE(strict.messages().isEmpty());
}

}  // namespace
