#include "documents/item_table.h"

#include <array>
#include <vector>

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

constexpr const char16_t* kDireita = u"right";

struct Embarque {
  const char16_t* data;
  const char16_t* quantidade;
};
constexpr std::array<Embarque, 3> kEmbarques{{
    {u"data_imed", u"qtde_imed"},
    {u"data_emba", u"qtde_emba"},
    {u"data_stby", u"qtde_stby"},
}};

QString montaCelula(const char16_t* largura, const QString& html, const char16_t* alinhamento, bool negrito) {
  return u"            <td width='"_s + QString::fromUtf16(largura) + u"' align='"_s +
         QString::fromUtf16(alinhamento) + u"' style='"_s + estilo(8, negrito) + u"'>"_s + html + u"</td>"_s +
         kFim;
}

QString montaLinha(const QString& celulas) {
  return u"        <tr>"_s + kFim + celulas + u"        </tr>"_s + kFim;
}

struct Coluna {
  const char16_t* titulo;
  const char16_t* largura;
  const char16_t* alinhamento;
};

std::vector<Coluna> colunasDe(const TabelaDeItens& tabela) {
  std::vector<Coluna> colunas;
  if (tabela.fotos) colunas.push_back({u"Foto", u"25%", u"center"});
  colunas.push_back({u"Codigo", u"15%", u"left"});
  colunas.push_back({u"Descrição", tabela.fotos ? u"20%" : u"45%", u"left"});
  for (const Coluna& coluna :
       {Coluna{u"NCM", u"10%", u"left"}, Coluna{u"Quant.", u"10%", kDireita},
        Coluna{u"Vr.Unit.Prod.", u"10%", kDireita}, Coluna{u"Vr.Tot.Prod.", u"10%", kDireita}})
    colunas.push_back(coluna);
  if (tabela.embarques) colunas.push_back({u"Prev.Entrega", u"10%", u"center"});
  return colunas;
}

QString montaTitulos(const std::vector<Coluna>& colunas) {
  QString celulas;
  for (const Coluna& coluna : colunas)
    celulas += montaCelula(coluna.largura, QString::fromUtf16(coluna.titulo), coluna.alinhamento, true);
  return montaLinha(celulas);
}

QString montaEmbarques(const data::Recordset& rs, const QString& mascara) {
  QString texto = u"<table border='0' width='100%' style='"_s + estilo(8, false) +
                  u"'><tr><td>Data</td><td align='right'>Qtde</td></tr>"_s;
  for (const Embarque& um : kEmbarques)
    texto += u"<tr><td>"_s + (rs.isNull(um.data) ? u"-"_s : rs.formatDate(um.data, u"dd/mm")) +
             u"</td><td align='right'>"_s + rs.format(um.quantidade, mascara) + u"</td></tr>"_s;
  return texto + u"</table>"_s;
}

Asked<QString> ncmDe(QString idprod) {
  const QString classe = co_await ClassFiscalProduto(idprod);
  co_return co_await CodigoComTributacao(classe);
}

/// What a row asks for.
struct Respostas {
  ItemDoDocumento item;
  QString ncm;
};
Asked<Respostas> respostasDe(Asked<ItemDoDocumento> pedeItem, QString idprod) {
  Respostas respostas;
  respostas.ncm = co_await ncmDe(idprod);
  respostas.item = co_await pedeItem;
  co_return respostas;
}

QString linhaDoItem(const TabelaDeItens& tabela, const std::vector<Coluna>& colunas,
                    const Respostas& respostas) {
  const data::Recordset& rs = tabela.itens;
  const ItemDoDocumento& item = respostas.item;
  QStringList textos{escapado(item.codigo),      escapado(item.descricao),
                     escapado(respostas.ncm),    rs.format(u"QTDE", item.mascara),
                     dinheiro(rs, u"VALO_LIQU"), dinheiro(rs, u"VALO_TOTA")};
  if (tabela.embarques) textos << montaEmbarques(rs, item.mascara);
  QString celulas = tabela.fotos ? celulaFoto(item.codigo) + kFim : QString();
  std::size_t coluna = tabela.fotos ? 1 : 0;
  for (const QString& texto : textos) {
    celulas += montaCelula(colunas[coluna].largura, texto, colunas[coluna].alinhamento, false);
    ++coluna;
  }
  return montaLinha(celulas);
}

QString montaTotais(double total, double descontos) {
  return u"<table border='0' align='center' width=660>"_s + kFim +
         montaLinha(montaCelula(u"100%",
                                u"Total Geral: "_s + emMoeda(total) + u" - Descontos: "_s +
                                    emMoeda(descontos) + u" - Total Liquido: "_s + emMoeda(total - descontos),
                                u"center", true)) +
         u"</table>"_s + kFim;
}

}  // namespace

QString tabelaComTotais(TabelaDeItens tabela) {
  if (tabela.itens.eof()) return {};
  const double descontosDosItens = SomaDescontoPedido(tabela.itens);
  const std::vector<Coluna> colunas = colunasDe(tabela);
  QString texto = u"<!--Detalhes - Itens-->"_s + kFim + u"<P>"_s + kFim +
                  u"<table border='1' align='center' width=660>"_s + kFim + montaTitulos(colunas);
  auto pedidas = data::startEachRow(tabela.itens, [&tabela](const data::Recordset& rs) {
    return respostasDe(tabela.item(rs), rs.text(tabela.campoProduto));
  });
  double total = 0;
  for (auto& pedida : pedidas) {
    texto += linhaDoItem(tabela, colunas, waitFor(pedida));
    total += valorOuZero(tabela.itens, u"VALO_TOTA");
    tabela.itens.moveNext();
  }
  return texto + u"</table>"_s + kFim +
         montaTotais(total, descontosDosItens + leNumero(waitFor(DescontoPedido(tabela.numero))));
}

namespace {

QString tabelaDoOrcamento(data::Recordset itens, const QString& id, bool embarques) {
  return tabelaComTotais({.itens = std::move(itens),
                          .item = itemPorTipo,
                          .campoProduto = u"idprodprot",
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
