// Items of a quote in one table, with or without prices.
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
using grade::titulo;

namespace {

constexpr const char16_t* kDireita = u"right";

// The prices of the lines are shown to the reader only where assembly is.
QString montaCabecalho(bool comPrecos) {
  std::vector<grade::Celula> celulas{titulo(u"20%"_s, u"Cod.Prod."_s), titulo(u"30%"_s, u"Produto"_s),
                                     titulo(u"20%"_s, u"Observação"_s),
                                     titulo(u"10%"_s, u"Qtde"_s, kDireita)};
  if (comPrecos) {
    celulas.push_back(titulo(u"10%"_s, u"Valor Unit."_s, kDireita));
    celulas.push_back(titulo(u"10%"_s, u"Valor Total"_s, kDireita));
  }
  return grade::abreDetalhes() + grade::linha(celulas);
}

Asked<QString> montaLinha(data::Recordset rs, bool comPrecos) {
  const ItemDoDocumento item = co_await itemPorTipo(rs);
  std::vector<grade::Celula> celulas{dado(u"20%"_s, item.codigo), dado(u"30%"_s, item.descricao),
                                     grade::dadoOuBranco(u"20%"_s, rs.text(u"OBSE_PROP_CMRC_DETA")),
                                     dado(u"10%"_s, rs.format(u"QTDE", item.mascara), kDireita)};
  if (comPrecos) {
    celulas.push_back(dado(u"10%"_s, dinheiro(rs, u"VALO_LIQU"), kDireita));
    celulas.push_back(dado(u"10%"_s, dinheiro(rs, u"VALO_TOTA"), kDireita));
  }
  co_return grade::linha(celulas);
}

QString montaTotal(bool comPrecos, double unitario, double total) {
  grade::Celula rotulo = comPrecos ? rotulada(u"90%"_s, u"Total"_s, {}, kDireita)
                                   : dado(u"90%"_s, u"Total Unitário"_s, u"center");
  rotulo.atributos = comPrecos ? u"colspan='5'"_s : u"colspan='3'"_s;
  return grade::linha({rotulo, comPrecos ? rotulada(u"10%"_s, emMoeda(total), {}, kDireita)
                                         : dado(u"10%"_s, emMoeda(unitario), u"center")}) +
         grade::fecha();
}

QString montaTotalPorPessoa(int pessoas, double unitario) {
  return grade::abre() +
         grade::linha({rotulada(u"50%"_s, u"Quantidade Solicitada: "_s, QString::number(pessoas)),
                       rotulada(u"50%"_s, u"Total Geral - R$ "_s, emMoeda(pessoas * unitario), kDireita)}) +
         grade::fecha();
}

}  // namespace

QString ItensOrcaDetalheHTML(const QString& id, const QString&, const QString& caminho) {
  data::Recordset rs = itensDoOrcamento(id);
  if (rs.eof()) return {};
  const bool comPrecos = documento().ExibeMontagem;
  html::acrescenta(caminho, montaCabecalho(comPrecos));
  auto linhas =
      data::startEachRow(rs, [&](const data::Recordset& item) { return montaLinha(item, comPrecos); });
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
