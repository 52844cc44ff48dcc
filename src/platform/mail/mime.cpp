#include "platform/mail/mime.h"

#include <QMimeDatabase>
#include <QUuid>

#include "platform/mail/headers.h"

namespace mail {

namespace {

constexpr qsizetype kLineLength = 76;  // longest line of an encoded content
constexpr char kLineEnd[] = "\r\n";

/// Content of a part with the headers that say what it is, as it stands in a message.
QByteArray part(const QByteArray& headers, const QByteArray& content) {
  return headers + kLineEnd + kLineEnd + content;
}

/// Whether a line ends at this place of a text whose lines end in CR LF.
bool lineEndsAt(const QByteArray& text, qsizetype at) {
  return text.at(at) == '\r' && at + 1 < text.size() && text.at(at + 1) == '\n';
}

/// Whether a byte goes as it is: it is printable, and no blank ends a line.
bool goesAsItIs(const QByteArray& text, qsizetype at) {
  const char byte = text.at(at);
  if (byte == ' ' || byte == '\t') return at + 1 < text.size() && !lineEndsAt(text, at + 1);
  return byte > ' ' && byte < 0x7F && byte != '=';
}

/// Lines of the text end in CR LF.
QByteArray quotedPrintable(const QByteArray& text) {
  constexpr char digits[] = "0123456789ABCDEF";
  QByteArray out;
  out.reserve(text.size() * 5 / 4);
  qsizetype length = 0;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (lineEndsAt(text, at)) {
      out += kLineEnd;
      length = 0;
      ++at;
      continue;
    }
    const char byte = text.at(at);
    const bool asItIs = goesAsItIs(text, at);
    const qsizetype width = asItIs ? 1 : 3;
    // One place is kept for the sign that a line goes on.
    if (length + width >= kLineLength) {
      out += "=\r\n";
      length = 0;
    }
    length += width;
    if (asItIs)
      out += byte;
    else
      out.append('=').append(digits[uchar(byte) >> 4]).append(digits[uchar(byte) & 0xF]);
  }
  return out;
}

QByteArray base64(const QByteArray& bytes) {
  const QByteArray encoded = bytes.toBase64();
  QByteArray out;
  out.reserve(encoded.size() + encoded.size() / kLineLength * 2 + 2);
  for (qsizetype at = 0; at < encoded.size(); at += kLineLength) {
    if (at > 0) out += kLineEnd;
    out += encoded.mid(at, kLineLength);
  }
  return out;
}

QByteArray multipart(const QByteArray& kind, const std::vector<QByteArray>& parts) {
  // Neither encoding of a content gives "=_", so that no content holds the boundary.
  const QByteArray boundary = "=_" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
  QByteArray content;
  for (const QByteArray& each : parts) content += "--" + boundary + kLineEnd + each + kLineEnd;
  content += "--" + boundary + "--\r\n";
  return part("Content-Type: multipart/" + kind + "; boundary=\"" + boundary + '"', content);
}

QByteArray bodyPart(const Body& body) {
  return part("Content-Type: " + body.contentType + "\r\nContent-Transfer-Encoding: quoted-printable",
              quotedPrintable(body.content));
}

QByteArray filePart(const AttachmentList::File& file) {
  const QMimeType type = QMimeDatabase().mimeTypeForFile(file.name, QMimeDatabase::MatchExtension);
  return part("Content-Type: " + type.name().toLatin1() + "\r\nContent-Transfer-Encoding: base64\r\n" +
                  dispositionHeader(file.name),
              base64(file.content));
}

}  // namespace

QByteArray mimeMessage(const std::vector<QByteArray>& headers, const std::vector<Body>& bodies,
                       const std::vector<AttachmentList::File>& files) {
  std::vector<QByteArray> forms;
  for (const Body& body : bodies) forms.push_back(bodyPart(body));
  QByteArray message = forms.size() == 1 ? forms.front() : multipart("alternative", forms);
  if (!files.empty()) {
    std::vector<QByteArray> parts{message};
    for (const AttachmentList::File& file : files) parts.push_back(filePart(file));
    message = multipart("mixed", parts);
  }
  QByteArray head;
  for (const QByteArray& header : headers) head += header + kLineEnd;
  return head + "MIME-Version: 1.0\r\n" + message;
}

}  // namespace mail
