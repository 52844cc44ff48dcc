#pragma once

#include <QStringView>

/// Payment terms of a quote that has none of its own.
inline constexpr QStringView kCondPagtoPadrao =
    u"5% de desconto para pagamento à vista ou\r\n50% de sinal e 50% na entrega\r\n";
