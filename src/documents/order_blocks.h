#pragma once

#include <QString>

// The blocks of an order document, each by the order's number. No row gives an empty text.

[[nodiscard]] QString DadosClientePedidoHTML(const QString& numero);
[[nodiscard]] QString DadosClientePedidoEstilosHTML(const QString& numero);
[[nodiscard]] QString DadosGeraisPedidoHTML(const QString& numero);
[[nodiscard]] QString DadosGeraisPedidoEstilosHTML(const QString& numero);

// Items (order_items.cpp); photos go by ExibeFotos whatever the flag.
[[nodiscard]] QString ItensPedidoHTML(const QString& numero, const QString& fotos);
[[nodiscard]] QString ItensPedidoEstilosHTML(const QString& numero, const QString& fotos);
[[nodiscard]] QString ItensPedidoFotoHTML(const QString& numero, const QString& fotos);
