#pragma once

#include <QString>
#include <span>

#include "platform/forms/grid_model.h"

// What a search screen hands to the screen that opened it. The searches are shared by a family of programs:
// callers that are not in this one are rows like any other, nothing is found and nothing is written.
namespace pesquisa {

/// A control of a caller and the column of the chosen row that it takes.
struct Entrega {
  QStringView chamadora;
  QStringView controle;
  int coluna;
  QString (*leitura)(const QString&) = nullptr;  ///< applied to the cell; without one it stands as it is
  QStringView tela = {};                         ///< whose control it is, where it isn't the caller's own
};

/// Writes what the caller's rows of the table name, from the current row of the grid.
void entrega(std::span<const Entrega> tabela, const QString& chamadora, const forms::GridModel& grade);

/// "1 produto encontrado", "3 produtos encontrados".
[[nodiscard]] QString contagem(int quantos, const QString& um, const QString& varios);

}  // namespace pesquisa
