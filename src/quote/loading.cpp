#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "shared/articles.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using forms::GridRow;

// A stored quote on the screen: header, items with their materials, honorees. All is asked before the screen
// is touched.

namespace {

GridRow linhaDoMaterial(const data::Recordset& rs, const QString& codigo, const QString& descricao,
                        const QString& linhaFlex) {
  using namespace grades::material;
  return {{Id, rs.text(u"idprod")},
          {Codigo, codigo},
          {Descricao, descricao},
          {Quantidade, rs.text(u"QTDE")},
          {Unidade, rs.text(u"UNID_MEDI")},
          {QtUnidade, rs.text(u"QTDE_UNID_MEDI")},
          {ValorUnitario, rs.format(u"VALO_UNIT", kMascaraMoeda)},
          {Total, rs.format(u"VALO_TOTA", kMascaraMoeda)},
          {Tipo, rs.text(u"TIPO_MATE_PRIMA")},
          {Observacao, rs.text(u"OBSE_PROP_CMRC_DETA_MONTA")},
          {Ordem, rs.text(u"ORDEM_MATE_PRIMA")},
          {VinculoComFlex, linhaFlex}};
}

Asked<GridRow> leMaterial(data::Recordset rs, QString linhaFlex) {
  const QString id = rs.text(u"idprod");
  auto pedeCodigo = CodigoProduto(id);
  auto pedeDescricao = DescricaoProduto(id);
  const QString codigo = co_await pedeCodigo;
  const QString descricao = co_await pedeDescricao;
  co_return linhaDoMaterial(rs, codigo, descricao, linhaFlex);
}

/// The materials of one item, tied to row linhaFlex of the items.
Asked<std::vector<GridRow>> CarregaMontagem(QString idOrcamento, QString idDetalhe, QString linhaFlex) {
  const data::Recordset rs =
      co_await pedeConsulta(u"SELECT * From PROP_CMRC_DETA_MONTA Where IDPROP_CMRC = '"_s + idOrcamento +
                            u"' and idPROP_CMRC_DETA = '"_s + idDetalhe + u"'"_s);
  auto materiais =
      data::forEachRow(rs, [&](const data::Recordset& material) { return leMaterial(material, linhaFlex); });
  co_return co_await materiais;
}

struct ItemLido {
  GridRow linha;
  std::vector<GridRow> materiais;
};

GridRow linhaDoItem(const data::Recordset& rs, bool produto, const Artigo& artigo) {
  using namespace grades::item;
  return {{Id, rs.text(u"idprodprot")},
          {Tipo, rs.text(u"prod_prot")},
          {Codigo, artigo.codigo},
          {Descricao, artigo.descricao},
          {VrBruto, rs.format(u"VALO_UNIT", kMascaraMoeda)},
          {Desconto, rs.format(u"VALO_DECT", kMascaraMoeda)},
          {VrUnit, rs.format(u"VALO_LIQU", kMascaraMoeda)},
          {Quantidade, rs.format(u"QTDE", artigo.unidade.mascara)},
          {Total, rs.format(u"VALO_TOTA", kMascaraMoeda)},
          {DtAprov, rs.formatDate(u"DATA_APROV", u"dd/mm/yyyy hh:mm")},
          {Unidade, produto ? artigo.unidade.nome : QString()},
          {Observacao, rs.text(u"OBSE_PROP_CMRC_DETA")}};
}

Asked<ItemLido> leItem(data::Recordset rs, QString idOrcamento, QString linhaFlex) {
  const QString id = rs.text(u"idprodprot");
  const bool produto = maiusculas(rs.text(u"prod_prot")) == grades::kProduto;
  auto pedeArtigo = produto ? artigoDoProduto(id) : artigoDoPrototipo(id);
  auto pedeMontagem = CarregaMontagem(idOrcamento, rs.text(u"idPROP_CMRC_DETA"), linhaFlex);
  const Artigo artigo = co_await pedeArtigo;
  ItemLido lido;
  lido.linha = linhaDoItem(rs, produto, artigo);
  lido.materiais = co_await pedeMontagem;
  co_return lido;
}

Asked<std::vector<ItemLido>> leItens(QString idOrcamento) {
  const data::Recordset rs =
      co_await pedeConsulta(u"SELECT * From PROP_CMRC_DETA Where IDPROP_CMRC = '"_s + idOrcamento + u"'"_s);
  int linha = 0;
  auto itens = data::forEachRow(
      rs, [&](const data::Recordset& item) { return leItem(item, idOrcamento, QString::number(++linha)); });
  co_return co_await itens;
}

}  // namespace

void frmPropCmrcTL::CarregaOrcamento() {
  const forms::WaitPointer espera;
  const data::Recordset rs =
      abreConsulta(u"SELECT * FROM PROP_CMRC WHERE PROP_CMRC.IDPROP_CMRC = '"_s + txtCodigo->text() + u"'"_s);
  if (rs.eof()) return avisaFalha(u"Há Problemas Neste Registro!"_s);
  const QString id = rs.text(u"idprop_cmrc");
  auto pedeCabecalho = cabecalho::pedeTextos(rs);
  auto pedeTermos = pedeTermosDaConfirmacao(rs);
  auto pedeQuantos = pedeAnteriores(leNumero(rs.text(u"idclie")) == 0 ? QString() : rs.text(u"nome_clie"));
  auto pedeItens = leItens(id);
  auto pedeHomenageados = pedeConsulta(
      u"SELECT IDPROP_CMRC_HOMG, NOME_HOMG From PROP_CMRC_HOMG Where IDPROP_CMRC = '"_s + id + u"'"_s);
  std::vector<ItemLido> itens = waitFor(pedeItens);
  data::Recordset homenageados = waitFor(pedeHomenageados);

  LimpaTela();
  for (auto& [campo, texto] : pedeCabecalho) cabecalho::poe(*campo, *this, waitFor(texto));
  originais_ = cabecalho::originais(rs, *this);
  idCarregado_ = txtRowId->text();
  carregaConfirmacao(rs, pedeTermos);
  std::vector<GridRow> linhas;
  for (ItemLido& item : itens) {
    linhas.push_back(std::move(item.linha));
    FlexMonta.addRows(std::move(item.materiais));
  }
  Flex->grid().addRows(std::move(linhas));
  for (; !homenageados.eof(); homenageados.moveNext())
    FlexHomg->grid().addRow({{grades::homenageado::Id, homenageados.text(u"IDPROP_CMRC_HOMG")},
                             {grades::homenageado::Nome, homenageados.text(u"NOME_HOMG")}});
  mostraAnteriores(waitFor(pedeQuantos));
  mostraSituacao();
}
