#include "platform/mail/headers.h"

#include <QUrl>
#include <QUuid>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr qsizetype kPlainLength = 70;  // longest text that goes as it stands
constexpr qsizetype kWordBytes = 45;    // bytes of text in an encoded word, 60 characters of base64
constexpr char kFold[] = "\r\n ";

bool isControl(QChar c) { return c < u' ' || c == QChar(0x7F); }

QString withoutControls(QString text) {
  std::replace_if(text.begin(), text.end(), isControl, QChar(u' '));
  return text.trimmed();
}

bool isAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c < QChar(0x7F); });
}

QByteArray encodedWord(QStringView piece) { return "=?UTF-8?B?" + piece.toUtf8().toBase64() + "?="; }

/// End of the piece that starts at `from` and fits an encoded word; a character is never cut in two.
qsizetype pieceEnd(const QString& text, qsizetype from) {
  qsizetype bytes = 0;
  qsizetype at = from;
  while (at < text.size()) {
    const qsizetype units = text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    bytes += QStringView(text).mid(at, units).toUtf8().size();
    if (bytes > kWordBytes) break;
    at += units;
  }
  return at;
}

QByteArray encodedText(const QString& text) {
  if (isAscii(text) && text.size() <= kPlainLength && !text.contains(u"=?")) return text.toLatin1();
  QByteArray out;
  for (qsizetype from = 0; from < text.size();) {
    const qsizetype end = pieceEnd(text, from);
    if (!out.isEmpty()) out += kFold;
    out += encodedWord(QStringView(text).sliced(from, end - from));
    from = end;
  }
  return out;
}

QByteArray quoted(const QString& text) {
  QString inside = text;
  inside.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
  return '"' + inside.toLatin1() + '"';
}

QByteArray displayName(const QString& name) {
  const QByteArray encoded = encodedText(withoutControls(name));
  return encoded.startsWith("=?") ? encoded : quoted(name);
}

}  // namespace

QByteArray textHeader(const QByteArray& name, const QString& value) {
  return name + ": " + encodedText(withoutControls(value));
}

QByteArray addressHeader(const QByteArray& name, const std::vector<Address>& addresses) {
  QByteArray line = name + ":";
  for (const Address& address : addresses) {
    line += &address == &addresses.front() ? QByteArray(" ") : QByteArray(",") + kFold;
    if (address.name.isEmpty())
      line += address.address;
    else
      line += displayName(address.name) + " <" + address.address + ">";
  }
  return line;
}

QByteArray dateHeader(const QDateTime& when) {
  // The program's clock gives local time without a zone; a message needs the zone of the place.
  const QDateTime local(when.date(), when.time(), Qt::LocalTime);
  const QDateTime withOffset = local.toOffsetFromUtc(local.offsetFromUtc());
  return "Date: " + withOffset.toString(Qt::RFC2822Date).toLatin1();
}

QByteArray messageIdHeader(const QByteArray& sender) {
  const QByteArray domain = sender.mid(sender.lastIndexOf('@') + 1);
  return "Message-ID: <" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + "@" +
         (domain.isEmpty() ? QByteArray("localhost") : domain) + ">";
}

QByteArray dispositionHeader(const QString& fileName) {
  const QString name = withoutControls(fileName);
  const QByteArray parameter =
      isAscii(name) ? "filename=" + quoted(name) : "filename*=UTF-8''" + QUrl::toPercentEncoding(name);
  return "Content-Disposition: attachment;" + QByteArray(kFold) + parameter;
}

}  // namespace mail
