#pragma once

#include <QString>

/// The n-th field (from 1) of a text with fields that end in "^". The text is trimmed and gets a final "^",
/// in the caller's variable too. A field past the end is "."; a number below 1, or an empty text, gives an
/// empty text.
[[nodiscard]] QString PegaCampo(QString& texto, int n);
/// The same for a text that is not to be changed.
[[nodiscard]] QString PegaCampo(const QString& texto, int n);
[[nodiscard]] QString PegaCampoDelimitado(const QString& texto, int n, QChar delimitador);
