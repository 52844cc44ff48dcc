#pragma once

#include <QString>
#include <functional>

#include "documents/item_columns.h"

// The plain tables of items that quotes and orders share.

namespace celulas {
/// A cell; its style where it has one of its own.
[[nodiscard]] QString celula(const QString& largura, const QString& lado, const QString& html,
                             const QString& estilo = {});
[[nodiscard]] QString linha(const QString& celulas);
}  // namespace celulas

struct TabelaDeItens {
  data::Recordset itens;
  std::function<Asked<Artigo>(const data::Recordset&)> item;  ///< what a row shows
  QString campoProduto;                                       ///< column whose product gives the NCM
  bool fotos = false;
  bool embarques = false;  ///< last column with the shipments
  QString numero;          ///< asked for the discount of the document as a whole
};
/// The table and the line of totals under it; empty without items.
[[nodiscard]] QString tabelaComTotais(TabelaDeItens tabela);
