#pragma once

#include <QString>

#include "documents/item_fields.h"

// The columns of the tables of items: each block has its own as data.

inline constexpr const char16_t* kEsquerda = u"left";
inline constexpr const char16_t* kDireita = u"right";
inline constexpr const char16_t* kCentro = u"center";

/// A row of items as its columns read it.
struct ItemImpresso {
  data::Recordset rs;
  Artigo artigo;
  QString ncm = {};
};

struct Coluna {
  const char16_t* titulo;
  const char16_t* largura;  ///< "15%"
  /// Plain text.
  QString (*valor)(const ItemImpresso& item);
  const char16_t* lado = kEsquerda;
  bool branco = false;  ///< "&nbsp" where it is empty
};

namespace coluna {
[[nodiscard]] QString codigo(const ItemImpresso& item);
[[nodiscard]] QString descricao(const ItemImpresso& item);
[[nodiscard]] QString observacao(const ItemImpresso& item);
/// With the decimals of the unit.
[[nodiscard]] QString quantidade(const ItemImpresso& item);
[[nodiscard]] QString valorUnitario(const ItemImpresso& item);
[[nodiscard]] QString valorTotal(const ItemImpresso& item);
}  // namespace coluna
