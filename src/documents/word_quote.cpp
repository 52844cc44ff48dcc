#include <array>

#include "documents/company_texts.h"
#include "documents/contacts.h"
#include "documents/item_columns.h"
#include "documents/quote_blocks.h"
#include "documents/word.h"
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

constexpr double kLetraNome = 10;  // the name fills one line of the letterhead
constexpr double kLetraCelula = 8, kLetraClausula = 7;

/// Types cells one after the other, moving on between them; the last one can be a number, on the right.
void digitaCelulas(WordProcessor& word, const QStringList& textos, bool negrito = false,
                   Qt::Alignment ultima = Qt::AlignLeft) {
  for (qsizetype i = 0; i < textos.size(); ++i) {
    if (i > 0) word.moveRight();
    word.setFont(u"Arial"_s, kLetraCelula, negrito);
    word.setAlignment(i + 1 < textos.size() ? Qt::AlignLeft : ultima);
    word.typeText(textos[i]);
  }
}

void timbre(WordProcessor& word) {
  word.addTable(2, false);
  word.setAlignment(Qt::AlignHCenter);
  word.addPicture(contexto().PathImagens + empresa::kLogoFixo);
  word.moveRight();
  word.setAlignment(Qt::AlignLeft);
  word.setFont(u"Arial"_s, kLetraNome, true);
  word.typeText(empresa::kNome);
  word.setFont(u"Arial"_s, 9);
  for (const QString& linha :
       {empresa::kEndereco, empresa::kCidade, u"Site: "_s + empresa::contatos().site, empresa::kFoneFax}) {
    word.typeParagraph();
    word.typeText(linha);
  }
  word.moveAfterTable();
  word.setFont(u"Arial"_s, kLetraCelula);
}

void tabelaDoCliente(WordProcessor& word, const data::Recordset& orcamento) {
  auto cliente = EnderecoCliente(orcamento.text(u"idClie"));
  auto atendente = UsuarioAtual(orcamento.text(u"IDRESV_PROP_CMRC"));
  auto emailAtendente = EmailUsuario(orcamento.text(u"IDRESV_PROP_CMRC"));
  auto evento = DescricaoTipoEvento(orcamento.text(u"idtipo_even"));
  word.addTable(3, true);
  digitaCelulas(
      word, {u"Cliente: "_s + PegaCampo(waitFor(cliente), 1),
             u"Orçamento: "_s + numeroDocumento(orcamento.text(u"idprop_cmrc")),
             u"Data: "_s + orcamento.formatDate(u"data_prop_cmrc", u"dd/mm/yyyy"),
             u"Fone: "_s + orcamento.text(u"fone_CLIE"),
             u"E-mail: "_s + orcamento.text(u"emai_CLIE").toLower(), u"Atendimento: "_s + waitFor(atendente),
             u"E-mail: "_s + waitFor(emailAtendente), u"Evento: "_s + waitFor(evento),
             u"Data Evento: "_s + orcamento.formatDate(u"DATA_even", u"dd/mm/yyyy"),
             u"Entrega: "_s + orcamento.formatDate(u"DATA_ENTG", u"dd/mm/yyyy")});
  word.moveAfterTable();
}

const std::array<Coluna, 4> kColunas{{
    {u"Cod.Prod."_s, u"15%"_s, coluna::codigo},
    {u"Produto"_s, u"43%"_s, coluna::descricao},
    {u"Observações"_s, u"28%"_s, coluna::observacao},
    {u"Qtde"_s, u"14%"_s, coluna::quantidade},
}};

/// The items without their prices, and a last row with the sum, which is returned.
double tabelaDosItens(WordProcessor& word, const QString& id) {
  const auto digita = [&word](const auto& texto, bool negrito) {
    QStringList textos;
    for (const Coluna& coluna : kColunas) textos << texto(coluna);
    digitaCelulas(word, textos, negrito, Qt::AlignRight);
  };
  word.addTable(static_cast<int>(kColunas.size()), true);
  std::vector<double> larguras;
  for (const Coluna& coluna : kColunas) larguras.push_back(values::leadingNumber(coluna.largura));
  word.setColumnShares(larguras);
  word.setHeadingRow();
  digita([](const Coluna& coluna) { return coluna.titulo; }, true);
  double total = 0;
  qsizetype digitados = 0;
  data::Recordset itens = itensDoOrcamento(id);
  data::Walk andamento;
  for (auto& pedido : data::startEachRow(itens, itemPorTipo)) {
    const ItemImpresso item{itens, waitFor(pedido)};
    andamento.done(digitados++, itens.count());
    word.moveRight();
    digita([&item](const Coluna& coluna) { return coluna.valor(item); }, false);
    total += valorOuZero(itens, u"VALO_TOTA");
    itens.moveNext();
  }
  word.moveRight();
  QStringList soma(static_cast<qsizetype>(kColunas.size()) - 2);
  digitaCelulas(word, soma << u"Total Unitário"_s << emMoeda(total), true, Qt::AlignRight);
  word.moveAfterTable();
  return total;
}

void tabelaDaQuantidade(WordProcessor& word, int pessoas, double total) {
  word.addTable(2, true);
  digitaCelulas(word,
                {u"Quantidade Solicitada: "_s + QString::number(pessoas),
                 emReais(u"Total Geral - "_s) + emMoeda(pessoas * total)},
                false, Qt::AlignRight);
  word.moveAfterTable();
}

void clausulas(WordProcessor& word) {
  word.setFont(u"Arial"_s, kLetraCelula, true);
  word.setAlignment(Qt::AlignHCenter);
  word.typeText(u"Observações"_s);
  word.keepWithNext();
  for (const QString& clausula : empresa::kClausulas) {
    word.setFont(u"Arial"_s, kLetraClausula);
    word.typeParagraph();
    word.setAlignment(Qt::AlignLeft);
    word.typeText(clausula);
  }
  word.typeParagraph();
  word.typeParagraph();
}

void rotulado(WordProcessor& word, const QString& rotulo, const QString& texto) {
  word.setFont(u"Arial"_s, kLetraCelula, true);
  word.typeText(rotulo);
  word.setBold(false);
  word.typeText(texto);
  word.typeParagraph();
}

void tabelaDaAprovacao(WordProcessor& word, const QString& pagamento) {
  word.addTable(2, true);
  word.setAlignment(Qt::AlignLeft);
  rotulado(word, u"Forma de Pagamento"_s, {});
  word.typeText(pagamento);
  word.typeParagraph();
  rotulado(word, u"Validade da proposta: "_s, empresa::kValidade);
  rotulado(word, u"Dados bancários: "_s, empresa::kBanco);
  rotulado(word, u"Razão Social: "_s, empresa::kNome);
  word.typeText(empresa::kDepartamento);
  word.moveRight();
  word.setAlignment(Qt::AlignHCenter);
  word.setFont(u"Arial"_s, kLetraCelula);
  word.typeText(u"Aprovação\nData ____ /____ /________"_s);
  for (const QString& linha : empresa::kAssinatura) {
    word.typeParagraph();
    word.typeText(linha);
  }
  word.moveAfterTable();
}

}  // namespace

void DocumentoWord(const QString& id, const QString& documento, const QString& pdf) {
  const QString numero = numeroDocumento(id);
  WordProcessor word(
      u"Orçamento de Venda - "_s + numero,
      (waitFor(DataFechamentoOrcamento(id)).isEmpty() ? u"Orçamento "_s : u"Pedido "_s) + numero);
  timbre(word);
  const data::Recordset orcamento = orcamentoDoDocumento(id);
  QString pagamento = kCondPagtoPadrao.toString();
  if (!orcamento.eof()) {
    tabelaDoCliente(word, orcamento);
    if (!orcamento.isNull(u"txt_cond_pgto")) pagamento = orcamento.text(u"txt_cond_pgto");
  }
  const double total = tabelaDosItens(word, id);
  if (const int pessoas = waitFor(PessoasOrcamento(id)); pessoas > 0)
    tabelaDaQuantidade(word, pessoas, total);
  clausulas(word);
  tabelaDaAprovacao(word, pagamento);
  word.saveAs(documento);
  word.printToPdf(pdf);
}
