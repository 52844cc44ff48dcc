// Items of a quote in one table, with or without prices.
#include <array>
#include <span>

#include "documents/document_values.h"
#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using grade::dado;
using grade::rotulada;

namespace {

const std::array<Coluna, 6> kColunas{{
    {u"Cod.Prod."_s, u"20%"_s, coluna::codigo},
    {u"Produto"_s, u"30%"_s, coluna::descricao},
    {u"Observação"_s, u"20%"_s, coluna::observacao, kEsquerda, true},
    {u"Qtde"_s, u"10%"_s, coluna::quantidade, kDireita},
    {u"Valor Unit."_s, u"10%"_s, coluna::valorUnitario, kDireita},
    {u"Valor Total"_s, u"10%"_s, coluna::valorTotal, kDireita},
}};
constexpr std::size_t kPrecos = 2;

/// The prices of the lines are shown to the reader only where assembly is.
std::span<const Coluna> colunas(bool comPrecos) {
  return std::span(kColunas).first(kColunas.size() - (comPrecos ? 0 : kPrecos));
}

Asked<QString> linhaDoItem(data::Recordset rs, bool comPrecos) {
  const Artigo artigo = co_await itemPorTipo(rs);
  const ItemImpresso item{rs, artigo};
  co_return grade::item(colunas(comPrecos), item);
}

QString montaTotal(bool comPrecos, double unitario, double total) {
  grade::Celula rotulo =
      comPrecos ? rotulada(u"90%"_s, u"Total"_s, {}, kDireita) : dado(u"90%"_s, u"Total Unitário"_s, kCentro);
  rotulo.atributos = u"colspan='%1'"_s.arg(colunas(comPrecos).size() - 1);
  return grade::linha({rotulo, comPrecos ? rotulada(u"10%"_s, emMoeda(total), {}, kDireita)
                                         : dado(u"10%"_s, emMoeda(unitario), kCentro)}) +
         grade::fecha();
}

QString montaTotalPorPessoa(int pessoas, double unitario) {
  return grade::abre() +
         grade::linha(
             {rotulada(u"50%"_s, u"Quantidade Solicitada: "_s, QString::number(pessoas)),
              rotulada(u"50%"_s, emReais(u"Total Geral - "_s), emMoeda(pessoas * unitario), kDireita)}) +
         grade::fecha();
}

}  // namespace

QString ItensOrcaDetalheHTML(const QString& id, const QString&, const QString& caminho) {
  data::Recordset rs = itensDoOrcamento(id);
  if (rs.eof()) return {};
  const bool comPrecos = documento().ExibeMontagem;
  html::acrescenta(caminho, grade::abreDetalhes() + grade::titulos(colunas(comPrecos)));
  auto linhas =
      data::startEachRow(rs, [&](const data::Recordset& item) { return linhaDoItem(item, comPrecos); });
  double unitario = 0;
  double total = 0;
  for (auto& linha : linhas) {
    html::acrescenta(caminho, waitFor(linha));
    unitario += valorOuZero(rs, u"VALO_LIQU");
    total += valorOuZero(rs, u"VALO_TOTA");
    rs.moveNext();
  }
  const int pessoas = waitFor(PessoasOrcamento(id));
  return montaTotal(comPrecos, unitario, total) +
         (pessoas > 0 ? montaTotalPorPessoa(pessoas, unitario) : QString());
}
