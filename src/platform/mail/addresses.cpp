#include "platform/mail/addresses.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <optional>

#include "platform/mail/headers.h"
#include "platform/mail/mail_message.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr qsizetype kShownLength = 200;  // longest entry that an error shows whole

/// Local part, plain or quoted, and domain. A word alone is the half of a name that a comma cut.
const QString kAddress = uR"((?:"(?:[^"\\<>]|\\.)*+"|[^\s"<>(),;:@\\]++)@[^\s"<>(),;:@\\]++)"_s;

/// What stands between two separators; one within quotes or brackets that are closed is none.
const QRegularExpression kEntry(uR"((?:"(?:[^"\\]|\\.)*+"|\([^()]*+\)|[^,;"(]++|["(])++)"_s);

/// A name that holds an address of somebody else is no name: that one would get nothing.
bool hidesAnother(const QString& name, const QString& address) {
  static const QRegularExpression looksLikeOne(uR"([^\s"'<>(),;:@]++@[^\s"'<>(),;:@]++)"_s);
  for (auto found = looksLikeOne.globalMatch(name); found.hasNext();)
    if (found.next().captured().compare(address, Qt::CaseInsensitive) != 0) return true;
  return false;
}

QString withoutQuotes(const QString& name) {
  static const QRegularExpression quoted(uR"re(^"((?:[^"\\]|\\.)*+)"$)re"_s);
  static const QRegularExpression escaped(uR"(\\(.))"_s);
  const auto match = quoted.match(name);
  return match.hasMatch() ? match.captured(1).replace(escaped, u"\\1"_s) : name;
}

/// The address with its domain in ASCII; empty when the domain has no such form.
QByteArray onWire(const QString& address) {
  const qsizetype at = address.lastIndexOf(u'@');
  const QString domain = address.sliced(at + 1);
  if (std::ranges::all_of(domain, [](QChar c) { return c < QChar(0x7F); })) return address.toUtf8();
  const QByteArray ascii = QUrl::toAce(domain);
  return ascii.isEmpty() ? QByteArray() : address.first(at + 1).toUtf8() + ascii;
}

std::optional<Address> read(const QString& entry) {
  constexpr auto kUnicode = QRegularExpression::UseUnicodePropertiesOption;
  static const QRegularExpression bare(u"^(?<address>%1)(?:\\s*+\\((?<name>[^()]*+)\\))?+$"_s.arg(kAddress),
                                       kUnicode);
  static const QRegularExpression named(
      uR"(^(?<name>(?:"(?:[^"\\<>]|\\.)*+"|\([^()<>]*+\)|[^"<>()])*+)<\s*+(?<address>%1)\s*+>$)"_s.arg(
          kAddress),
      kUnicode);
  for (const QRegularExpression& form : {bare, named}) {
    const auto match = form.match(entry);
    if (!match.hasMatch()) continue;
    const QString address = match.captured(u"address"_s);
    const QString name = match.captured(u"name"_s).trimmed();
    const QByteArray wire = onWire(address);
    if (wire.isEmpty() || hidesAnother(name, address)) return {};
    return Address{withoutQuotes(name), wire};
  }
  return {};
}

}  // namespace

std::vector<Address> parseAddresses(const QString& list, const QString& role) {
  std::vector<Address> addresses;
  for (auto entries = kEntry.globalMatch(list); entries.hasNext();) {
    const QString line = withoutControls(entries.next().captured());
    if (line.isEmpty()) continue;
    const std::optional<Address> address = read(line);
    if (!address) {
      const QString shown = line.size() > kShownLength ? line.first(kShownLength) + u'…' : line;
      fail(u"não foi possível ler %1 \"%2\""_s.arg(role, shown));
    }
    addresses.push_back(*address);
  }
  return addresses;
}

}  // namespace mail
