#pragma once

#include <QString>

/// Trims blanks (only U+0020) on both sides, or on the right.
[[nodiscard]] QString apara(const QString& texto);
[[nodiscard]] QString aparaDireita(const QString& texto);

/// The beginning of a text, so many places at most; no character is cut in two.
[[nodiscard]] QString corta(const QString& texto, qsizetype maximo);
