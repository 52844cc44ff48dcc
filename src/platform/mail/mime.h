#pragma once

#include <QByteArray>
#include <vector>

#include "platform/mail/bodies.h"
#include "platform/mail/mail_message.h"

namespace mail {

/// A whole message as it goes over the wire. headers: without line ends. bodies: the same text in one or more
/// forms, the plainest first. One form alone is the message itself; several are alternatives, files stand
/// after it.
[[nodiscard]] QByteArray mimeMessage(const std::vector<QByteArray>& headers, const std::vector<Body>& bodies,
                                     const std::vector<AttachmentList::File>& files);

}  // namespace mail
