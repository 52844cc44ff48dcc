#pragma once

#include <array>

#include "platform/forms/grid_model.h"

// Columns and layouts of the quote's grids. The grids are the working copy of a quote between loading and
// saving.
namespace grades {

using forms::GridColumn;
using forms::kRight;

/// Items of a quote (Flex of the quote screen).
namespace item {
enum Column {
  Id,
  Tipo,
  Codigo,
  Descricao,
  VrBruto,
  Desconto,
  VrUnit,
  Quantidade,
  Total,
  DtAprov,
  Unidade,
  Observacao
};
inline constexpr std::array<GridColumn, 12> kLayout{{
    {u"ID", 0},
    {u"Tipo", 0},
    {u"Código", 1300},
    {u"Descrição", 2400},
    {u"Vr.Bruto", 0, kRight},
    {u"Desconto", 0, kRight},
    {u"Vr.Unit.", 1100, kRight},
    {u"Quantidade", 1000, kRight},
    {u"Total Produto", 1100, kRight},
    {u"Dt.Aprov.", 1400, kRight},
    {u"Un.Medida", 1200},
    {u"Observação", 2750},
}};
}  // namespace item

/// Materials of an assembled product: Flex and FlexSombra of the assembly screen have the first eleven
/// columns, FlexMonta of the quote screen all twelve.
namespace material {
enum Column {
  Id,
  Codigo,
  Descricao,
  Quantidade,
  Unidade,
  QtUnidade,
  ValorUnitario,
  Total,
  Tipo,
  Observacao,
  Ordem,
  VinculoComFlex
};
inline constexpr std::array<GridColumn, 12> kLayoutDoOrcamento{{
    {u"ID", 0},
    {u"Código", 1300},
    {u"Descrição", 4000},
    {u"Quant.", 800, kRight},
    {u"Unid.Medida", 1000},
    {u"Qt.Unid.Medida", 0, kRight},
    {u"Valor Unitário", 1100, kRight},
    {u"Total do Item", 1200, kRight},
    {u"Tipo M.P.", 2500},
    {u"Observacao", 3000},
    {u"ORDEM Tipo M.P.", 500, kRight},
    {u"VinculoComFlex", 500, kRight},
}};
inline constexpr int kColunasDaMontagem = 11;
}  // namespace material

/// Honorees (FlexHomg).
namespace homenageado {
enum Column { Id, Nome };
inline constexpr std::array<GridColumn, 2> kLayout{{{u"ID", 0}, {u"Nome", 5415}}};
}  // namespace homenageado

/// Instalments (Flex2 of the confirmation screen).
namespace parcela {
enum Column { Vazia, Parcela, Dias, Valor, Vencimento };
inline constexpr std::array<GridColumn, 5> kLayout{{
    {u"", 0},
    {u"Parcela", 855, kRight},
    {u"Dias", 855, kRight},
    {u"Valor", 1215, kRight},
    {u"Vencimento", 1215, kRight},
}};
}  // namespace parcela

/// Kinds of line: what idprodprot of a line points to.
inline const QString kProduto = QStringLiteral("PROD");
inline const QString kPrototipo = QStringLiteral("PROT");

}  // namespace grades
