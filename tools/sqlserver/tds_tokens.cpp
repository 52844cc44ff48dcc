#include "sqlserver/tds_tokens.h"

#include <QStringConverter>
#include <QtEndian>
#include <array>
#include <cmath>

#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

namespace sqlserver::tds {

namespace {

enum Token : quint8 {
  kColumns = 0x81,
  kError = 0xAA,
  kLoginAcknowledged = 0xAD,
  kRow = 0xD1,
  kEnvironment = 0xE3,
  kDone = 0xFD
};

enum WireType : quint8 { kIntN = 0x26, kDecimalN = 0x6A, kDateTimeN = 0x6F, kVarChar = 0xA7 };

/// Latin, without regard to case, code page 1252.
constexpr std::array<char, 5> kCollation{0x09, 0x04, '\xD0', 0x00, 0x34};

constexpr char kCodePage[] = "windows-1252";

template <typename Number>
void put(QByteArray& to, Number number) {
  const Number little = qToLittleEndian(number);
  to.append(reinterpret_cast<const char*>(&little), sizeof little);
}

QByteArray wide(const QString& text) {
  return {reinterpret_cast<const char*>(text.utf16()), text.size() * 2};
}

/// A text after the count of its characters.
template <typename Count>
void putText(QByteArray& to, const QString& text) {
  put(to, static_cast<Count>(text.size()));
  to.append(wide(text));
}

QString narrowed(QByteArrayView bytes) {
  QString text(bytes.size() / 2, Qt::Uninitialized);
  for (qsizetype i = 0; i < text.size(); ++i)
    text[i] = QChar(qFromLittleEndian<quint16>(bytes.data() + 2 * i));
  return text;
}

/// A number at a place of a message; 0 past its end.
template <typename Number>
Number numberAt(QByteArrayView message, qsizetype at) {
  if (at + static_cast<qsizetype>(sizeof(Number)) > message.size()) return 0;
  return qFromLittleEndian<Number>(message.data() + at);
}

/// What stands after the headers of a request, the first of which is the length of all.
QByteArrayView afterHeaders(QByteArrayView message) {
  return message.sliced(qMin<qsizetype>(numberAt<quint32>(message, 0), message.size()));
}

struct DecimalForm {
  quint8 precision, scale, bytes;
};

DecimalForm decimalForm(Type type) {
  return type == Type::Identity ? DecimalForm{38, 0, 16} : DecimalForm{18, 6, 8};
}

void putDecimal(QByteArray& to, double number, const DecimalForm& form) {
  put<quint8>(to, static_cast<quint8>(form.bytes + 1));
  put<quint8>(to, number < 0 ? 0 : 1);
  put<quint64>(to, static_cast<quint64>(std::llround(std::fabs(number) * std::pow(10, form.scale))));
  if (form.bytes > 8) put<quint64>(to, 0);
}

void putDateTime(QByteArray& to, const QDateTime& date) {
  constexpr int kTicksPerSecond = 300;
  put<quint8>(to, 8);
  put<qint32>(to, static_cast<qint32>(QDate(1900, 1, 1).daysTo(date.date())));
  put<quint32>(to, static_cast<quint32>(date.time().msecsSinceStartOfDay() / 1000 * kTicksPerSecond));
}

/// A text of any length, in one chunk.
void putLongText(QByteArray& to, const QByteArray& text) {
  put<quint64>(to, static_cast<quint64>(text.size()));
  if (!text.isEmpty()) {
    put<quint32>(to, static_cast<quint32>(text.size()));
    to.append(text);
  }
  put<quint32>(to, 0);
}

}  // namespace

void Response::environment(Environment kind, const QByteArray& now, const QByteArray& before) {
  put<quint8>(bytes_, kEnvironment);
  put<quint16>(bytes_, static_cast<quint16>(1 + now.size() + before.size()));
  put(bytes_, static_cast<quint8>(kind));
  bytes_ += now + before;
}

void Response::loginAcknowledged(const QString& database) {
  QByteArray name, empty, size, collation;
  putText<quint8>(name, database);
  putText<quint8>(empty, {});
  putText<quint8>(size, u"4096"_s);
  put<quint8>(collation, kCollation.size());
  collation.append(kCollation.data(), kCollation.size());
  environment(Environment::Database, name, empty);
  environment(Environment::Collation, collation, empty);
  environment(Environment::PacketSize, size, size);
  QByteArray body("\x01\x74\x00\x00\x04", 5);  // the interface, then the version
  putText<quint8>(body, u"Servidor de teste"_s);
  put<quint32>(body, 0x0F);
  put<quint8>(bytes_, kLoginAcknowledged);
  put<quint16>(bytes_, static_cast<quint16>(body.size()));
  bytes_ += body;
}

void Response::transactionChanged(Environment kind, quint64 transaction) {
  QByteArray descriptor, none(1, '\0');
  put<quint8>(descriptor, sizeof transaction);
  put(descriptor, transaction);
  environment(kind, kind == Environment::Begin ? descriptor : none,
              kind == Environment::Begin ? none : descriptor);
}

void Response::columns(const std::vector<Column>& columns) {
  put<quint8>(bytes_, kColumns);
  put<quint16>(bytes_, static_cast<quint16>(columns.size()));
  for (const Column& column : columns) {
    put<quint32>(bytes_, 0);
    put<quint16>(bytes_, 0x0009);  // may be null, may be written
    switch (column.type) {
      case Type::Integer:
        bytes_ += QByteArrayLiteral("\x26\x04");
        break;
      case Type::Decimal:
      case Type::Identity: {
        const DecimalForm form = decimalForm(column.type);
        put<quint8>(bytes_, kDecimalN);
        put<quint8>(bytes_, static_cast<quint8>(form.bytes + 1));
        put(bytes_, form.precision);
        put(bytes_, form.scale);
        break;
      }
      case Type::DateTime:
        bytes_ += QByteArrayLiteral("\x6F\x08");
        break;
      case Type::Text:
        put<quint8>(bytes_, kVarChar);
        put<quint16>(bytes_, static_cast<quint16>(column.length > 0 ? column.length : 0xFFFF));
        bytes_.append(kCollation.data(), kCollation.size());
        break;
    }
    putText<quint8>(bytes_, column.name);
  }
}

void Response::text(const Column& column, const QByteArray& text) {
  if (column.length == 0) return putLongText(bytes_, text);
  const QByteArray kept = text.left(column.length);
  put<quint16>(bytes_, static_cast<quint16>(kept.size()));
  bytes_ += kept;
}

void Response::value(const Column& column, const data::Recordset& result) {
  const QString& field = column.name;
  if (result.isNull(field)) {
    if (column.type != Type::Text) return put<quint8>(bytes_, 0);
    return column.length > 0 ? put<quint16>(bytes_, 0xFFFF) : put<quint64>(bytes_, ~quint64{0});
  }
  switch (column.type) {
    case Type::Integer:
      put<quint8>(bytes_, 4);
      put(bytes_, static_cast<qint32>(result.number(field)));
      break;
    case Type::Decimal:
    case Type::Identity:
      putDecimal(bytes_, result.number(field), decimalForm(column.type));
      break;
    case Type::DateTime:
      putDateTime(bytes_, result.date(field));
      break;
    case Type::Text:
      text(column, toCodePage(result.text(field)));
      break;
  }
}

void Response::row(const std::vector<Column>& columns, const data::Recordset& result) {
  put<quint8>(bytes_, kRow);
  for (const Column& column : columns) value(column, result);
}

void Response::error(qint32 number, const QString& text) {
  constexpr quint8 kSeverity = 16;
  QByteArray body;
  put(body, number);
  put<quint8>(body, 1);
  put(body, kSeverity);
  putText<quint16>(body, text.left(1000));
  putText<quint8>(body, u"TESTE"_s);
  putText<quint8>(body, {});
  put<quint32>(body, 1);
  put<quint8>(bytes_, kError);
  put<quint16>(bytes_, static_cast<quint16>(body.size()));
  bytes_ += body;
}

void Response::refuse(qint32 number, const QString& text) {
  error(number, text);
  done(End::Failed);
}

void Response::done(End end, qint64 rows, bool more) {
  constexpr quint16 kMore = 0x0001;
  put<quint8>(bytes_, kDone);
  put(bytes_, static_cast<quint16>(static_cast<quint16>(end) | (more ? kMore : 0)));
  put<quint16>(bytes_, 0);
  put(bytes_, rows);
}

QByteArray preloginAnswer() {
  // Places and lengths of: the version, encryption (none), threads, several results at a time (no).
  return QByteArray(
      "\x00\x00\x15\x00\x06\x01\x00\x1B\x00\x01\x02\x00\x1C\x00\x01\x04\x00\x1D\x00\x01\xFF"
      "\x0F\x00\x00\x00\x00\x00\x02\x00\x00",
      30);
}

Login parseLogin(const QByteArray& message) {
  const auto field = [&](qsizetype place) {
    return message.mid(numberAt<quint16>(message, place), numberAt<quint16>(message, place + 2) * 2);
  };
  QByteArray password = field(44);
  for (char& byte : password) {
    const auto plain = static_cast<unsigned char>(byte ^ '\xA5');
    byte = static_cast<char>((plain >> 4) | (plain << 4));
  }
  return {narrowed(field(40)), narrowed(password), narrowed(field(68))};
}

QString parseBatch(const QByteArray& message) { return narrowed(afterHeaders(message)); }

TransactionRequest parseTransaction(const QByteArray& message) {
  const QByteArrayView request = afterHeaders(message);
  const auto nameLength = numberAt<quint8>(request, 2);
  return {numberAt<quint16>(request, 0), (numberAt<quint8>(request, 3 + nameLength) & 1) != 0};
}

QByteArray toCodePage(const QString& text) { return QStringEncoder(kCodePage)(text); }

QString throughCodePage(const QString& text) { return QStringDecoder(kCodePage)(toCodePage(text)); }

}  // namespace sqlserver::tds
