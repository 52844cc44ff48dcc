#pragma once

#include <QString>

#include "platform/data/recordset.h"
#include "shared/lookups.h"

// The blocks of a quote document, each by the quote's id. A block returns its text, lines ended by CR LF;
// those that take a path append their items to it one at a time and return what comes after them. No row
// gives an empty text.

// Customer (customer_blocks.cpp)
[[nodiscard]] QString DadosClienteOrcaHTML(const QString& id);
[[nodiscard]] QString DadosClienteOrcaEstilosHTML(const QString& id);
[[nodiscard]] QString DadosClienteOrcaResumoHTML(const QString& id);
[[nodiscard]] QString DadosClienteOrcaGradeHTML(const QString& id);

// General data (general_blocks.cpp)
[[nodiscard]] QString DadosGeraisOrcaHTML(const QString& id);
[[nodiscard]] QString DadosGeraisOrcaEstilosHTML(const QString& id);
[[nodiscard]] QString DadosGeraisOrcaResumoHTML(const QString& id);

// Items (item_grid_blocks.cpp, item_detail_block.cpp, item_catalogue_block.cpp, item_table.cpp). The flag
// says "S" for photos; most blocks go by ExibeFotos or show none.
[[nodiscard]] QString ItensOrcaGradeHTML(const QString& id, const QString& fotos, const QString& caminho);
[[nodiscard]] QString ItensOrcaDetalheHTML(const QString& id, const QString& fotos, const QString& caminho);
[[nodiscard]] QString ItensOrcaEstilosHTML(const QString& id, const QString& fotos, const QString& caminho);
[[nodiscard]] QString ItensOrcaHTML(const QString& id, const QString& fotos);
[[nodiscard]] QString ItensOrcaFotoHTML(const QString& id, const QString& fotos);
/// Materials of one assembled item, its product left out.
Asked<QString> MontagemItemHTML(QString id, QString idDetalhe, QString idProdProt, QString fotos);

// Conditions (condition_blocks.cpp)
/// Clauses, payment, place for the approval. Reads the payment text from documento().rsImpressao.
[[nodiscard]] QString CondicoesOrcaHTML(const QString& id);
[[nodiscard]] QString CondPgtoOrcaHTML(const QString& id);

/// The quote's row (customer_blocks.cpp).
[[nodiscard]] data::Recordset orcamentoDoDocumento(const QString& id);
/// Payment text of a quote: its own or the usual one; that of a closed quote is CondPgtoOrcamento
/// (condition_blocks.cpp).
Asked<QString> textoPagamento(data::Recordset orcamento, QString id);
/// "Condição de Pagamento: " with instalments and days, "-" without a condition (general_blocks.cpp).
Asked<QString> condicaoPagamento(data::Recordset rs);
