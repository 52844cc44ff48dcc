// Items of a quote as a catalogue: one box for each, with its composition and its photos.
#include <array>

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "documents/item_columns.h"
#include "documents/quote_blocks.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/pictures.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using html::fixo;
using html::kFim;

namespace {

// Composition of a prototype, as it is sorted and printed.
namespace composicao {
enum Column { Codigo, Descricao, Quantidade, Unidade };
constexpr std::array<forms::GridColumn, 4> kLayout{{{u"", 0}, {u"", 0}, {u"", 0}, {u"", 0}}};
const std::array<std::pair<Column, QString>, 4> kCelulas{{{Codigo, u"width=15%"_s},
                                                          {Descricao, u"width=60%"_s},
                                                          {Quantidade, u"width=10% align=right"_s},
                                                          {Unidade, u"width=15%"_s}}};
}  // namespace composicao

// An article that is not in the catalogue stands there as free text.
Asked<Artigo> artigoDoKit(data::Recordset kit) {
  if (valorOuZero(kit, u"idprod") != 0) return artigoDoProduto(kit.text(u"idprod"));
  return artigoDe(data::known(u"NPROD"_s), data::known(kit.text(u"DESC_NPROD")),
                  data::known(kit.text(u"idunid_nprod")));
}

Asked<forms::GridRow> linhaDoKit(data::Recordset kit) {
  const Artigo artigo = co_await artigoDoKit(kit);
  const QString quantidade =  // installations call the column by either name
      kit.columns().contains(u"QTDE_PROD"_s, Qt::CaseInsensitive) ? u"QTDE_PROD"_s : u"qtde"_s;
  forms::GridRow linha;
  linha.set(composicao::Codigo, artigo.codigo);
  linha.set(composicao::Descricao, artigo.descricao);
  linha.set(composicao::Quantidade, kit.format(quantidade, artigo.unidade.mascara));
  linha.set(composicao::Unidade, artigo.unidade.nome);
  co_return linha;
}

QString composicaoImpressa(std::vector<forms::GridRow> linhas) {
  ValoresDoDocumento& valores = documento();
  forms::GridModel& tabela = valores.FlexTemp;
  tabela.layOut(composicao::kLayout);
  tabela.addRows(std::move(linhas));
  if (valores.OrdemComposicao == u"DESCRICAO") tabela.sortAscending(composicao::Descricao);
  QString texto = fixo(
      u"<!--Detalhe do Detalhe-->\n"
      u"<table border='1' width=400 bordercolor='#e2cda0' cellspacing=0 cellpadding=2>\n");
  for (int linha = 1; linha < tabela.rows(); ++linha) {
    texto += u"<tr>"_s + kFim;
    for (const auto& [coluna, atributos] : composicao::kCelulas)
      texto += u"    <td "_s + atributos + u"><span class='dados1'>"_s +
               html::escapado(tabela.text(linha, coluna)) + u"</span></td>"_s + kFim;
    texto += u"</tr>"_s + kFim;
  }
  return texto + u"</table>"_s + kFim;
}

Asked<QString> montaComposicao(QString idprot) {
  const data::Recordset kit = co_await pedeConsulta(u"select * from prot_kit0 where idprot="_s + idprot);
  auto pedidas = data::forEachRow(kit, linhaDoKit);
  auto linhas = co_await pedidas;
  co_return composicaoImpressa(std::move(linhas));
}

Asked<QString> observacaoDe(data::Recordset rs) {
  if (ehProduto(rs)) co_return QString();
  co_return co_await ObservacaoPrototipo(rs.text(u"idprodprot"));
}

QString montaFoto(const QString& codigo) {
  if (documento().PublicacaoExterna && !LocalizaImagemPrototipo(codigo))
    return u"<td align='center'><img border='0' src='"_s +
           html::atributo(contexto().PathWeb + u"imagem_branco.jpg"_s) + u"'></td>"_s;
  return celulaFoto(codigo);
}

QString montaFotos(const QString& codigo) {
  QString texto = fixo(u"<td width=270px align=center valign=top>\n<table border='0' align='center'>\n");
  for (const QString& sufixo : {QString(), u"_2"_s, u"_3"_s, u"_4"_s})
    texto += u"<tr>"_s + montaFoto(apara(codigo) + sufixo) + u"</tr>"_s + kFim;
  return texto + u"</table>"_s + kFim + u"</td>"_s + kFim;
}

QString montaValores(const ItemImpresso& item, const QString& observacao) {
  return fixo(
             uR"(<table border='0' width=400 cellspacing=0 cellpadding=2>
<tr><td><span class='dados1a'>Quantidade: %1</span></td></tr>
<tr><td><span class='dados1c'>%2</span></td></tr>
<tr><td><span class='dados1c'>%3</span></td></tr>
<tr><td><span class='dados1a'>Observações: %4</span></td></tr>
</table>
)")
      .arg(coluna::quantidade(item), emReais(u"Valor Unitário: "_s) + coluna::valorUnitario(item),
           emReais(u"Total: "_s) + coluna::valorTotal(item), html::escapado(observacao));
}

/// What a box asks for.
struct Respostas {
  Artigo artigo;
  QString composicao, observacao;
};
Asked<Respostas> respostasDe(data::Recordset rs, bool comComposicao) {
  auto pedeItem = itemPorTipo(rs);
  auto pedeComposicao = comComposicao ? montaComposicao(rs.text(u"idprodprot")) : data::known(QString());
  Respostas respostas;
  respostas.observacao = co_await observacaoDe(rs);
  respostas.composicao = co_await pedeComposicao;
  respostas.artigo = co_await pedeItem;
  co_return respostas;
}

QString montaCaixa(const data::Recordset& rs, const Respostas& respostas, int numero, bool comFotos) {
  const auto& [artigo, composicao, observacao] = respostas;
  QString texto =
      fixo(
          uR"(<table align='center' width=660px height=30px><tr><td></td></tr></table>
<table border='0' align='center' width=670 cellspacing=0 cellpadding=2>
<tr>
<td valign=top>
<table border='0' width=400 cellspacing=0 cellpadding=2>
<tr>
<td><span class='titulo2'>Protótipo %1</span></td>
</tr>
<tr><td align=center><span class='titulo4'>%2 - Código %3</span>
</td></tr>
</table>
)")
          .arg(numeroDoItem(numero), html::escapado(artigo.descricao), html::escapado(artigo.codigo));
  texto += composicao + montaValores(ItemImpresso(rs, artigo), observacao) + u"</td>"_s + kFim;
  if (comFotos) texto += montaFotos(artigo.codigo);
  return texto + fixo(u"</tr>\n</table>\n");
}

}  // namespace

QString ItensOrcaEstilosHTML(const QString& id, const QString&, const QString& caminho) {
  const ValoresDoDocumento& valores = documento();
  const auto pede = [&valores](const data::Recordset& item) {
    return respostasDe(item, valores.ExibeComposicao);
  };
  data::Recordset rs = itensDoOrcamento(id);
  int numero = 0;
  for (auto& pedida : data::startEachRow(rs, pede)) {
    html::acrescenta(caminho, montaCaixa(rs, waitFor(pedida), ++numero, valores.ExibeFotos));
    rs.moveNext();
  }
  return {};
}
