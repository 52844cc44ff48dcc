#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <vector>

#include "platform/mail/addresses.h"

// The lines at the head of a message and of its parts, as they go over the wire.
namespace mail {

/// On one line, without what would begin another header.
[[nodiscard]] QString withoutControls(QString text);

/// A header line without its line end; a text outside ASCII, or a long one, goes in encoded words of UTF-8
/// (RFC 2047), folded. Line ends and other control characters in the value become blanks.
[[nodiscard]] QByteArray textHeader(const QByteArray& name, const QString& value);
[[nodiscard]] QByteArray addressHeader(const QByteArray& name, const std::vector<Address>& addresses);
[[nodiscard]] QByteArray dateHeader(const QDateTime& when);
/// A fresh identity in the domain of the sender's address.
[[nodiscard]] QByteArray messageIdHeader(const QByteArray& sender);
/// Content-Disposition of an attachment; a name outside ASCII is encoded (RFC 2231).
[[nodiscard]] QByteArray dispositionHeader(const QString& fileName);

}  // namespace mail
