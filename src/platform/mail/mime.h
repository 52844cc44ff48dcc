#pragma once

#include <vector>

#include "platform/mail/bodies.h"
#include "platform/mail/curl_handles.h"
#include "platform/mail/mail_message.h"

namespace mail {

/// The parts of a message and their type. bodies: the same text in one or more forms, the plainest first;
/// files stand after them.
struct Parts {
  Mime mime;
  QByteArray typeHeader;
};
[[nodiscard]] Parts makeParts(CURL* handle, const std::vector<Body>& bodies,
                              const std::vector<AttachmentList::File>& files);

}  // namespace mail
