#pragma once

#include <QString>
#include <functional>

#include "documents/item_fields.h"

// The plain table of items that quotes and orders share.

struct TabelaDeItens {
  data::Recordset itens;
  std::function<Asked<ItemDoDocumento>(const data::Recordset&)> item;  ///< what a row shows
  const char16_t* campoProduto;                                        ///< column whose product gives the NCM
  bool fotos = false;
  bool embarques = false;  ///< last column with the shipments
  QString numero;          ///< asked for the discount of the document as a whole
};
/// The table and the line of totals under it; empty without items.
[[nodiscard]] QString tabelaComTotais(TabelaDeItens tabela);
