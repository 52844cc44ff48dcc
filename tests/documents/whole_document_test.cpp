// Whole documents, byte for byte.
#include <QFile>

#include "paper/papers.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "quote_rows.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;

namespace {

struct Case {
  const char* file;
  QString kind;
  qint32 id;
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.file; }

class WholeDocument : public Quotes, public ::testing::WithParamInterface<Case> {
 protected:
  static QString expected(const char* name) {
    QFile file(QStringLiteral(ZARIM_SOURCE_DIR "/tests/documents/expected/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
  }
};

TEST_P(WholeDocument, IsAsExpected) {
  const Case& one = GetParam();
  print(one.id);
  papers::chosen(one.kind).routine(one.id, document());
  const QStringList lines = written().split(u'\n');
  const QStringList wanted = expected(one.file).split(u'\n');
  for (qsizetype i = 0; i < std::min(lines.size(), wanted.size()); ++i)
    ASSERT_EQ(lines[i], wanted[i]) << one.file << " line " << i + 1;
  EXPECT_EQ(lines.size(), wanted.size());
}

// A quote or an order that isn't there leaves the frames alone.
INSTANTIATE_TEST_SUITE_P(All, WholeDocument,
                         ::testing::Values(Case{"grade_aberto.html", u"diario"_s, 123},
                                           Case{"grade_fechado.html", u"diario"_s, 124},
                                           Case{"grade_fechado_sem_aprovacao.html", u"diario"_s, 125},
                                           Case{"grade_sem_itens.html", u"diario"_s, 126},
                                           Case{"grade_aberto.html", u"modelo_2"_s, 123},
                                           Case{"modelo_vazio_sem_linha.html", u"modelo_vazio"_s, 999},
                                           Case{"modelo_1_sem_linha.html", u"modelo_1"_s, 999},
                                           Case{"modelo_2_sem_linha.html", u"modelo_2"_s, 999},
                                           Case{"modelo_3_sem_linha.html", u"modelo_3"_s, 999},
                                           Case{"modelo_desconhecido.html", u"modelo_desconhecido"_s, 123},
                                           Case{"pedido_sem_linha.html", u"pedido"_s, 999},
                                           Case{"pedido_sem_linha.html", u"pedido_estilos"_s, 999},
                                           Case{"pedido_importados_sem_linha.html", u"pedido_importados"_s,
                                                999}));

TEST_F(WholeDocument, ExternalDocumentsNameTheInternetServer) {
  print(123);
  documento().PublicacaoExterna = true;
  MontaOrcaGradeHTML(123, document());
  QString wanted = expected("grade_aberto.html");
  wanted.replace(u"c:\\zarim\\imagens\\"_s, u"http://www.exemplo.com.br/imagens/"_s);
  EXPECT_EQ(written(), wanted);
}

TEST_F(WholeDocument, WithoutACompanyItsBlocksAreLeftOut) {
  sql(u"UPDATE empr SET data_desa = '20240101'"_s);
  for (const QString& model : {u""_s, u"1"_s}) {
    parameter(u"MODELO_PROP_CMRC"_s, model);
    build(MontaOrcaHTML, 999);
    EXPECT_FALSE(written().contains(u"CNPJ"_s));
    EXPECT_TRUE(written().contains(u"Condições Gerais"_s));
  }
}

// The number's label and the customer's contact data go by the document on view, the payment by the print
// screen's row.
TEST_F(WholeDocument, GridReadsTheValuesOfTheScreens) {
  print(124);
  MontaOrcaGradeHTML(123, document());
  EXPECT_TRUE(written().contains(u"Pedido: </b>000123"_s));
  EXPECT_TRUE(written().contains(u"texto do vendedor"_s));
  documento().rsImpressao.close();
  files::remove(document());
  EXPECT_EQ(support::errorOf([&] { MontaOrcaGradeHTML(123, document()); }), values::kClosedObject);
  EXPECT_FALSE(files::exists(document()));
}

}  // namespace
