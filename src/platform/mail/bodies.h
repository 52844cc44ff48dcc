#pragma once

#include <QByteArray>
#include <QString>

// The bodies of a message in the bytes that go over the wire.
namespace mail {

struct Body {
  QByteArray contentType;
  QByteArray content;
};

/// In the character set that its head declares; what that can't hold becomes a numeric character reference.
/// UTF-8 without a declaration.
[[nodiscard]] Body htmlBody(const QString& html);
/// UTF-8; CR, LF and CR LF all end a line.
[[nodiscard]] Body plainBody(const QString& text);

}  // namespace mail
