#pragma once

#include <QString>
#include <span>

#include "platform/forms/grid_model.h"

// What a search screen hands to the screen that opened it. The searches are shared by a family of programs:
// callers that are not in this one are rows like any other, nothing is found and nothing is written.
namespace search {

/// A control of a caller and the column of the chosen row that it takes.
struct Delivery {
  const char16_t* caller;
  const char16_t* control;
  int column;
  QString (*reading)(const QString&) = nullptr;  ///< applied to the cell; without one it stands as it is
};

/// Writes what the caller's rows of the table name, from the current row of the grid.
void deliver(std::span<const Delivery> table, const QString& caller, const forms::GridModel& grid);

/// "1 item encontrado", "3 itens encontrados".
[[nodiscard]] QString countText(int count, const QString& one, const QString& many);

}  // namespace search
