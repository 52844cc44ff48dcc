#pragma once

#include <QString>

#include "platform/data/recordset.h"
#include "shared/lookups.h"

// What the item blocks of quotes and orders show of one row.

/// Code, description and quantity mask of a product or a prototype.
struct ItemDoDocumento {
  QString codigo, descricao, mascara;
};
Asked<ItemDoDocumento> itemDoProduto(QString idprod);
/// By prod_prot: "PROD" is a product, anything else a prototype.
Asked<ItemDoDocumento> itemPorTipo(data::Recordset rs);
Asked<QString> mascaraDoItem(data::Recordset rs);
[[nodiscard]] bool ehProduto(const data::Recordset& rs);

/// Items of a quote that meet a further condition.
[[nodiscard]] data::Recordset itensDoOrcamento(const QString& id, const QString& condicao = {});

/// Number of a field, 0 where it is null.
[[nodiscard]] double valorOuZero(const data::Recordset& rs, QStringView campo);
/// A money field, "###0.00".
[[nodiscard]] QString dinheiro(const data::Recordset& rs, QStringView campo);

/// Sum of discount times quantity of all rows.
[[nodiscard]] double SomaDescontoPedido(data::Recordset itens);

/// "001"
[[nodiscard]] QString numeroDoItem(int item);

/// Cell with the photo of a code: the local file, or a link from the small picture on the internet to the
/// large one.
[[nodiscard]] QString celulaFoto(const QString& codigo);
