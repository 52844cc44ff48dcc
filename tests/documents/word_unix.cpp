#include "documents/word.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"
#include "quote_rows.h"

using namespace Qt::StringLiterals;

namespace {

class WordDocument : public Quotes {
 protected:
  WordDocument() { drawLogo(127); }

  static void drawLogo(int height) {
    QImage logo(283, height, QImage::Format_RGB32);
    logo.fill(Qt::darkRed);
    logo.save(files::resolve(contexto().PathImagens) + u"/logomartatavora283x127.jpg"_s);
  }
  static QString textOf(const QString& program, const QStringList& arguments) {
    QProcess tool;
    tool.start(program, arguments);
    EXPECT_TRUE(tool.waitForFinished(60000)) << program.toStdString();
    return QString::fromUtf8(tool.readAllStandardOutput());
  }
  QString layoutOfPdf() const { return textOf(u"pdftotext"_s, {u"-layout"_s, files::resolve(pdf_), u"-"_s}); }
  QString textOfPdf() const { return layoutOfPdf().simplified(); }

  /// How the last paragraph with a text is aligned in the Word file: "\\qc".
  static QByteArray alignmentOf(const QByteArray& rtf, const char* text) {
    const QByteArray paragraph = rtf.sliced(rtf.lastIndexOf("\\pard", rtf.lastIndexOf(text)));
    return paragraph.mid(paragraph.indexOf("\\q"), 3);
  }

  const QString doc_ = contexto().PathDocs + u"orca_cliente_000123.doc"_s;
  const QString pdf_ = contexto().PathDocs + u"orca_cliente_000123.pdf"_s;
};

/// What the document says, in any order.
const QString kTexts =
    u"Marta L. Tavora Produtos Personalizados|Rua das Acácias, 100 - Jardim Aurora|"
    "Cliente: Clara Festas Ltda|Orçamento: 000123|Data: 05/03/2024|Fone: (19) 3333-1000|"
    "E-mail: contato@clara.example|Atendimento: MARIA|E-mail: maria@aurora.example|Evento: Casamento|"
    "Cod.Prod.|Observações|CX-100|Caixa branca|Fita João|202|Lata dourada|2,50|Total Unitário|1307,25|"
    "Quantidade Solicitada: 80|Total Geral - R$ 104580,00|1 - Todos os valores|7 - Todas as peças|"
    "Forma de Pagamento|5% de desconto para pagamento à vista ou|50% de sinal e 50% na entrega|"
    "Validade da proposta: 10 dias|Banco Alfa - Ag 0001 - C/C 00000-00|carimbo da empresa"_s;

TEST_F(WordDocument, PdfHoldsTheWholeQuote) {
  files::write(pdf_, "an old one");
  DocumentoWord(u"123"_s, doc_, pdf_);
  const QString text = textOfPdf();
  for (const QString& part : kTexts.split(u'|'))
    EXPECT_TRUE(text.contains(part)) << part.toStdString() << "\n" << text.toStdString();
  // A quote without lines has a heading and a total row.
  DocumentoWord(u"126"_s, doc_, pdf_);
  EXPECT_TRUE(textOfPdf().contains(u"Cod.Prod. Produto Observações Qtde Total Unitário 0,00"_s));
}

// Whatever the number of lines: no page is empty, nothing stands twice, every page of lines has their
// titles, no row is cut.
TEST_F(WordDocument, PagesOfAnyNumberOfLines) {
  const QString clauses =
      u"1 - Todos os valores|2 - Após a aprovação|3 - O transporte|4 - As reclamações|"
      "5 - Toda matéria-prima|6 - Fica vedada|7 - Todas as peças|Observações\n|"
      "Forma de Pagamento|carimbo da empresa|Total Unitário"_s;
  for (int lines = 0; lines <= 60; ++lines) {
    if (lines > 0)
      sql(u"INSERT INTO prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idprodprot, prod_prot, qtde, "
          "obse_prop_cmrc_deta) VALUES (%1, 126, 101, 'PROD', 1, 'linha %1.%2')"_s.arg(1000 + lines)
              .arg(lines % 3 > 0
                       ? u""_s
                       : u" com uma observação comprida, que pede mais de uma linha da célula, até o fim%1."_s
                             .arg(1000 + lines)));
    drawLogo(100 + lines);  // less than a point moves all the rest, so that rows end at any place of a page
    SCOPED_TRACE(lines);
    DocumentoWord(u"126"_s, doc_, pdf_);
    QStringList pages = layoutOfPdf().split(u'\f');
    ASSERT_EQ(pages.takeLast(), QString()) << "after the last page";
    for (const QString& page : pages) {
      EXPECT_FALSE(page.trimmed().isEmpty());
      EXPECT_EQ(page.contains(u"linha 1"_s) || page.contains(u"Total Unitário"_s),
                page.contains(u"Cod.Prod."_s));
      EXPECT_EQ(page.contains(u"Observações\n"_s), page.contains(u"1 - Todos os valores"_s));
      for (int line = 1003; line <= 1000 + lines; line += 3)
        EXPECT_EQ(page.contains(u"linha %1."_s.arg(line)), page.contains(u"fim%1."_s.arg(line))) << line;
    }
    const QString text = pages.join(QString());
    for (const QString& part : clauses.split(u'|')) EXPECT_EQ(text.count(part), 1) << part.toStdString();
    for (int line = 1; line <= lines; ++line)
      EXPECT_EQ(text.count(u"linha %1."_s.arg(1000 + line)), 1) << line;
    if (HasFailure()) FAIL() << text.toStdString();
  }
}

TEST_F(WordDocument, WordProcessorsOpenTheFileWithTablesPictureAndTexts) {
  DocumentoWord(u"123"_s, doc_, pdf_);
  const QString folder = QFileInfo(files::resolve(doc_)).path();
  textOf(u"soffice"_s, {u"-env:UserInstallation=file://"_s + drive() + u"/perfil"_s, u"--headless"_s,
                        u"--convert-to"_s, u"fodt"_s, u"--outdir"_s, folder, files::resolve(doc_)});
  const QString content = QString::fromUtf8(files::readAll(folder + u"/orca_cliente_000123.fodt"_s));
  EXPECT_EQ(content.count(u"<table:table "_s), 5);
  EXPECT_EQ(content.count(u"<draw:image"_s), 1);
  EXPECT_TRUE(content.contains(u"Fita João"_s));
}

TEST_F(WordDocument, MarginsTitlesAndAlignmentsStandInTheWordFile) {
  DocumentoWord(u"123"_s, doc_, pdf_);
  const QByteArray rtf = files::readAll(doc_);
  EXPECT_TRUE(rtf.contains("\\margl1701\\margr1701\\margt1417\\margb1417"));
  EXPECT_EQ(rtf.count("\\trhdr") + rtf.count("\\keepn"), 2);
  EXPECT_EQ(alignmentOf(rtf, "Observa") + alignmentOf(rtf, "1 - Todos"), "\\qc\\ql");
  EXPECT_EQ(alignmentOf(rtf, "Lata dourada") + alignmentOf(rtf, "1307,25"), "\\ql\\qr");
}

TEST_F(WordDocument, WithoutTheLetterheadsPictureItFailsAndWritesNothing) {
  files::remove(contexto().PathImagens + u"logomartatavora283x127.jpg"_s);
  EXPECT_THROW(DocumentoWord(u"123"_s, doc_, pdf_), values::RuntimeError);
  EXPECT_FALSE(files::exists(doc_));
  EXPECT_FALSE(files::exists(pdf_));
}

TEST_F(WordDocument, TheLayoutTrialIsSavedAtItsFixedPath) {
  QImage(60, 40, QImage::Format_RGB32).save(files::resolve(u"c:\\zarim\\imagens"_s) + u"/logo_cliente.jpg"_s);
  documento().IdDocumento = 123;
  gravaAmostraWord(documento().IdDocumento);
  const QByteArray rtf = files::readAll(u"c:\\zarim\\teste_orca9.doc"_s);
  for (const auto* part : {"000123 - 05/03/2024", "Presentes Aurora Ltda", "PRESENTES PERSONALIZADOS"})
    EXPECT_TRUE(rtf.contains(part)) << rtf.constData();
  EXPECT_EQ(alignmentOf(rtf, "000123 - 05/03/2024") + alignmentOf(rtf, "Dados do Cliente"), "\\qc\\ql");
}

}  // namespace
