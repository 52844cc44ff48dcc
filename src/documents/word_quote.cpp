#include "documents/company_texts.h"
#include "documents/contacts.h"
#include "documents/item_fields.h"
#include "documents/quote_blocks.h"
#include "documents/word.h"
#include "platform/office/printers.h"
#include "platform/office/word_processor.h"
#include "platform/values/numbers.h"
#include "quote/default_terms.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;
using office::WordProcessor;

namespace {

constexpr double kNameSize = 10;  // the name fills one line of the letterhead
constexpr double kCellSize = 8, kClauseSize = 7;

/// Releases before 2007 get their margins and table widths by number; from then on the defaults stand.
bool setsMeasures(const WordProcessor& word) { return word.version() < 12; }

/// Types cells one after the other, moving on between them; the last one can be a number, on the right.
void typeCells(WordProcessor& word, const QStringList& texts, bool bold = false,
               Qt::Alignment lastOne = Qt::AlignLeft) {
  for (qsizetype i = 0; i < texts.size(); ++i) {
    if (i > 0) word.moveRight();
    word.setFont(u"Arial"_s, kCellSize, bold);
    word.setAlignment(i + 1 < texts.size() ? Qt::AlignLeft : lastOne);
    word.typeText(texts[i]);
  }
}

void letterhead(WordProcessor& word) {
  word.addTable(1, 2, false);
  if (setsMeasures(word)) {
    word.setColumnWidth(0, 200);
    word.setColumnWidth(1, 248.9);
  }
  word.setAlignment(Qt::AlignHCenter);
  word.addPicture(contexto().PathImagens + QString::fromUtf16(company::kLogoFixo));
  word.moveRight();
  word.setAlignment(Qt::AlignLeft);
  word.setFont(u"Arial"_s, kNameSize, true);
  word.typeText(QString::fromUtf16(company::kNome));
  word.setFont(u"Arial"_s, 9);
  for (const QString& line :
       {QString::fromUtf16(company::kEndereco), QString::fromUtf16(company::kCidade),
        u"Site: "_s + company::contatos().site, QString::fromUtf16(company::kFoneFax)}) {
    word.typeParagraph();
    word.typeText(line);
  }
  word.moveAfterTable();
  word.setFont(u"Arial"_s, kCellSize);
}

void customerTable(WordProcessor& word, const data::Recordset& quote) {
  auto customer = EnderecoCliente(quote.text(u"idClie"));
  auto attendant = UsuarioAtual(quote.text(u"IDRESV_PROP_CMRC"));
  auto attendantEmail = EmailUsuario(quote.text(u"IDRESV_PROP_CMRC"));
  auto event = DescricaoTipoEvento(quote.text(u"idtipo_even"));
  word.addTable(1, 3, true);
  typeCells(word,
            {u"Cliente: "_s + PegaCampo(customer.get(), 1),
             u"Orçamento: "_s + quote.format(u"idprop_cmrc", u"000000"),
             u"Data: "_s + quote.formatDate(u"data_prop_cmrc", u"dd/mm/yyyy"),
             u"Fone: "_s + quote.text(u"fone_CLIE"), u"E-mail: "_s + quote.text(u"emai_CLIE").toLower(),
             u"Atendimento: "_s + attendant.get(), u"E-mail: "_s + attendantEmail.get(),
             u"Evento: "_s + event.get(), u"Data Evento: "_s + quote.formatDate(u"DATA_even", u"dd/mm/yyyy"),
             u"Entrega: "_s + quote.formatDate(u"DATA_ENTG", u"dd/mm/yyyy")});
  word.moveAfterTable();
}

/// The items without their prices, and a last row with the sum, which is returned.
double itemsTable(WordProcessor& word, const QString& id) {
  word.addTable(1, 4, true);
  word.setColumnShares({15, 43, 28, 14});
  word.setHeadingRow();
  typeCells(word, {u"Cod.Prod."_s, u"Produto"_s, u"Observações"_s, u"Qtde"_s}, true, Qt::AlignRight);
  double total = 0;
  qsizetype typed = 0;
  data::Recordset items = ItensDoOrcamento(id);
  data::Walk walk;
  for (auto& asked : data::startEachRow(items, PorTipo)) {
    const ItemDoDocumento item = asked.get();
    walk.done(typed++, items.count());
    word.moveRight();
    typeCells(word,
              {item.codigo, item.descricao, items.text(u"OBSE_PROP_CMRC_DETA"),
               items.format(u"QTDE", item.mascara)},
              false, Qt::AlignRight);
    total += Valor(items, u"VALO_TOTA");
    items.moveNext();
  }
  word.moveRight();
  typeCells(word, {QString(), QString(), u"Total Unitário"_s, Moeda(total)}, true, Qt::AlignRight);
  word.moveAfterTable();
  return total;
}

void requestedTable(WordProcessor& word, int persons, double total) {
  word.addTable(1, 2, true);
  typeCells(word,
            {u"Quantidade Solicitada: "_s + QString::number(persons),
             u"Total Geral - R$ "_s + Moeda(persons * total)},
            false, Qt::AlignRight);
  word.moveAfterTable();
}

void clauses(WordProcessor& word) {
  word.setFont(u"Arial"_s, kCellSize, true);
  word.setAlignment(Qt::AlignHCenter);
  word.typeText(u"Observações"_s);
  word.keepWithNext();
  for (const char16_t* clause : company::kClausulas) {
    word.setFont(u"Arial"_s, kClauseSize);
    word.typeParagraph();
    word.setAlignment(Qt::AlignLeft);
    word.typeText(QString::fromUtf16(clause));
  }
  word.typeParagraph();
  word.typeParagraph();
}

void labelled(WordProcessor& word, const QString& label, const QString& text) {
  word.setFont(u"Arial"_s, kCellSize, true);
  word.typeText(label);
  word.setBold(false);
  word.typeText(text);
  word.typeParagraph();
}

void approvalTable(WordProcessor& word, const QString& payment) {
  word.addTable(1, 2, true);
  word.setAlignment(Qt::AlignLeft);
  labelled(word, u"Forma de Pagamento"_s, {});
  word.typeText(payment);
  word.typeParagraph();
  labelled(word, u"Validade da proposta: "_s, QString::fromUtf16(company::kValidade));
  labelled(word, u"Dados bancários: "_s, QString::fromUtf16(company::kBanco));
  labelled(word, u"Razão Social: "_s, QString::fromUtf16(company::kNome));
  word.typeText(QString::fromUtf16(company::kDepartamento));
  word.moveRight();
  word.setAlignment(Qt::AlignHCenter);
  word.setFont(u"Arial"_s, kCellSize);
  word.typeText(u"Aprovação\nData ____ /____ /________"_s);
  for (const char16_t* line : company::kAssinatura) {
    word.typeParagraph();
    word.typeText(QString::fromUtf16(line));
  }
  word.moveAfterTable();
}

/// Prints on the silent PDF printer, which is the default while it does so.
void printToPdf(WordProcessor& word, const QString& pdf, const QString& firstPrinter) {
  const std::pair<const char16_t*, QString> settings[] = {{u"output", pdf},
                                                          {u"showsettings", u"never"_s},
                                                          {u"ShowPDF", u"no"_s},
                                                          {u"ShowSaveAS", u"never"_s},
                                                          {u"ShowProgress", u"no"_s},
                                                          {u"ShowProgressFinished", u"no"_s},
                                                          {u"ConfirmOverwrite", u"no"_s}};
  office::PdfPrinterSettings printer;
  for (const auto& [name, value] : settings) printer.setValue(QString::fromUtf16(name), value);
  printer.writeSettings();
  const QString pdfPrinter = QString::fromUtf16(office::kPdfPrinter);
  if (office::printers().contains(pdfPrinter)) office::setDefaultPrinter(pdfPrinter);
  word.setActivePrinter(pdfPrinter);
  word.printOut();
  word.closeDocument();
  office::setDefaultPrinter(firstPrinter);
  word.setActivePrinter(firstPrinter);
  word.quit();
}

}  // namespace

QString NomeVersaoWord(double versao) {
  static constexpr std::pair<double, const char16_t*> kReleases[] = {{8, u"Office 97"},
                                                                     {9, u"Office 2000"},
                                                                     {10, u"Office XP (2002)"},
                                                                     {11, u"Office 2003"},
                                                                     {12, u"Office 2007"}};
  for (const auto& [number, name] : kReleases)
    if (number == versao) return QString::fromUtf16(name);
  return {};
}

void DocumentoWord(const QString& id, const QString& documento, const QString& pdf) {
  // Read for the record: one layout serves all models, and of the release only the number counts.
  [[maybe_unused]] const QString model = ParametroEmpresa(u"MODELO_PROP_CMRC"_s);
  const QString firstPrinter = office::defaultPrinter();
  WordProcessor word;
  [[maybe_unused]] const QString release = NomeVersaoWord(word.version());
  word.addDocument(u"Orçamento de Venda - "_s + values::format(values::leadingNumber(id), u"000000"));
  if (setsMeasures(word)) {
    word.setTopMargin(2);
    word.setBottomMargin(1.5);
  }
  letterhead(word);
  const data::Recordset quote = OrcamentoDoDocumento(id);
  QString payment = kCondPagtoPadrao.toString();
  if (!quote.eof()) {
    customerTable(word, quote);
    if (!quote.isNull(u"txt_cond_pgto")) payment = quote.text(u"txt_cond_pgto");
  }
  const double total = itemsTable(word, id);
  if (const int persons = PessoasOrcamento(id); persons > 0) requestedTable(word, persons, total);
  clauses(word);
  approvalTable(word, payment);
  word.setVisible(true);
  word.saveAs(documento);
  printToPdf(word, pdf, firstPrinter);
}
