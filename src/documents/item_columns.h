#pragma once

#include <QString>

#include "documents/item_fields.h"

// The columns of the tables of items: each block has its own as data.

inline const QString kEsquerda = QStringLiteral("left");
inline const QString kDireita = QStringLiteral("right");
inline const QString kCentro = QStringLiteral("center");

/// A row of items as its columns read it.
struct ItemImpresso {
  data::Recordset rs;
  Artigo artigo;
  QString ncm = {};
};

struct Coluna {
  QString titulo;
  QString largura;  ///< "15%"
  /// Plain text.
  QString (*valor)(const ItemImpresso& item);
  QString lado = kEsquerda;
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
