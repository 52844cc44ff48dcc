#pragma once

#include <QString>

// The fixed parts of the HTML documents. Each returns one text, its lines ended by CR LF. Company data come
// from the company's row; without one, the part that rests on it is left out.

/// Heads: without styles, with the style sheet, and the short one that has no title.
[[nodiscard]] QString AbreDocumentoHTML(const QString& titulo);
[[nodiscard]] QString AbreDocumentoHTMLEstilos(const QString& titulo);
[[nodiscard]] QString AbreDocumentoSimplesHTML(const QString& titulo);

/// Letterheads: from the company's row, the logo alone, and the fixed one.
[[nodiscard]] QString CabecalhoEmpresaHTML();
[[nodiscard]] QString CabecalhoLogoHTML();
[[nodiscard]] QString CabecalhoFixoHTML();

/// Report titles; alinhamento "left", "center" or "right".
[[nodiscard]] QString NomeRelatorioHTML(const QString& texto, const QString& alinhamento);
[[nodiscard]] QString NomeRelatorioEstilosHTML(const QString& texto, const QString& alinhamento = {});
[[nodiscard]] QString TextoVazio2(const QString& texto = {}, const QString& alinhamento = {});

[[nodiscard]] QString AssinaturaHTML(const QString& alinhamento = {}, const QString& texto = {});
/// General conditions of a quote, inline style.
[[nodiscard]] QString RodapeOrcaHTML();
/// The same with classes, and the company's block at the foot.
[[nodiscard]] QString RodapeOrcaEstilosHTML();
[[nodiscard]] QString TextoVazio();
/// Conditions of an order by MODELO_PEDIDO_VEDS; empty for an unknown model.
[[nodiscard]] QString RodapePedidoHTML(const QString& id);
[[nodiscard]] QString FechaDocumentoHTML();

/// Address of an image of the house: in the local folder, or on the internet server for an external document.
[[nodiscard]] QString imagemDaCasa(const QString& arquivo);
