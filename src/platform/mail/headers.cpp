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

bool isAscii(const QString& text) {
  return std::ranges::all_of(text, [](QChar c) { return c < QChar(0x7F); });
}

QByteArray encodedText(const QString& text) {
  if (isAscii(text) && text.size() <= kPlainLength && !text.contains(u"=?")) return text.toLatin1();
  QByteArray out;
  for (qsizetype from = 0; from < text.size();) {
    qsizetype length = std::min(kWordBytes, text.size() - from);
    const auto cutInTwo = [&] { return length > 1 && text.at(from + length - 1).isHighSurrogate(); };
    while (cutInTwo() || text.sliced(from, length).toUtf8().size() > kWordBytes) --length;
    if (from > 0) out += kFold;
    out += "=?UTF-8?B?" + text.sliced(from, length).toUtf8().toBase64() + "?=";
    from += length;
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

QString withoutControls(QString text) {
  std::ranges::replace_if(
      text, [](QChar c) { return c < u' ' || c == QChar(0x7F); }, QChar(u' '));
  return text.trimmed();
}

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
  return "Message-ID: <" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) +
         sender.mid(sender.lastIndexOf('@')) + ">";
}

QByteArray dispositionHeader(const QString& fileName) {
  const QString name = withoutControls(fileName);
  const QByteArray parameter =
      isAscii(name) ? "filename=" + quoted(name) : "filename*=UTF-8''" + QUrl::toPercentEncoding(name);
  return "Content-Disposition: attachment;" + QByteArray(kFold) + parameter;
}

}  // namespace mail
