#include "sample/company.h"

#include <gtest/gtest.h>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <memory>

#include "platform/data/connection.h"
#include "platform/files/paths.h"
#include "run/configuration.h"
#include "run/context.h"
#include "sample/rows.h"

using namespace Qt::StringLiterals;

namespace {

const QDate kDay(2026, 3, 16);

/// One installation for all tests of this file, connected as the start sequence does.
class SampleCompany : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<QTemporaryDir>();
    qputenv("ZARIM_DRIVE_C", folder_->path().toUtf8());
    sample::install(folder_->path(), {kDay, {}});
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
  static int count(const char16_t* from) {
    return ask(u"select count(*) from "_s + QString::fromUtf16(from)).toInt();
  }
  static QString path(const QString& inside) { return folder_->path() + u"/zarim/"_s + inside; }

  static std::unique_ptr<QTemporaryDir> folder_;
};

std::unique_ptr<QTemporaryDir> SampleCompany::folder_;

TEST_F(SampleCompany, HasWhatAPersonAtWorkNeeds) {
  struct Need {
    const char16_t* from;
    int least;
    int most = 1000;
  };
  static constexpr Need needs[] = {
      {u"clie where data_desa is null", 12, 12},
      {u"(select distinct idpess from pess_cont) c, clie where clie.idpess = c.idpess and data_desa is null",
       12, 12},
      {u"vend where data_desa is null", 5, 5},
      {u"trpt where data_desa is null", 2},
      {u"(select distinct qtde_deci from unid)", 4, 4},
      {u"prod where prod_mate_prim = 'P' and data_desa is null", 60, 60},
      {u"prod where data_desa is not null", 1},
      {u"(select distinct idmoed from camb where data_desa is null and idmoed > 1)", 2, 2},
      {u"(select idmoed from camb group by idmoed having count(*) = count(data_desa))", 1, 1},
      {u"prot", 40, 40},
      {u"(select distinct idcole from prot)", 6, 6},
      {u"prot where idprod > 0", 3},
      {u"prot where idprod = 0", 1},
      {u"prot where data_desa is not null", 2},
      {u"prot where data_inut is not null and data_desa is null", 2},
      {u"(select distinct idprot from prot_kit0)", 5},
      {u"prot_kit0 where idprod = 0 and desc_nprod is not null", 1},
      {u"(select distinct idprod from prod_kit0)", 3},
      {u"cond_pgto where data_desa is not null", 1, 1},
      {u"cor_sist", 2},
      {u"work_even, work_even_usen, usen where work_even.idwork_even = work_even_usen.idwork_even and "
       u"usen.idusen = work_even_usen.idusen and work_even_usen.data_desa is null and emai_user is not null "
       u"and "
       u"codi_work_even in ('PROJETACOMPRA', 'AVISOORCAFECHADO', 'AVISOORCAFECHADOFULL')",
       5},
      {u"pedi_veds, pedi_veds_deta where pedi_veds.idpedi_veds = pedi_veds_deta.idpedi_veds", 2},
      {u"cota_comp, cota_comp_deta where cota_comp.idcota_comp = cota_comp_deta.idcota_comp", 2},
      {u"pedi_comp, pedi_comp_deta where pedi_comp.idpedi_comp = pedi_comp_deta.idpedi_comp", 2},
      // Quotes: open, partly approved, closed, closed with an order, deactivated, showroom.
      {u"prop_cmrc", 12, 20},
      {u"prop_cmrc q where data_fech is null and data_desa is null and not exists (select 1 from "
       u"prop_cmrc_deta d "
       u"where d.idprop_cmrc = q.idprop_cmrc and data_aprov is not null)",
       3},
      {u"prop_cmrc q where data_fech is null and data_desa is null and exists (select 1 from prop_cmrc_deta "
       u"d "
       u"where d.idprop_cmrc = q.idprop_cmrc and data_aprov is not null) and exists (select 1 from "
       u"prop_cmrc_deta d "
       u"where d.idprop_cmrc = q.idprop_cmrc and data_aprov is null)",
       3},
      {u"prop_cmrc where data_fech is not null and idprop_cmrc not in (select idprop_cmrc from pedi_veds)",
       1},
      {u"prop_cmrc where data_fech is not null and idprop_cmrc in (select idprop_cmrc from pedi_veds)", 2},
      {u"prop_cmrc where data_desa is not null", 2},
      {u"prop_cmrc where show_excl = 'S'", 1},
      {u"prop_cmrc_homg", 5},
      {u"prop_cmrc_deta where prod_prot = 'PROT'", 3},
      {u"(select distinct idprop_cmrc_deta from prop_cmrc_deta_monta)", 20}};
  for (const Need& need : needs) {
    const int found = count(need.from);
    EXPECT_TRUE(found >= need.least && found <= need.most)
        << QString::fromUtf16(need.from).toStdString() << ": " << found;
  }
  for (const int instalments : {1, 2, 3, 6})
    EXPECT_NE(ask(u"select idcond_pgto from cond_pgto where data_desa is null and qtde_parc = %1"_s.arg(
                  instalments)),
              QString());
}

TEST_F(SampleCompany, HasTwentyMaterialsOfEachClassThatTheProgramSearchesFor) {
  for (const char16_t* name :
       {u"CONTEÚDO COMESTÍVEL", u"CONTEÚDO NÃO COMESTÍVEL", u"FECHAMENTO", u"CARD", u"ADEREÇO", u"OUTROS"})
    EXPECT_EQ(
        ask(u"select count(*) from prod where prod_mate_prim = 'M' and data_desa is null and tipo_mate_prima = '%1'"_s
                .arg(QString::fromUtf16(name))),
        u"20"_s);
}

TEST_F(SampleCompany, ItsNumbersAgreeWithEachOther) {
  static constexpr const char16_t* faults[] = {
      // A line is quantity times net price, and net is gross less discount.
      u"prop_cmrc_deta where abs(valo_tota - qtde * valo_liqu) > 0.005 or abs(valo_liqu - valo_unit + "
      u"valo_dect) > 0.005",
      u"prop_cmrc_deta_monta where abs(valo_tota - qtde * valo_unit) > 0.00501",
      // An assembled line is worth its materials, has one product, and it is that product.
      u"prop_cmrc_deta d where idprop_cmrc_deta in (select idprop_cmrc_deta from prop_cmrc_deta_monta) and "
      u"abs(valo_unit - (select sum(m.valo_tota) from prop_cmrc_deta_monta m "
      u"where m.idprop_cmrc_deta = d.idprop_cmrc_deta)) > 0.005",
      u"prop_cmrc_deta d where idprop_cmrc_deta in (select idprop_cmrc_deta from prop_cmrc_deta_monta) and "
      u"1 <> (select count(*) from prop_cmrc_deta_monta m where m.idprop_cmrc_deta = d.idprop_cmrc_deta and "
      u"m.tipo_mate_prima = 'PRODUTO' and m.idprod = d.idprodprot and m.idprop_cmrc = d.idprop_cmrc)",
      u"prop_cmrc_deta_monta m, prod where prod.idprod = m.idprod and m.tipo_mate_prima <> 'PRODUTO' and "
      u"(prod.tipo_mate_prima <> m.tipo_mate_prima or prod.prod_mate_prim <> 'M')",
      u"(select idprop_cmrc_deta from prop_cmrc_deta_monta group by idprop_cmrc_deta, idprod having count(*) "
      u"> 1)",
      // Instalments add up to the approved total less the discount; a confirmed condition has them all.
      u"prop_cmrc q where idcond_pgto is not null and abs((select sum(p.valo_parc) from prop_cmrc_parc p "
      u"where "
      u"p.idprop_cmrc = q.idprop_cmrc) - (select sum(d.valo_tota) from prop_cmrc_deta d where d.idprop_cmrc "
      u"= "
      u"q.idprop_cmrc and data_aprov is not null) + coalesce(valo_dect, 0)) > 0.005",
      u"prop_cmrc q, cond_pgto c where q.idcond_pgto = c.idcond_pgto and c.qtde_parc <> (select count(*) "
      u"from "
      u"prop_cmrc_parc p where p.idprop_cmrc = q.idprop_cmrc)",
      u"cond_pgto c where qtde_parc <> (select count(*) from cond_pgto_deta d where d.idcond_pgto = "
      u"c.idcond_pgto)",
      // An approved prototype carries the mark of the quote that approved it.
      u"prop_cmrc_deta d, prot where d.prod_prot = 'PROT' and prot.idprot = d.idprodprot and d.data_aprov is "
      u"not null "
      u"and (prot.data_aprv is null or prot.prop_cmrc_aprv <> d.idprop_cmrc)",
      // An order holds the approved lines of its quote.
      u"pedi_veds o where (select sum(valo_tota) from pedi_veds_deta d where d.idpedi_veds = o.idpedi_veds) "
      u"<> "
      u"(select sum(valo_tota) from prop_cmrc_deta q where q.idprop_cmrc = o.idprop_cmrc and data_aprov is "
      u"not null)"};
  for (const char16_t* fault : faults) EXPECT_EQ(count(fault), 0) << QString::fromUtf16(fault).toStdString();
}

TEST_F(SampleCompany, ItsKeysLeadSomewhere) {
  struct Key {
    const char16_t* table;
    const char16_t* column;
    const char16_t* target;
    const char16_t* targetColumn;
  };
  static constexpr Key keys[] = {
      {u"prop_cmrc", u"idvend", u"vend", u"idvend"},
      {u"prop_cmrc", u"idclie", u"clie", u"idclie"},
      {u"prop_cmrc", u"idclie_cont", u"clie_cont", u"idclie_cont"},
      {u"prop_cmrc", u"idtipo_even", u"tipo_even", u"idtipo_even"},
      {u"prop_cmrc", u"idresv_prop_cmrc", u"usen", u"idusen"},
      {u"prop_cmrc", u"idtrpt", u"trpt", u"idtrpt"},
      {u"prop_cmrc_deta", u"idprop_cmrc", u"prop_cmrc", u"idprop_cmrc"},
      {u"prop_cmrc_deta_monta", u"idprop_cmrc_deta", u"prop_cmrc_deta", u"idprop_cmrc_deta"},
      {u"prop_cmrc_homg", u"idprop_cmrc", u"prop_cmrc", u"idprop_cmrc"},
      {u"pedi_veds", u"idprop_cmrc", u"prop_cmrc", u"idprop_cmrc"},
      {u"prod", u"idunid", u"unid", u"idunid"},
      {u"prod", u"idcole", u"cole", u"idcole"},
      {u"prod", u"idclas_fisc", u"clas_fisc", u"idclas_fisc"},
      {u"prot", u"idunid", u"unid", u"idunid"},
      {u"prot", u"idclie", u"clie", u"idclie"},
      {u"prot", u"idprod", u"prod", u"idprod"},
      {u"prod_kit0", u"idprod_kit0", u"prod", u"idprod"},
      {u"prot_kit0", u"idprod", u"prod", u"idprod"},
      {u"clie", u"idpess", u"pess", u"idpess"},
      {u"vend", u"idpess", u"pess", u"idpess"},
      {u"trpt", u"idpess", u"pess", u"idpess"},
      {u"forn", u"idpess", u"pess", u"idpess"},
      {u"pess_cont", u"idpess", u"pess", u"idpess"}};
  for (const Key& key : keys) {
    const QString column = QString::fromUtf16(key.column);
    EXPECT_EQ(ask(u"select count(*) from %1 where %2 > 0 and %2 not in (select %4 from %3)"_s.arg(
                  QString::fromUtf16(key.table), column, QString::fromUtf16(key.target),
                  QString::fromUtf16(key.targetColumn))),
              u"0"_s)
        << QString::fromUtf16(key.table).toStdString() << '.' << column.toStdString();
  }
  EXPECT_EQ(count(u"prop_cmrc_deta where prod_prot = 'PROD' and idprodprot not in (select idprod from prod)"),
            0);
  EXPECT_EQ(count(u"prop_cmrc_deta where prod_prot = 'PROT' and idprodprot not in (select idprot from prot)"),
            0);
}

TEST_F(SampleCompany, DatesCountFromTheDayOfTheInstallation) {
  EXPECT_GT(ask(u"select count(*) from prod where data_limi_prom > '20260316'"_s).toInt(), 0);
  EXPECT_GT(ask(u"select count(*) from prod where data_limi_prom = '20260316'"_s).toInt(), 0);
  EXPECT_GT(ask(u"select count(*) from prod where data_limi_prom < '20260316'"_s).toInt(), 0);
  EXPECT_GT(ask(u"select count(*) from prod where data_limi_prom is null and perc_dect > 0"_s).toInt(), 0);
  EXPECT_EQ(ask(u"select data_prop_cmrc from prop_cmrc order by data_prop_cmrc desc"_s), u"16/03/2026"_s);
}

TEST_F(SampleCompany, TextsAreFoundWhateverTheirCase) {
  EXPECT_EQ(ask(u"SELECT IDPESS FROM PESS WHERE NOME_PESS = 'ESPAÇO JARDIM DAS FIGUEIRAS EVENTOS LTDA'"_s),
            u"14"_s);
  EXPECT_EQ(ask(u"SELECT IDCOLE FROM COLE WHERE DESC_COLE = 'CASAR CLÁSSICO'"_s), u"1"_s);
}

double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

TEST_F(SampleCompany, ItsThemesAreReadable) {
  const auto colour = [](const QString& number) {
    const int value = number.toInt();  // blue-green-red
    return QColor(value & 0xff, value >> 8 & 0xff, value >> 16);
  };
  EXPECT_EQ(
      ask(u"select count(*) from cor_sist, empr_cnfg where nome_para = 'COR_PADRAO' and valo_para = desc_cor_sist"_s),
      u"1"_s);
  for (data::Recordset theme = contexto().Conexao.query(u"select * from cor_sist"_s); !theme.eof();
       theme.moveNext())
    for (const char16_t* pair : {u"0001", u"0002"}) {
      const QString number = QString::fromUtf16(pair);
      const double back = luminance(colour(theme.text(u"codi_back_"_s + number)));
      const double fore = luminance(colour(theme.text(u"codi_fore_"_s + number)));
      EXPECT_GE((back + 0.05) / (fore + 0.05), 7.0) << theme.text(u"desc_cor_sist").toStdString();
    }
}

TEST_F(SampleCompany, ItsConfigurationNamesWhatIsThere) {
  const RunContext& context = contexto();
  EXPECT_TRUE(context.Conexao.isOpen());
  EXPECT_EQ(context.NomeBanco, QString::fromUtf16(sample::kDatabase));
  EXPECT_FALSE(context.TiraAcento);
  EXPECT_TRUE(files::exists(context.ArqSemImagem));
  for (const QString& folder :
       {context.PathImagens, context.PathImagens2, context.PathDocs, context.PathWeb, context.PathLink}) {
    EXPECT_TRUE(folder.endsWith(u'\\')) << folder.toStdString();
    EXPECT_TRUE(QDir(files::resolve(folder)).exists()) << folder.toStdString();
  }
  for (const QString& environment : {u"HIST"_s, u"DEV"_s}) {
    reiniciaContexto();
    contexto().Ambiente = environment;
    ConectaServidor();
    EXPECT_EQ(count(u"prot"), 40) << environment.toStdString();
  }
  reiniciaContexto();
  contexto().Ambiente = u"PRD"_s;
  ConectaServidor();
}

TEST_F(SampleCompany, ItsPicturesAreThoseOfItsArticles) {
  const sample::Rows rows = sample::pictures();
  int plain = 0;
  int otherName = 0;
  int furtherViews = 0;
  for (std::size_t i = 0; i < rows.rows.size(); ++i) {
    const QString& code = rows.at(i, u"code");
    EXPECT_NE(
        ask(u"select codi_prod from prod where codi_prod = '%1' union select 'x' from prot where idprot = '%2'"_s
                .arg(code, QString::number(code.toInt()))),
        QString())
        << code.toStdString();
    const QString& variant = rows.at(i, u"variant");
    ++(variant.isEmpty() ? plain : otherName);
    furtherViews += static_cast<int>(rows.at(i, u"views").size());
    EXPECT_EQ(QFile::exists(path(u"imagens/%1.jpg"_s.arg(code))), variant.isEmpty());
    for (const QString& name : {u"imagens/%1%2.jpg"_s.arg(code, variant), u"imagens2/%1_g.jpg"_s.arg(code),
                                u"web/%1.jpg"_s.arg(code)})
      EXPECT_FALSE(QImage(path(name)).isNull()) << name.toStdString();
    for (const QChar view : rows.at(i, u"views"))
      EXPECT_FALSE(QImage(path(u"imagens/%1_%2.jpg"_s.arg(code).arg(view))).isNull()) << code.toStdString();
  }
  EXPECT_GT(plain, 50);
  EXPECT_GT(otherName, 3);
  EXPECT_GT(furtherViews, 30);
  EXPECT_GT(count(u"prod where prod_mate_prim = 'P'") + count(u"prot"), static_cast<int>(rows.rows.size()))
      << "some have none";
  EXPECT_EQ(QImage(path(u"imagens/logomartatavora283x127.jpg"_s)).size(), QSize(283, 127));
  for (const char16_t* name :
       {u"imagens/logo_cliente.jpg", u"web/logo_cliente.jpg", u"web/imagem_branco.jpg"})
    EXPECT_FALSE(QImage(path(QString::fromUtf16(name))).isNull());
}

TEST(Installer, StartsAfreshOnlyWhenAskedTo) {
  const QTemporaryDir folder;
  const auto install = [&](const QStringList& more) {
    QProcess process;
    process.start(QStringLiteral(ZARIM_BINARY_DIR "/tools/zarim_install"),
                  QStringList{u"--to"_s, folder.path()} + more);
    EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
  };
  const QString document = folder.path() + u"/zarim/docs/orca_cliente_000001.html"_s;
  install({u"--day"_s, u"16/03/2026"_s});
  files::write(document, "x");
  EXPECT_TRUE(install({}).contains(u"stays as it is"_s));
  EXPECT_TRUE(QFile::exists(document));
  install({u"--fresh"_s});
  EXPECT_FALSE(QFile::exists(document));
}

}  // namespace
