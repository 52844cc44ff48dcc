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
  QByteArray message;                  ///< whole, in lines that end in CR LF
};

/// Hands it to the server and waits. Raises values::kMailFailed, with the step and the server's answer.
void transfer(const Outgoing& mail, const Settings& settings);

}  // namespace mail
