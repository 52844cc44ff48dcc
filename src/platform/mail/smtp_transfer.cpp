#include "platform/mail/smtp_transfer.h"

#include <curl/curl.h>

#include <QMimeDatabase>
#include <QStringList>
#include <memory>

#include "platform/mail/headers.h"
#include "platform/mail/smtp_dialogue.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr int kTlsPort = 465;

template <auto release>
struct Releaser {
  template <class T>
  void operator()(T* thing) const {
    release(thing);
  }
};
using Handle = std::unique_ptr<CURL, Releaser<curl_easy_cleanup>>;
using Url = std::unique_ptr<CURLU, Releaser<curl_url_cleanup>>;
using Mime = std::unique_ptr<curl_mime, Releaser<curl_mime_free>>;
using Text = std::unique_ptr<char, Releaser<curl_free>>;

struct ListReleaser {
  void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using List = std::unique_ptr<curl_slist, ListReleaser>;

List makeList(const std::vector<QByteArray>& entries) {
  List list;
  for (const QByteArray& entry : entries) {
    curl_slist* grown = curl_slist_append(list.get(), entry.constData());
    if (grown == nullptr) throw std::bad_alloc();
    static_cast<void>(list.release());
    list.reset(grown);
  }
  return list;
}

Handle makeHandle() {
  static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
  Handle handle(started == CURLE_OK ? curl_easy_init() : nullptr);
  if (!handle) throw std::bad_alloc();
  return handle;
}

/// The server as an address; TLS from the start on its own port.
Url serverUrl(const QString& server) {
  Url url(curl_url());
  if (!url) throw std::bad_alloc();
  const QByteArray text = "smtp://" + server.toUtf8();
  if (curl_url_set(url.get(), CURLUPART_URL, text.constData(), 0) != CURLUE_OK)
    fail(u"o endereço do servidor de e-mail não é válido"_s, {u"Servidor: "_s + server});
  char* port = nullptr;
  if (curl_url_get(url.get(), CURLUPART_PORT, &port, 0) == CURLUE_OK) {
    const Text owned(port);
    if (QByteArray(port).toInt() == kTlsPort) curl_url_set(url.get(), CURLUPART_SCHEME, "smtps", 0);
  }
  return url;
}

void addData(curl_mimepart* part, const QByteArray& content, const QByteArray& type, const char* encoder) {
  curl_mime_data(part, content.constData(), static_cast<size_t>(content.size()));
  curl_mime_type(part, type.constData());
  curl_mime_encoder(part, encoder);
}

void addBodies(CURL* handle, curl_mime* mime, const std::vector<Body>& bodies) {
  curl_mime* target = mime;
  if (bodies.size() > 1) {
    target = curl_mime_init(handle);
    curl_mimepart* part = curl_mime_addpart(mime);
    curl_mime_subparts(part, target);
    curl_mime_type(part, "multipart/alternative");
  }
  for (const Body& body : bodies)
    addData(curl_mime_addpart(target), body.content, body.contentType, "quoted-printable");
}

void addFile(curl_mime* mime, const AttachmentList::File& file) {
  curl_mimepart* part = curl_mime_addpart(mime);
  const QMimeType type = QMimeDatabase().mimeTypeForFile(file.name, QMimeDatabase::MatchExtension);
  addData(part, file.content, type.name().toLatin1(), "base64");
  curl_mime_headers(part, makeList({dispositionHeader(file.name)}).release(), 1);
}

template <class Value>
void set(CURL* handle, CURLoption option, Value value) {
  curl_easy_setopt(handle, option, value);
}

void setLimits(CURL* handle, const Settings& settings) {
  set(handle, CURLOPT_CONNECTTIMEOUT, long{settings.connectTimeout});
  set(handle, CURLOPT_SERVER_RESPONSE_TIMEOUT, long{settings.stallTimeout});
  // A server that stops reading in the middle of the message answers nothing that could time out.
  set(handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
  set(handle, CURLOPT_LOW_SPEED_TIME, long{settings.stallTimeout});
  set(handle, CURLOPT_NOSIGNAL, 1L);
}

void setSafety(CURL* handle, const QByteArray& caFile) {
  set(handle, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  set(handle, CURLOPT_PROXY, "");
  if (!caFile.isEmpty()) set(handle, CURLOPT_CAINFO, caFile.constData());
}

}  // namespace

void fail(const QString& step, const QStringList& details) {
  throw values::RuntimeError(
      values::kMailFailed,
      (QStringList{u"O e-mail não foi enviado: "_s + step + u'.'} + details).join(u'\r'));
}

void transfer(const Outgoing& mail, const Settings& settings) {
  const Url url = serverUrl(mail.server);
  const List recipients = makeList(mail.recipients);
  const List headers = makeList(mail.headers);
  const QByteArray user = mail.username.toUtf8();
  const QByteArray password = mail.password.toUtf8();
  const QByteArray caFile = settings.caFile.toLocal8Bit();
  Dialogue dialogue;

  const Handle handle = makeHandle();
  CURL* curl = handle.get();
  set(curl, CURLOPT_CURLU, url.get());
  set(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  set(curl, CURLOPT_MAIL_FROM, mail.from.constData());
  set(curl, CURLOPT_MAIL_RCPT, recipients.get());
  if (!user.isEmpty()) {
    set(curl, CURLOPT_USERNAME, user.constData());
    set(curl, CURLOPT_PASSWORD, password.constData());
  }
  setLimits(curl, settings);
  setSafety(curl, caFile);
  dialogue.listenTo(curl);

  const Mime mime(curl_mime_init(curl));
  addBodies(curl, mime.get(), mail.bodies);
  for (const AttachmentList::File& file : mail.files) addFile(mime.get(), file);
  set(curl, CURLOPT_MIMEPOST, mime.get());
  set(curl, CURLOPT_HTTPHEADER, headers.get());

  const CURLcode result = curl_easy_perform(curl);
  if (result != CURLE_OK) fail(dialogue.failure(result), dialogue.details(mail.server));
}

}  // namespace mail
