// Items of a quote as a grid: one table for each item, its materials under it.
#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "documents/quote_blocks.h"
#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using grade::Celula;
using grade::dado;
using grade::dadoOuBranco;
using grade::rotulada;
using grade::titulo;
using html::kFim;

namespace {

constexpr const char16_t* kDireita = u"right";

Celula doItem(Celula celula) {
  celula.atributos = u"bgcolor='#E0E0E0'"_s;
  return celula;
}

// Code and description are the product's of that id, whatever kind the item is.
Asked<QString> tabelaDoItem(data::Recordset rs) {
  const QString id = rs.text(u"idprodprot");
  auto pedeCodigo = CodigoProduto(id);
  auto pedeDescricao = DescricaoProduto(id);
  const QString mascara = co_await mascaraDoItem(rs);
  const QString codigo = co_await pedeCodigo;
  const QString descricao = co_await pedeDescricao;
  const QString titulos = grade::linha(
      {titulo(u"15%"_s, u"Código"_s), titulo(u"40%"_s, u"Descrição"_s), titulo(u"20%"_s, u"Observação"_s),
       titulo(u"5%"_s, u"Qtde"_s, kDireita), titulo(u"10%"_s, u"Valor Unit."_s, kDireita),
       titulo(u"10%"_s, u"Valor Total"_s, kDireita)});
  const QString dados = grade::linha({doItem(dado(u"15%"_s, codigo)), doItem(dado(u"40%"_s, descricao)),
                                      doItem(dadoOuBranco(u"20%"_s, rs.text(u"OBSE_PROP_CMRC_DETA"))),
                                      doItem(dado(u"5%"_s, rs.format(u"QTDE", mascara), kDireita)),
                                      doItem(dado(u"10%"_s, dinheiro(rs, u"VALO_LIQU"), kDireita)),
                                      doItem(dado(u"10%"_s, dinheiro(rs, u"VALO_TOTA"), kDireita))});
  co_return grade::abreDetalhes() + titulos + dados + grade::fecha();
}

struct Material {
  QString codigo, descricao, observacao, quantidade, unidade;
};

QString montaLinha(const Material& m, decltype(&dado) celula) {
  return grade::linha({celula(u"15%"_s, m.codigo, kDireita), celula(u"40%"_s, m.descricao, u"left"),
                       dadoOuBranco(u"25%"_s, m.observacao), celula(u"10%"_s, m.quantidade, kDireita),
                       dadoOuBranco(u"10%"_s, m.unidade)});
}

Asked<QString> linhaDoMaterial(data::Recordset rs) {
  const QString idprod = rs.text(u"idprod");
  auto pedeUnidade = UnidadeProduto(idprod);
  auto pedeCodigo = CodigoProduto(idprod);
  auto pedeDescricao = DescricaoProduto(idprod);
  Material material;
  const QString idunid = co_await pedeUnidade;
  material.unidade = co_await DescricaoUnidade(idunid);
  const QString casas = co_await CasasDecimaisUnidade(material.unidade);
  material.codigo = co_await pedeCodigo;
  material.descricao = co_await pedeDescricao;
  material.observacao = rs.text(u"OBSE_PROP_CMRC_DETA_MONTA");
  material.quantidade = rs.format(u"QTDE", MascaraDecimais(casas));
  co_return montaLinha(material, dado);
}

Asked<QString> itemComMateriais(data::Recordset rs, QString id, QString fotos) {
  auto pedeItem = tabelaDoItem(rs);
  auto pedeMateriais = MontagemItemHTML(id, rs.text(u"idPROP_CMRC_DETA"), rs.text(u"idprodprot"), fotos);
  const QString item = co_await pedeItem;
  const QString materiais = co_await pedeMateriais;
  co_return item + materiais;
}

QString totaisAberto(double total, double quantidade) {
  return grade::linha({rotulada(u"50%"_s, u"Quantidade de produtos: "_s, values::toText(quantidade)),
                       rotulada(u"50%"_s, u"Total Geral do Orçamento - R$ "_s, emMoeda(total), kDireita)});
}

QString totaisFechado(double total, double desconto) {
  return grade::linha({rotulada(u"33%"_s, u"Total Bruto - R$ "_s, emMoeda(total)),
                       rotulada(u"33%"_s, u"Desconto - R$ "_s, emMoeda(desconto), u"center"),
                       rotulada(u"33%"_s, u"Total Liquido - R$ "_s, emMoeda(total - desconto), kDireita)});
}

}  // namespace

Asked<QString> MontagemItemHTML(QString id, QString idDetalhe, QString, QString) {
  const data::Recordset rs = co_await pedeConsulta(
      u"select * from prop_cmrc_deta_monta where idprop_cmrc="_s + id + u" and idprop_cmrc_deta = "_s +
      idDetalhe + u" and tipo_mate_prima <> 'PRODUTO' "_s);
  auto linhas = data::startEachRow(rs, linhaDoMaterial);
  QString texto = grade::abreDetalhes();
  if (linhas.empty()) texto += montaLinha({}, dadoOuBranco);
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
