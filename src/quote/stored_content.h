#pragma once

#include <QString>
#include <vector>

#include "platform/data/recordset.h"
#include "platform/data/statement.h"

// What is stored of a quote, so that it can be compared with what was stored once.
namespace conteudo {

/// What reads all that a save writes of a quote: its header, lines, materials and honorees.
[[nodiscard]] std::vector<data::Statement> leituras(const QString& idOrcamento);

/// A digest of what these have given. Who wrote it, when, and under which ids does not count; which materials
/// belong to which line does. Empty where there is no such quote.
[[nodiscard]] QString resumo(const std::vector<data::Recordset>& lidos);

}  // namespace conteudo
