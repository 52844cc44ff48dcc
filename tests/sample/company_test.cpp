#include "sample/company.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/data/connection.h"
#include "platform/files/contents.h"
#include "run/context.h"
#include "sample/server.h"
#include "sqlserver/tds_server.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;

namespace {

class Installer : public ::testing::Test {
 protected:
  ~Installer() override { qunsetenv("ZARIM_DRIVE_C"); }

  /// Whether the installer made the company or left the one that is there; what it says is in `said`.
  bool install(const QStringList& more = {}) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(ZARIM_BINARY_DIR "/tools/zarim_install"),
                  QStringList{u"--to"_s, folder.path()} + more);
    EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    said = QString::fromUtf8(process.readAll());
    return process.exitCode() == 0;
  }
  QString path(const QString& inside) const { return folder.path() + u"/zarim/"_s + inside; }
  void put(const QString& inside) const { files::write(path(inside), "x"); }
  bool stays(const QString& inside) const { return files::readAll(path(inside)) == "x"; }

  const QTemporaryDir folder;
  QString said;
};

TEST_F(Installer, KeepsPasswordsFromOthers) {
  ASSERT_TRUE(install({u"--day"_s, u"16/03/2026"_s})) << said.toStdString();
  for (QDirIterator file(folder.path(), QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
    const QFileInfo info(file.next());
    const bool secret =
        info.fileName() == u"server.ini" || info.suffix() == u"db";  // with the mail's password
    const QFile::Permissions others = QFile::ReadOther | QFile::WriteOther | QFile::WriteGroup;
    EXPECT_FALSE(info.permissions() & (secret ? others | QFile::ReadGroup : others))
        << info.filePath().toStdString();
  }
}

TEST_F(Installer, MakesAnewItsOwnFilesAlone) {
  ASSERT_TRUE(install());
  const QByteArray whole = files::readAll(path(u"config/server.ini"_s));
  for (const auto& inside : {u"config/server.ini"_s, u"docs/orca_cliente_000001.html"_s, u"dados/copia.db"_s,
                             u"planilha.xls"_s, u"imagens/CX-101.jpg"_s, u"dados/zarim.db-wal"_s})
    put(inside);
  EXPECT_TRUE(install() && stays(u"config/server.ini"_s) && stays(u"imagens/CX-101.jpg"_s))
      << said.toStdString();
  EXPECT_TRUE(install({u"--fresh"_s})) << said.toStdString();
  EXPECT_EQ(files::readAll(path(u"config/server.ini"_s)), whole);
  EXPECT_FALSE(QImage(path(u"imagens/CX-101.jpg"_s)).isNull());
  EXPECT_FALSE(QFile::exists(path(u"dados/zarim.db-wal"_s)));
  for (const auto& other : {u"docs/orca_cliente_000001.html"_s, u"dados/copia.db"_s, u"planilha.xls"_s})
    EXPECT_TRUE(stays(other)) << other.toStdString();
}

TEST_F(Installer, TakesNobodysFolder) {
  // The sample without one of its files, in other letters, its data alone, a company without the mark.
  const struct {
    QString take;
    bool anew;  // --fresh makes it, since the mark is there
  } cases[] = {{u"mv config/server_aplic.ini config/S.ini"_s, true},
               {u"mv config/amostra.txt a && mv config/server_aplic.ini config/SERVER_APLIC.INI"_s, false},
               {u"rm -r config imagens imagens2 web && mv ../zarim ../ZARIM"_s, false},
               {u"rm -r config docs && touch .oculto"_s, false}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.take.toStdString());
    QProcess::execute(u"sh"_s, {u"-c"_s, u"rm -rf '%1'/*"_s.arg(folder.path())});
    ASSERT_TRUE(install());
    put(u"dados/zarim.db"_s);
    QProcess::execute(u"sh"_s, {u"-c"_s, u"cd '%1' && %2"_s.arg(path({}), one.take)});
    const bool whole = install();
    EXPECT_EQ(whole, said.contains(u"stays as it is"_s)) << said.toStdString();
    EXPECT_EQ(install({u"--fresh"_s}), one.anew) << said.toStdString();
    const QString database = QDir(folder.path()).entryList({u"zarim"_s}).value(0) + u"/dados/zarim.db"_s;
    EXPECT_EQ(files::readAll(folder.path() + u'/' + database) == "x", !one.anew);
  }
}

TEST_F(Installer, ThePictureServerFollowsNoLinkOutOfTheCompany) {
  QDir().mkpath(path(u"web"_s));
  put(u"web/dentro.jpg"_s);
  files::write(folder.path() + u"/fora.jpg"_s, "x");
  QFile::link(folder.path() + u"/fora.jpg"_s, path(u"web/fora.jpg"_s));
  QFile::link(path(u"web/dentro.jpg"_s), path(u"web/atalho.jpg"_s));
  QProcess server, client;
  server.start(u"/usr/bin/python3"_s, {QStringLiteral(ZARIM_SOURCE_DIR "/tools/servers/pictureserver.py"),
                                       u"--company"_s, path({}), u"--port"_s, u"0"_s});
  ASSERT_TRUE(server.waitForReadyRead());
  const QString address = QString::fromUtf8(server.readLine()).section(u' ', 2, 2);
  client.start(u"/usr/bin/python3"_s,
               {u"-c"_s,
                u"import sys, urllib.request, urllib.error\n"
                "for name in 'dentro', 'atalho', 'fora':\n"
                "  try: print(urllib.request.urlopen(sys.argv[1] + 'web/' + name + '.jpg').status)\n"
                "  except urllib.error.HTTPError as error: print(error.code)"_s,
                address});
  ASSERT_TRUE(client.waitForFinished());
  EXPECT_EQ(client.readAllStandardOutput(), "200\n200\n404\n");
  server.terminate();
  server.waitForFinished();
}

/// What a row of another company does to a server that holds the sample.
struct Foreign {
  const char* name;
  QString statement, kept;  // which puts the row there; what must still be there
};
void PrintTo(const Foreign& one, std::ostream* out) { *out << one.name; }

class ServerFill : public ::testing::TestWithParam<Foreign> {
 protected:
  ServerFill() {
    sample::install(folder.path(), wishes);
    qputenv("TDSPORT", QByteArray::number(server.port()));
    files::write(folder.path() + u"/zarim/config/server.ini"_s, server.configurationLine().toUtf8());
  }
  ~ServerFill() override {
    reiniciaContexto();
    qunsetenv("TDSPORT");
    qunsetenv("ZARIM_DRIVE_C");
  }
  int fill(const QString& database = sqlserver::TdsServer::Database) {
    reiniciaContexto();
    return support::errorOf([&] { sample::fillServer(folder.path(), database, wishes, true); });
  }
  QString there(const QString& statement) {
    data::Connection connection(server.connectionString(), 5);
    const auto rows = connection.query(statement);
    return rows.isOpen() ? rows.text(u"n"_s) : QString();
  }

  const sample::Wishes wishes{QDate(2026, 3, 16), {}, {}};
  const QTemporaryDir folder;
  sqlserver::TdsServer server;
};

TEST_P(ServerFill, DropsNothingOfAnotherCompany) {
  const auto& [name, statement, kept] = GetParam();
  EXPECT_EQ(fill(u"outro"_s), values::kPathFileAccess);
  EXPECT_EQ(fill(), 0) << "an empty database";
  there(u"insert into prop_cmrc (nome_clie) values ('DE UM CAMINHO')"_s);
  EXPECT_EQ(fill(), 0) << "the sample's, with a quote that a road made";
  EXPECT_EQ(there(u"select count(*) as n from prop_cmrc where nome_clie = 'DE UM CAMINHO'"_s), u"0"_s);
  there(u"insert into prop_cmrc (nome_clie) values ('DE UM CAMINHO')"_s);
  there(statement);
  EXPECT_EQ(fill(), values::kPathFileAccess);
  EXPECT_EQ(there(u"select count(*) as n from "_s + kept), u"1"_s);
}

INSTANTIATE_TEST_SUITE_P(Rows, ServerFill,
                         ::testing::Values(Foreign{"AnotherUser",
                                                   u"insert into usen (idusen, usen) values (90, 'OUTRA')"_s,
                                                   u"usen where usen = 'OUTRA'"_s},
                                           Foreign{"TheSamplesKeyWithAnotherName",
                                                   u"update clie set idpess = 999 where idclie = 1"_s,
                                                   u"clie where idpess = 999"_s},
                                           Foreign{"QuotesWithoutTheSamplesCompany", u"delete from empr"_s,
                                                   u"prop_cmrc where idprop_cmrc = 1"_s}),
                         [](const auto& one) { return one.param.name; });

}  // namespace
