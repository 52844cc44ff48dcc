#pragma once

#include <QString>

// Conversions between numbers and text. The regional settings are Brazilian whatever the machine's:
// decimal comma, points as grouping.
namespace values {

/// Longest numeric prefix in point notation, leading blanks passed over; 0 where there is none ("12a" is 12).
/// An exponent is no part of it. Raises 6 where the number is too large.
[[nodiscard]] double leadingNumber(QStringView text);

/// The regional conversion: "1.234,50", "-3", " 12 ". Points before the comma are grouping.
/// An exponent is taken as toText writes it. Raises 13 on an empty text and on anything that is no number, 6
/// on one that is too large.
[[nodiscard]] double toNumber(QStringView text);

/// Whether toNumber would succeed.
[[nodiscard]] bool isNumeric(QStringView text);

/// The truth of a text: "True" and "Verdadeiro", "False" and "Falso" whatever the case, or a number that
/// isn't 0. Raises 13 on any other.
[[nodiscard]] bool toBoolean(QStringView text);

/// Rounds half away from zero to an integer that fits 16, 32 or 64 bits; raises 6 where it does not.
[[nodiscard]] qint16 toInt16(double number);
[[nodiscard]] qint32 toInt32(double number);
[[nodiscard]] qint64 toInt64(double number);

/// The plain conversion to text: the shortest form of at most 15 significant digits, with a comma ("0,3");
/// from 1E+15 on, and below 1E-15, with an exponent.
[[nodiscard]] QString toText(double number);

/// A number in a mask such as "###0.00", "000000" or "###0": zeros before the point are least digits, zeros
/// after it are decimals; the separator that comes out is the comma. Rounds half away from zero on the
/// number's decimal text of 15 significant digits (1,005 gives "1,01"). "-0,00" comes out as "0,00".
[[nodiscard]] QString format(double number, QStringView mask);

/// A text in a mask: an empty text stays empty unless the caller's rule says otherwise; a text that is a
/// number by the regional conversion is formatted; any other text comes back as it stands.
[[nodiscard]] QString format(const QString& text, QStringView mask);

}  // namespace values
