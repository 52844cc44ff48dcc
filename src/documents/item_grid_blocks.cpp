// Items of a quote as a grid: one table for each item, its materials under it.
#include <array>
#include <utility>

#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "documents/quote_blocks.h"
#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using grade::rotulada;
using html::kFim;

namespace {

const std::array<Coluna, 6> kColunas{{
    {u"Código"_s, u"15%"_s, coluna::codigo},
    {u"Descrição"_s, u"40%"_s, coluna::descricao},
    {u"Observação"_s, u"20%"_s, coluna::observacao, kEsquerda, true},
    {u"Qtde"_s, u"5%"_s, coluna::quantidade, kDireita},
    {u"Valor Unit."_s, u"10%"_s, coluna::valorUnitario, kDireita},
    {u"Valor Total"_s, u"10%"_s, coluna::valorTotal, kDireita},
}};

// Code and description are the product's of that id, whatever kind the item is.
Asked<QString> tabelaDoItem(data::Recordset rs) {
  const QString id = rs.text(u"idprodprot");
  auto codigo = CodigoProduto(id);
  auto descricao = DescricaoProduto(id);
  auto unidade = ehProduto(rs) ? UnidadeProduto(id) : UnidadePrototipo(id);
  const Artigo artigo = co_await artigoDe(std::move(codigo), std::move(descricao), std::move(unidade));
  const ItemImpresso item{rs, artigo};
  co_return grade::abreDetalhes() + grade::titulos(kColunas) +
      grade::item(kColunas, item, u"bgcolor='#E0E0E0'"_s) + grade::fecha();
}

// Without titles.
const std::array<Coluna, 5> kMateriais{{
    {u""_s, u"15%"_s, coluna::codigo, kDireita},
    {u""_s, u"40%"_s, coluna::descricao},
    {u""_s, u"25%"_s, [](const ItemImpresso& i) { return i.rs.text(u"OBSE_PROP_CMRC_DETA_MONTA"); },
     kEsquerda, true},
    {u""_s, u"10%"_s, coluna::quantidade, kDireita},
    {u""_s, u"10%"_s, [](const ItemImpresso& i) { return i.artigo.unidade.nome; }, kEsquerda, true},
}};

/// The row of an item without materials.
QString linhaEmBranco() {
  auto colunas = kMateriais;
  for (Coluna& coluna : colunas) {
    coluna.branco = true;
    coluna.valor = [](const ItemImpresso&) { return QString(); };
  }
  return grade::item(colunas, {});
}

Asked<QString> linhaDoMaterial(data::Recordset rs) {
  const Artigo artigo = co_await artigoDoProduto(rs.text(u"idprod"));
  const ItemImpresso item{rs, artigo};
  co_return grade::item(kMateriais, item);
}

Asked<QString> itemComMateriais(data::Recordset rs, QString id, QString fotos) {
  auto pedeItem = tabelaDoItem(rs);
  auto pedeMateriais = MontagemItemHTML(id, rs.text(u"idPROP_CMRC_DETA"), rs.text(u"idprodprot"), fotos);
  const QString item = co_await pedeItem;
  const QString materiais = co_await pedeMateriais;
  co_return item + materiais;
}

QString totaisAberto(double total, double quantidade) {
  return grade::linha(
      {rotulada(u"50%"_s, u"Quantidade de produtos: "_s, values::toText(quantidade)),
       rotulada(u"50%"_s, emReais(u"Total Geral do Orçamento - "_s), emMoeda(total), kDireita)});
}

QString totaisFechado(double total, double desconto) {
  return grade::linha(
      {rotulada(u"33%"_s, emReais(u"Total Bruto - "_s), emMoeda(total)),
       rotulada(u"33%"_s, emReais(u"Desconto - "_s), emMoeda(desconto), kCentro),
       rotulada(u"33%"_s, emReais(u"Total Liquido - "_s), emMoeda(total - desconto), kDireita)});
}

}  // namespace

Asked<QString> MontagemItemHTML(QString id, QString idDetalhe, QString, QString) {
  const data::Recordset rs = co_await pedeConsulta(
      u"select * from prop_cmrc_deta_monta where idprop_cmrc="_s + id + u" and idprop_cmrc_deta = "_s +
      idDetalhe + u" and tipo_mate_prima <> 'PRODUTO' "_s);
  auto linhas = data::startEachRow(rs, linhaDoMaterial);
  QString texto = grade::abreDetalhes();
  if (linhas.empty()) texto += linhaEmBranco();
  for (auto& pedida : linhas) {
    const QString linha = co_await pedida;
    texto += linha;
  }
  co_return texto + grade::fecha() + u"<BR>"_s + kFim;
}

QString ItensOrcaGradeHTML(const QString& id, const QString& fotos, const QString& caminho) {
  const bool aberto = waitFor(DataFechamentoOrcamento(id)).isEmpty();
  // A closed quote shows what the customer approved.
  data::Recordset rs = itensDoOrcamento(id, aberto ? QString() : u" and (Not data_aprov Is Null) "_s);
  if (rs.eof()) return {};
  auto itens =
      data::startEachRow(rs, [&](const data::Recordset& item) { return itemComMateriais(item, id, fotos); });
  double total = 0;
  double quantidade = 0;
  for (auto& item : itens) {
    html::acrescenta(caminho, waitFor(item));
    total += valorOuZero(rs, u"VALO_TOTA");
    quantidade += valorOuZero(rs, u"QTDE");
    rs.moveNext();
  }
  return grade::abreDetalhes() +
         (aberto ? totaisAberto(total, quantidade)
                 : totaisFechado(total, leNumero(waitFor(DescontoOrcamento(id))))) +
         grade::fecha() + u"<BR>"_s + kFim;
}
