#pragma once

#include <QString>

// Numbers that a user types. A point is a decimal point to one reading of the program and groups digits to
// another: a box that is read by both takes a comma alone.

/// Whether a text is a number of digits, with a sign and a comma at most.
[[nodiscard]] bool ehNumeroComVirgula(const QString& texto);

/// A refusal, with the advice to use the comma on a second line where the refused text holds a point.
[[nodiscard]] QString recusaDoNumero(const QString& recusa, const QString& texto);
