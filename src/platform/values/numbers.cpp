#include "platform/values/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

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

/// The value of digits with a point at most, a sign and an exponent; they are known to be well formed.
double parse(const QByteArray& digits) {
  double value = 0;
  const char* first = digits.constData();
  if (*first == '+') ++first;
  const auto [end, error] = std::from_chars(first, digits.constData() + digits.size(), value);
  if (error == std::errc::result_out_of_range && !digits.contains("e-")) raise(kOverflow);
  return error == std::errc{} ? value : 0.0;
}

/// Walks over a number in the regional form; nullopt-like empty text when it is none. Gives point notation.
QByteArray regionalDigits(QStringView text) {
  QByteArray out;
  qsizetype at = 0;
  const auto more = [&] { return at < text.size(); };
  if (more() && (text[at] == u'-' || text[at] == u'+')) out += text[at++] == u'-' ? '-' : '+';
  int digits = 0;
  bool comma = false;
  for (; more(); ++at) {
    if (isDigit(text[at])) {
      out += static_cast<char>(text[at].unicode());
      ++digits;
    } else if (text[at] == u',' && !comma) {
      comma = true;
      out += '.';
    } else if (text[at] != u'.' || comma || digits == 0) {
      break;
    }
  }
  if (digits == 0) return {};
  if (more() && (text[at] == u'E' || text[at] == u'e')) {
    out += 'e';
    ++at;
    if (more() && (text[at] == u'-' || text[at] == u'+')) out += text[at++] == u'-' ? "-" : "";
    const qsizetype start = at;
    for (; more() && isDigit(text[at]); ++at) out += static_cast<char>(text[at].unicode());
    if (at == start) return {};
  }
  return more() ? QByteArray() : out;
}

/// A number as decimal digits: value = 0,d1d2d3… times 10 to the power of point.
struct Decimal {
  bool negative = false;
  std::array<char, 24> digits{};
  int size = 0;  // digits that count: no trailing zeros, none for zero
  int point = 0;

  void take(std::string_view text) {
    size = 0;
    for (const char c : text)
      if (c != '.') digits[static_cast<std::size_t>(size++)] = c;
    while (size > 0 && at(size - 1) == '0') --size;
  }
  [[nodiscard]] char& at(int place) { return digits[static_cast<std::size_t>(place)]; }
  [[nodiscard]] char at(int place) const { return digits[static_cast<std::size_t>(place)]; }
};

Decimal decompose(double number) {
  if (!std::isfinite(number)) raise(kOverflow);
  Decimal out;
  out.negative = std::signbit(number);
  std::array<char, 40> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number),
                                    std::chars_format::scientific, kDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
  const auto e = text.find('e');
  out.take(text.substr(0, e));
  const std::size_t sign = text[e + 1] == '+' ? e + 2 : e + 1;
  std::from_chars(text.data() + sign, result.ptr, out.point);
  ++out.point;
  return out;
}

/// Keeps that many digits after the point, half away from zero.
void roundTo(Decimal& number, int decimals) {
  const int keep = number.point + decimals;
  if (keep >= number.size) return;
  const bool up = keep >= 0 && number.at(keep) >= '5';
  number.size = std::max(keep, 0);
  if (!up) return;
  while (number.size > 0 && number.at(number.size - 1) == '9') --number.size;
  if (number.size > 0) {
    ++number.at(number.size - 1);
  } else {
    number.at(0) = '1';
    number.size = 1;
    ++number.point;
  }
}

/// Digits before the point, at least that many, and exactly so many after it.
QString plain(const Decimal& number, int leastDigits, int decimals) {
  const auto digit = [&](int place) {  // place 0 stands right after the point
    const int at = number.point + place;
    return QChar(QLatin1Char(at >= 0 && at < number.size ? number.at(at) : '0'));
  };
  const int before = std::max(number.size == 0 ? 0 : number.point, leastDigits);
  QString text;
  text.reserve(before + decimals + 2);
  if (number.negative && number.size > 0) text += u'-';
  for (int place = -before; place < 0; ++place) text += digit(place);
  if (decimals > 0) text += u',';
  for (int place = 0; place < decimals; ++place) text += digit(place);
  return text;
}

double rounded(double number) {
  if (!std::isfinite(number)) raise(kOverflow);
  if (std::abs(number) >= 1e15) return number;
  Decimal decimal = decompose(number);
  roundTo(decimal, 0);
  return plain(decimal, 1, 0).toDouble();
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
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  QByteArray out;
  int digits = 0;
  bool point = false;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar c = text[at];
    if (isDigit(c)) {
      ++digits;
    } else if (c == u'.' && !point) {
      point = true;
    } else if (at != 0 || (c != u'-' && c != u'+')) {
      break;
    }
    out += static_cast<char>(c.unicode());
  }
  return digits == 0 ? 0.0 : parse(out);
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
  const Decimal decimal = decompose(number);
  const int size = decimal.size;
  if (size == 0) return u"0"_s;
  if (decimal.point > -kDigits && decimal.point <= kDigits)
    return plain(decimal, 1, std::max(size - decimal.point, 0));
  Decimal mantissa = decimal;
  mantissa.point = 1;
  const int exponent = decimal.point - 1;
  return u"%1E%2%3"_s.arg(plain(mantissa, 1, size - 1), exponent < 0 ? u"-"_s : u"+"_s)
      .arg(std::abs(exponent), 2, 10, QLatin1Char('0'));
}

QString format(double number, QStringView mask) {
  const qsizetype point = mask.indexOf(u'.');
  const QStringView before = point < 0 ? mask : mask.first(point);
  const int decimals = point < 0 ? 0 : static_cast<int>(mask.sliced(point + 1).count(u'0'));
  Decimal decimal = decompose(number);
  roundTo(decimal, decimals);
  return plain(decimal, static_cast<int>(before.count(u'0')), decimals);
}

QString format(const QString& text, QStringView mask) {
  return isNumeric(text) ? format(toNumber(text), mask) : text;
}

}  // namespace values
