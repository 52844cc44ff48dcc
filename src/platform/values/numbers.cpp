#include "platform/values/numbers.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

constexpr int kDigits = 15;  // significant digits that a number keeps on its way to text

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool isBlank(QChar c) { return c == u' ' || c == u'\t'; }

QStringView withoutBlanks(QStringView text) {
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

/// The value of the number that a text begins with, in point notation with any sign; 0 for none.
double parse(const QByteArray& digits, std::chars_format format = std::chars_format::general) {
  double value = 0;
  const char* first = digits.constData();
  if (*first == '+') ++first;
  const auto [end, error] = std::from_chars(first, digits.constData() + digits.size(), value, format);
  if (error == std::errc::result_out_of_range && !digits.contains("e-")) raise(kOverflow);
  return error == std::errc{} ? value : 0.0;
}

/// A number of the regional form in point notation; empty where the text is none.
QByteArray regionalDigits(QStringView text) {
  static const QRegularExpression form(uR"(^([+-]?)(\d[\d.]*)?(?:,(\d*))?([Ee][+-]?\d+)?\z)"_s);
  const auto found = form.match(text.toString());
  const QString whole = found.captured(2).remove(u'.'), part = found.captured(3);
  if (whole.isEmpty() && part.isEmpty()) return {};
  return QString(found.captured(1) + whole + u'.' + part + found.captured(4).toLower()).toLatin1();
}

/// A number of 15 significant digits: they times 10 to the power of exponent.
struct Decimal {
  bool negative = false;
  qint64 digits = 0;
  int exponent = 0;
};

Decimal decompose(double number) {
  if (!std::isfinite(number)) raise(kOverflow);
  Decimal out{.negative = std::signbit(number)};
  std::array<char, 40> text{};  // "d.dd…e±dd"
  const char* end = std::to_chars(text.data(), text.data() + text.size(), std::abs(number),
                                  std::chars_format::scientific, kDigits - 1)
                        .ptr;
  text[1] = text[0];
  const char* power = std::from_chars(text.data() + 1, end, out.digits).ptr + 1;
  std::from_chars(*power == '+' ? power + 1 : power, end, out.exponent);
  out.exponent -= kDigits - 1;
  return out;
}

/// With so many digits after the comma, half away from zero, and at least so many before it.
QString plain(const Decimal& number, int leastDigits, int decimals) {
  qint64 digits = number.digits;
  const int surplus = -number.exponent - decimals;
  if (surplus > kDigits) digits = 0;
  qint64 power = 1;
  for (int place = 0; digits > 0 && place < surplus; ++place) power *= 10;
  digits = (digits + power / 2) / power;
  QString text = digits == 0 ? QString() : QString::number(digits) + QString(std::max(-surplus, 0), u'0');
  text = text.rightJustified(leastDigits + decimals, u'0');
  if (decimals > 0) text.insert(text.size() - decimals, u',');
  return number.negative && digits > 0 ? u'-' + text : text;
}

double rounded(double number) {
  if (std::abs(number) >= 1e15) return number;
  return plain(decompose(number), 1, 0).toDouble();
}

template <class Int>
Int toInteger(double number) {
  const double value = rounded(number);
  // The upper bound itself is no double for 64 bits: the next power of two is the first that does not fit.
  const double beyond = std::ldexp(1.0, std::numeric_limits<Int>::digits);
  if (value < -beyond || value >= beyond) raise(kOverflow);
  return static_cast<Int>(value);
}

}  // namespace

double leadingNumber(QStringView text) {
  const QByteArray number = withoutBlanks(text).toLatin1();
  const qsizetype sign = number.startsWith('-') || number.startsWith('+') ? 1 : 0;
  const QChar first = QLatin1Char(number.size() > sign ? number[sign] : ' ');
  return isDigit(first) || first == u'.' ? parse(number, std::chars_format::fixed) : 0.0;
}

double toNumber(QStringView text) {
  const QByteArray digits = regionalDigits(withoutBlanks(text));
  if (digits.isEmpty()) raise(kTypeMismatch);
  return parse(digits);
}

bool isNumeric(QStringView text) {
  const QByteArray digits = regionalDigits(withoutBlanks(text));
  if (digits.isEmpty()) return false;
  try {
    static_cast<void>(parse(digits));
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

bool toBoolean(QStringView text) {
  const QStringView word = withoutBlanks(text);
  const auto is = [&](QStringView name) { return word.compare(name, Qt::CaseInsensitive) == 0; };
  if (is(u"True") || is(u"Verdadeiro")) return true;
  if (is(u"False") || is(u"Falso")) return false;
  return std::fpclassify(toNumber(word)) != FP_ZERO;
}

qint16 toInt16(double number) { return toInteger<qint16>(number); }
qint32 toInt32(double number) { return toInteger<qint32>(number); }
qint64 toInt64(double number) { return toInteger<qint64>(number); }

QString toText(double number) {
  Decimal decimal = decompose(number);
  if (decimal.digits == 0) return u"0"_s;
  int size = kDigits;
  for (; decimal.digits % 10 == 0; decimal.digits /= 10, ++decimal.exponent) --size;
  const int point = size + decimal.exponent;
  if (point > -kDigits && point <= kDigits) return plain(decimal, 1, std::max(-decimal.exponent, 0));
  decimal.exponent = 1 - size;
  return u"%1E%2%3"_s.arg(plain(decimal, 1, size - 1), point > 0 ? u"+"_s : u"-"_s)
      .arg(std::abs(point - 1), 2, 10, QChar(u'0'));
}

QString format(double number, QStringView mask) {
  const qsizetype point = mask.indexOf(u'.');
  const QStringView before = point < 0 ? mask : mask.first(point);
  const int decimals = point < 0 ? 0 : static_cast<int>(mask.sliced(point + 1).count(u'0'));
  return plain(decompose(number), static_cast<int>(before.count(u'0')), decimals);
}

QString format(const QString& text, QStringView mask) {
  return isNumeric(text) ? format(toNumber(text), mask) : text;
}

}  // namespace values
