#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "platform/mail/mail_message.h"

namespace mail {

/// What goes to a server, ready for the wire.
struct Outgoing {
  QString server;  ///< "host" or "host:port"
  QString username;
  QString password;
  QByteArray from;                     ///< bare address
  std::vector<QByteArray> recipients;  ///< bare addresses
  std::vector<QByteArray> headers;     ///< without line ends
  QString text;                        ///< where it is empty the HTML's own without its tags
  QString html;                        ///< empty for none
  std::vector<AttachmentList::File> files;
};

/// Connects and logs in, and sends nothing: of `login` only server and user count. Whether the line was
/// encrypted. Raises as transfer does.
[[nodiscard]] bool tryLogin(const Outgoing& login, const Settings& settings);

/// Hands it to the server and waits. Raises values::kMailFailed, with the step and the server's answer.
void transfer(const Outgoing& mail, const Settings& settings);

}  // namespace mail
