#pragma once

#include <QString>
#include <span>
#include <vector>

#include "documents/item_columns.h"

// The bordered table of 800 pixels that the grid documents are made of.
namespace grade {

/// Its opening line.
[[nodiscard]] QString abre();
/// The same under the comment of an item table.
[[nodiscard]] QString abreDetalhes();
[[nodiscard]] QString fecha();

struct Celula {
  QString largura;  ///< "30%"
  QString html;
  QString alinhamento = kEsquerda;
  QString atributos = {};  ///< "colspan='2'"
};
[[nodiscard]] QString linha(const std::vector<Celula>& celulas);

/// A bold label, its value after it, both plain text.
[[nodiscard]] Celula rotulada(const QString& largura, const QString& rotulo, const QString& valor,
                              const QString& alinhamento = kEsquerda);
/// Plain text.
[[nodiscard]] Celula dado(const QString& largura, const QString& texto,
                          const QString& alinhamento = kEsquerda);

/// The titles of a table of items, on grey.
[[nodiscard]] QString titulos(std::span<const Coluna> colunas);
/// A row under them.
[[nodiscard]] QString item(std::span<const Coluna> colunas, const ItemImpresso& item,
                           const QString& atributos = {});

}  // namespace grade
