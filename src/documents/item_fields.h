#pragma once

#include <QString>

#include "platform/data/recordset.h"
#include "shared/articles.h"

// What the item blocks of quotes and orders show of one row.

/// By prod_prot: "PROD" is a product, anything else a prototype.
Asked<Artigo> itemPorTipo(data::Recordset rs);
[[nodiscard]] bool ehProduto(const data::Recordset& rs);

/// Items of a quote that meet a further condition.
[[nodiscard]] data::Recordset itensDoOrcamento(const QString& id, const QString& condicao = {});

/// Number of a field, 0 where it is null.
[[nodiscard]] double valorOuZero(const data::Recordset& rs, QStringView campo);
/// A label before an amount, with the sign of the currency: "Total - R$ ".
[[nodiscard]] QString emReais(const QString& rotulo);
/// A money field, "###0.00".
[[nodiscard]] QString dinheiro(const data::Recordset& rs, QStringView campo);

/// Sum of discount times quantity of all rows.
[[nodiscard]] double SomaDescontoPedido(data::Recordset itens);

/// "001"
[[nodiscard]] QString numeroDoItem(int item);

/// Cell with the photo of a code: the local file, or a link from the small picture on the internet to the
/// large one.
[[nodiscard]] QString celulaFoto(const QString& codigo);
