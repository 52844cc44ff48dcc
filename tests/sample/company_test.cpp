#include "sample/company.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <memory>

#include "platform/data/connection.h"
#include "platform/files/contents.h"
#include "run/configuration.h"
#include "run/context.h"
#include "sample/rows.h"
#include "sample/server.h"
#include "sqlserver/tds_server.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;

namespace {

const QDate kDay(2026, 3, 16);

/// One installation for all tests of this file, connected as the start sequence does.
class SampleCompany : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<QTemporaryDir>();
    qputenv("ZARIM_DRIVE_C", folder_->path().toUtf8());
    sample::install(folder_->path(), {kDay, {}, {}});
    reiniciaContexto();
    contexto().Ambiente = u"PRD"_s;
    ConectaServidor();
  }
  static void TearDownTestSuite() {
    reiniciaContexto();
    qunsetenv("ZARIM_DRIVE_C");
    folder_.reset();
  }

  static QString ask(const QString& sql) {
    data::Recordset rows = contexto().Conexao.query(sql);
    return rows.eof() ? QString() : rows.text(rows.columns().first());
  }
  static int count(const QString& from) { return ask(u"select count(*) from "_s + from).toInt(); }
  static QString path(const QString& inside) { return folder_->path() + u"/zarim/"_s + inside; }

  static std::unique_ptr<QTemporaryDir> folder_;
};

std::unique_ptr<QTemporaryDir> SampleCompany::folder_;

TEST_F(SampleCompany, ItsNumbersAgreeWithEachOther) {
  static constexpr const char16_t* faults[] = {
      u"prop_cmrc where data_prop_cmrc > '20260316'",  // the day of the installation
      // A line is quantity times net price, and net is gross less discount.
      u"prop_cmrc_deta where abs(valo_tota - qtde * valo_liqu) > 0.005 or abs(valo_liqu - valo_unit + "
      "valo_dect) > 0.005",
      u"prop_cmrc_deta_monta where abs(valo_tota - qtde * valo_unit) > 0.00501",
      // An assembled line is worth its materials, has one product, and it is that product.
      u"prop_cmrc_deta d where exists (select count(*) from prop_cmrc_deta_monta m where "
      "m.idprop_cmrc_deta = d.idprop_cmrc_deta having abs(sum(m.valo_tota) - d.valo_unit) > 0.005 or 1 <> "
      "sum(m.tipo_mate_prima = 'PRODUTO' and m.idprod = d.idprodprot and m.idprop_cmrc = d.idprop_cmrc))",
      u"prop_cmrc_deta_monta m, prod where prod.idprod = m.idprod and m.tipo_mate_prima <> 'PRODUTO' and "
      "(prod.tipo_mate_prima <> m.tipo_mate_prima or prod.prod_mate_prim <> 'M')",
      // Instalments add up to the approved total less the discount; a confirmed condition has them all.
      u"prop_cmrc q where idcond_pgto is not null and abs((select sum(p.valo_parc) from prop_cmrc_parc p "
      "where p.idprop_cmrc = q.idprop_cmrc) - (select sum(d.valo_tota) from prop_cmrc_deta d where "
      "d.idprop_cmrc = q.idprop_cmrc and data_aprov is not null) + coalesce(valo_dect, 0)) > 0.005",
      u"prop_cmrc q, cond_pgto c where q.idcond_pgto = c.idcond_pgto and c.qtde_parc <> (select count(*) "
      "from prop_cmrc_parc p where p.idprop_cmrc = q.idprop_cmrc)",
      u"cond_pgto c where qtde_parc <> (select count(*) from cond_pgto_deta d where d.idcond_pgto = "
      "c.idcond_pgto)",
      // An approved prototype carries the mark of the quote that approved it.
      u"prop_cmrc_deta d, prot where d.prod_prot = 'PROT' and prot.idprot = d.idprodprot and d.data_aprov "
      "is not null and (prot.data_aprv is null or prot.prop_cmrc_aprv <> d.idprop_cmrc)",
      // Documents name a prototype by the product of its number, which no search of active ones finds.
      u"prot where not exists (select * from prod where prod.idprod = prot.idprot and codi_prod = idprot and "
      "desc_prod = desc_prot and prod.idunid = prot.idunid and prod_mate_prim is null and not prod.data_desa "
      "is null)",
      // The PDF multiplies the sum by the persons: then the lines are for one.
      u"prop_cmrc q, prop_cmrc_deta d where q.idprop_cmrc = d.idprop_cmrc and nume_pess > 0 and qtde <> 1",
      // An order holds the approved lines of its quote.
      u"pedi_veds o where (select sum(valo_tota) from pedi_veds_deta d where d.idpedi_veds = o.idpedi_veds) "
      "<> (select sum(valo_tota) from prop_cmrc_deta q where q.idprop_cmrc = o.idprop_cmrc and data_aprov "
      "is not null)"};
  for (const char16_t* fault : faults) EXPECT_EQ(count(fault), 0) << QString::fromUtf16(fault).toStdString();
  const QString keys =
      u"prop_cmrc.idvend=vend.idvend prop_cmrc.idclie=clie.idclie prop_cmrc.idresv_prop_cmrc=usen.idusen "
      "prop_cmrc_deta.idprop_cmrc=prop_cmrc.idprop_cmrc pedi_veds.idprop_cmrc=prop_cmrc.idprop_cmrc "
      "prop_cmrc_deta_monta.idprop_cmrc_deta=prop_cmrc_deta.idprop_cmrc_deta prod.idunid=unid.idunid "
      "prot.idunid=unid.idunid prot.idprod=prod.idprod prod_kit0.idprod_kit0=prod.idprod "
      "prot_kit0.idprod=prod.idprod clie.idpess=pess.idpess vend.idpess=pess.idpess"_s;
  for (const QString& key : keys.split(u' ')) {
    const QStringList parts = QString(key).replace(u'=', u'.').split(u'.');
    EXPECT_EQ(ask(u"select count(*) from %1 where %2 > 0 and %2 not in (select %4 from %3)"_s.arg(
                  parts[0], parts[1], parts[2], parts[3])),
              u"0"_s)
        << key.toStdString();
  }
}

double luminance(int number) {  // blue-green-red
  const auto linear = [number](int shift) {
    const double part = (number >> shift & 0xff) / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

TEST_F(SampleCompany, ItsThemesAreReadable) {
  EXPECT_EQ(count(u"cor_sist, empr_cnfg where nome_para = 'COR_PADRAO' and valo_para = desc_cor_sist"), 1);
  for (auto theme = contexto().Conexao.query(u"select * from cor_sist"_s); !theme.eof(); theme.moveNext())
    for (const auto& pair : {u"0001"_s, u"0002"_s}) {
      const double back = luminance(theme.text(u"codi_back_"_s + pair).toInt());
      const double fore = luminance(theme.text(u"codi_fore_"_s + pair).toInt());
      EXPECT_GE((back + 0.05) / (fore + 0.05), 7.0) << theme.text(u"desc_cor_sist").toStdString();
    }
}

TEST_F(SampleCompany, ItsPicturesAreThoseOfItsArticles) {
  const sample::Rows rows = sample::pictures();
  for (std::size_t i = 0; i < rows.rows.size(); ++i) {
    const QString& code = rows.at(i, u"code");
    SCOPED_TRACE(code.toStdString());
    EXPECT_NE(
        ask(u"select codi_prod from prod where codi_prod = '%1' union select 'x' from prot where idprot "
            "= '%2'"_s.arg(code, QString::number(code.toInt()))),
        QString());
    QStringList names{u"imagens/%1%2.jpg"_s.arg(code, rows.at(i, u"variant")),
                      u"imagens2/%1_g.jpg"_s.arg(code), u"web/%1.jpg"_s.arg(code)};
    for (const QChar view : rows.at(i, u"views")) names << u"imagens/%1_%2.jpg"_s.arg(code).arg(view);
    for (const QString& name : names) EXPECT_FALSE(QImage(path(name)).isNull()) << name.toStdString();
  }
  EXPECT_GT(rows.rows.size(), 50U);
  EXPECT_EQ(QImage(path(u"imagens/logomartatavora283x127.jpg"_s)).size(), QSize(283, 127));
  for (const auto& name :
       {u"imagens/logo_cliente.jpg"_s, u"web/logo_cliente.jpg"_s, u"web/imagem_branco.jpg"_s})
    EXPECT_FALSE(QImage(path(name)).isNull());
}

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
    sample::install(folder.path(), {kDay, {}, {}});
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
    return support::errorOf([&] { sample::fillServer(folder.path(), database, {kDay, {}, {}}, true); });
  }
  QString there(const QString& statement) {
    data::Connection connection;
    connection.open(server.connectionString(), 5);
    const auto rows = connection.query(statement);
    return rows.isOpen() ? rows.text(u"n"_s) : QString();
  }

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
