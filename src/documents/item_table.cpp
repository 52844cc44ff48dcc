#include "documents/item_table.h"

#include <array>

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using html::escapado;
using html::estilo;
using html::kFim;

namespace {

struct Embarque {
  QStringView data;
  QStringView quantidade;
};
constexpr std::array<Embarque, 3> kEmbarques{{
    {u"data_imed", u"qtde_imed"},
    {u"data_emba", u"qtde_emba"},
    {u"data_stby", u"qtde_stby"},
}};

std::array<Coluna, 6> colunasDe(const TabelaDeItens& tabela) {
  return {{{u"Codigo"_s, u"15%"_s, coluna::codigo},
           {u"Descrição"_s, tabela.fotos ? u"20%"_s : u"45%"_s, coluna::descricao},
           {u"NCM"_s, u"10%"_s, [](const ItemImpresso& item) { return item.ncm; }},
           {u"Quant."_s, u"10%"_s, coluna::quantidade, kDireita},
           {u"Vr.Unit.Prod."_s, u"10%"_s, coluna::valorUnitario, kDireita},
           {u"Vr.Tot.Prod."_s, u"10%"_s, coluna::valorTotal, kDireita}}};
}

QString titulo(const QString& largura, const QString& lado, const QString& texto) {
  return celulas::celula(largura, lado, texto, estilo(8, true));
}

QString montaTitulos(const TabelaDeItens& tabela) {
  QString celulas = tabela.fotos ? titulo(u"25%"_s, kCentro, u"Foto"_s) : QString();
  for (const Coluna& coluna : colunasDe(tabela))
    celulas += titulo(coluna.largura, coluna.lado, coluna.titulo);
  if (tabela.embarques) celulas += titulo(u"10%"_s, kCentro, u"Prev.Entrega"_s);
  return celulas::linha(celulas);
}

QString montaEmbarques(const ItemImpresso& item) {
  QString texto = u"<table border='0' width='100%' style='"_s + estilo(8, false) +
                  u"'><tr><td>Data</td><td align='right'>Qtde</td></tr>"_s;
  for (const Embarque& um : kEmbarques)
    texto += u"<tr><td>"_s + (item.rs.isNull(um.data) ? u"-"_s : item.rs.formatDate(um.data, u"dd/mm")) +
             u"</td><td align='right'>"_s + item.rs.format(um.quantidade, item.artigo.unidade.mascara) +
             u"</td></tr>"_s;
  return texto + u"</table>"_s;
}

Asked<QString> ncmDe(QString idprod) {
  const QString classe = co_await ClassFiscalProduto(idprod);
  co_return co_await CodigoComTributacao(classe);
}

/// What a row asks for.
Asked<ItemImpresso> itemComNcm(data::Recordset rs, Asked<Artigo> pedeArtigo, QString idprod) {
  const QString ncm = co_await ncmDe(idprod);
  const Artigo artigo = co_await pedeArtigo;
  const ItemImpresso item{rs, artigo, ncm};
  co_return item;
}

QString linhaDoItem(const TabelaDeItens& tabela, const ItemImpresso& item) {
  QString celulas = tabela.fotos ? celulaFoto(item.artigo.codigo) + kFim : QString();
  for (const Coluna& coluna : colunasDe(tabela))
    celulas += celulas::celula(coluna.largura, coluna.lado, escapado(coluna.valor(item)), estilo(8, false));
  if (tabela.embarques) celulas += celulas::celula(u"10%"_s, kCentro, montaEmbarques(item), estilo(8, false));
  return celulas::linha(celulas);
}

QString montaTotais(double total, double descontos) {
  return u"<table border='0' align='center' width=660>"_s + kFim +
         celulas::linha(titulo(u"100%"_s, kCentro,
                               u"Total Geral: "_s + emMoeda(total) + u" - Descontos: "_s +
                                   emMoeda(descontos) + u" - Total Liquido: "_s +
                                   emMoeda(total - descontos))) +
         u"</table>"_s + kFim;
}

}  // namespace

namespace celulas {

QString celula(const QString& largura, const QString& lado, const QString& html, const QString& estilo) {
  const QString comEstilo = estilo.isEmpty() ? QString() : u" style='"_s + estilo + u'\'';
  return u"            <td width='"_s + largura + u"' align='"_s + lado + u'\'' + comEstilo + u'>' + html +
         u"</td>"_s + kFim;
}

QString linha(const QString& celulas) {
  return u"        <tr>"_s + kFim + celulas + u"        </tr>"_s + kFim;
}

}  // namespace celulas

QString tabelaComTotais(TabelaDeItens tabela) {
  if (tabela.itens.eof()) return {};
  const double descontosDosItens = SomaDescontoPedido(tabela.itens);
  QString texto = u"<!--Detalhes - Itens-->"_s + kFim + u"<P>"_s + kFim +
                  u"<table border='1' align='center' width=660>"_s + kFim + montaTitulos(tabela);
  auto pedidos = data::startEachRow(tabela.itens, [&tabela](const data::Recordset& rs) {
    return itemComNcm(rs, tabela.item(rs), rs.text(tabela.campoProduto));
  });
  double total = 0;
  for (auto& pedido : pedidos) {
    const ItemImpresso item = waitFor(pedido);
    texto += linhaDoItem(tabela, item);
    total += valorOuZero(item.rs, u"VALO_TOTA");
  }
  return texto + u"</table>"_s + kFim +
         montaTotais(total, descontosDosItens + leNumero(waitFor(DescontoPedido(tabela.numero))));
}

namespace {

QString tabelaDoOrcamento(data::Recordset itens, const QString& id, bool embarques) {
  return tabelaComTotais({.itens = std::move(itens),
                          .item = itemPorTipo,
                          .campoProduto = u"idprodprot"_s,
                          .fotos = documento().ExibeFotos,
                          .embarques = embarques,
                          .numero = id});
}

}  // namespace

// Photos follow the flag of the run, whatever the caller asks for.
QString ItensOrcaHTML(const QString& id, const QString&) {
  return tabelaDoOrcamento(itensDoOrcamento(u'\'' + id + u'\''), id, false);
}

QString ItensOrcaFotoHTML(const QString& id, const QString&) {
  return tabelaDoOrcamento(itensDoOrcamento(id), id, true);
}
