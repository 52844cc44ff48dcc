#pragma once

#include <QString>

/// Trims blanks (only U+0020) on both sides, or on the right.
[[nodiscard]] QString Apara(const QString& texto);
[[nodiscard]] QString AparaDireita(const QString& texto);
