#pragma once

#include <QString>

// The documents, each written whole to a file. Every block is appended to the file as it is made, so the file
// must not exist before; a begun file is removed when an error ends the routine. A query without a row leaves
// its block empty. Raises the runtime's errors for the file (76, 70, 61, 75) and for statements.

// Quotes (quote_document.cpp)

/// A quote in the model that the parameter MODELO_PROP_CMRC names.
void MontaOrcaHTML(qint32 id, const QString& caminho);
/// A quote, or a closed one as an order, in the fixed sequence of the document in daily use. The payment text
/// comes from documento().rsImpressao, which must be open.
void MontaOrcaGradeHTML(qint32 id, const QString& caminho);
/// The detail that goes with the notice of a closing, in the model of MODELO_PROP_CMRC.
void MontaDetalheOrcaHTML(qint32 id, const QString& caminho);
/// An order (order_document.cpp), by MODELO_PEDI_VEDS and MODELO_PEDIDO_VEDS; its id is the number of the
/// order.
void MontaPedidoHTML(qint32 id, const QString& caminho);

/// Letters to suppliers (purchase_letters.cpp), written in one piece. A failing query is shown to the user
/// and nothing is written; a document without a row writes nothing.
void CotacaoCompraHTML(qint32 id, const QString& caminho);
void OrdemCompraHTML(qint32 id, const QString& caminho);
