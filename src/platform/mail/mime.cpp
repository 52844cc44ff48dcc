#include "platform/mail/mime.h"

#include <QMimeDatabase>

#include "platform/mail/headers.h"

namespace mail {

namespace {

constexpr char kAlternative[] = "multipart/alternative";

/// A call fails where memory runs out, and nowhere else.
void check(CURLcode result) {
  if (result != CURLE_OK) throw std::bad_alloc();
}

/// In base64, whose length is known before it goes: a server can then refuse a message for its size at once.
curl_mimepart* addPart(const Mime& parts, const QByteArray& type, const QByteArray& content) {
  curl_mimepart* part = curl_mime_addpart(parts.get());
  check(curl_mime_data(part, content.constData(), static_cast<size_t>(content.size())));
  check(curl_mime_type(part, type.constData()));
  check(curl_mime_encoder(part, "base64"));
  return part;
}

void addFile(const Mime& parts, const AttachmentList::File& file) {
  const QMimeType type = QMimeDatabase().mimeTypeForFile(file.name, QMimeDatabase::MatchExtension);
  curl_mimepart* part = addPart(parts, type.name().toLatin1(), file.content);
  // The client would write a name with accents as it stands.
  List headers = makeList({dispositionHeader(file.name)});
  check(curl_mime_headers(part, headers.get(), 1));
  static_cast<void>(headers.release());
}

}  // namespace

Parts makeParts(CURL* handle, const std::vector<Body>& bodies,
                const std::vector<AttachmentList::File>& files) {
  Mime forms(curl_mime_init(handle));
  for (const Body& body : bodies) addPart(forms, body.contentType, body.content);
  if (files.empty()) return {std::move(forms), "Content-Type: " + QByteArray(kAlternative)};

  Mime all(curl_mime_init(handle));
  curl_mimepart* first = curl_mime_addpart(all.get());
  check(curl_mime_subparts(first, forms.get()));
  static_cast<void>(forms.release());
  check(curl_mime_type(first, kAlternative));
  for (const AttachmentList::File& file : files) addFile(all, file);
  return {std::move(all), "Content-Type: multipart/mixed"};
}

}  // namespace mail
