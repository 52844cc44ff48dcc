#include "platform/mail/smtp_transfer.h"

#include "platform/mail/curl_handles.h"
#include "platform/mail/mail_error.h"
#include "platform/mail/mime.h"
#include "platform/mail/smtp_dialogue.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr int kTlsPort = 465;

Handle makeHandle() {
  static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
  Handle handle(started == CURLE_OK ? curl_easy_init() : nullptr);
  if (!handle) throw std::bad_alloc();
  return handle;
}

QByteArray partOf(CURLU* url, CURLUPart part) {
  char* text = nullptr;
  if (curl_url_get(url, part, &text, 0) != CURLUE_OK) return {};
  const Text owned(text);
  return text;
}

/// The server as an address; TLS from the start on its own port.
Url serverUrl(const QString& server) {
  Url url(curl_url());
  if (!url) throw std::bad_alloc();
  const QByteArray text = "smtp://" + server.toUtf8();
  if (curl_url_set(url.get(), CURLUPART_URL, text.constData(), 0) != CURLUE_OK)
    fail(u"o endereço do servidor de e-mail não é válido"_s, {u"Servidor: "_s + server});
  if (partOf(url.get(), CURLUPART_PORT).toInt() == kTlsPort)
    curl_url_set(url.get(), CURLUPART_SCHEME, "smtps", 0);
  return url;
}

bool isEncrypted(CURLU* url) { return partOf(url, CURLUPART_SCHEME) == "smtps"; }

template <class Value>
void set(CURL* handle, CURLoption option, Value value) {
  curl_easy_setopt(handle, option, value);
}

void setLimits(CURL* handle, const Settings& settings) {
  // Up to the end of the login; what follows has the dialogue's limits.
  set(handle, CURLOPT_CONNECTTIMEOUT, long{settings.connectTimeout});
  set(handle, CURLOPT_NOSIGNAL, 1L);
  // A name server that doesn't answer is not waited for beyond that time.
  set(handle, CURLOPT_QUICK_EXIT, 1L);
  // The line is closed while the dialogue still listens, so that the good-bye has its limit.
  set(handle, CURLOPT_FORBID_REUSE, 1L);
}

/// TLS is taken where it is offered; the dialogue sees to it that it succeeds then.
void setSafety(CURL* handle, const QByteArray& caFile) {
  set(handle, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  set(handle, CURLOPT_PROXY, "");
  if (!caFile.isEmpty()) set(handle, CURLOPT_CAINFO, caFile.constData());
}

/// All but the message.
void prepare(CURL* curl, CURLU* url, const Outgoing& mail, const Settings& settings, Dialogue& dialogue) {
  set(curl, CURLOPT_CURLU, url);
  set(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  if (!mail.username.isEmpty()) {
    set(curl, CURLOPT_USERNAME, mail.username.toUtf8().constData());
    set(curl, CURLOPT_PASSWORD, mail.password.toUtf8().constData());
    // The methods that take user and password as they are, whatever else the server offers.
    set(curl, CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN");
  }
  setLimits(curl, settings);
  setSafety(curl, settings.caFile.toLocal8Bit());
  dialogue.listenTo(curl);
}

void perform(CURL* curl, const Dialogue& dialogue, const QString& server) {
  const CURLcode result = curl_easy_perform(curl);
  if (result != CURLE_OK) fail(dialogue.failure(result), dialogue.details(server), dialogue.silence(result));
}

}  // namespace

bool tryLogin(const Outgoing& login, const Settings& settings) {
  const Url url = serverUrl(login.server);
  Dialogue dialogue(isEncrypted(url.get()), login.password, settings.stallTimeout);
  const Handle handle = makeHandle();
  prepare(handle.get(), url.get(), login, settings, dialogue);
  set(handle.get(), CURLOPT_NOBODY, 1L);
  set(handle.get(), CURLOPT_CUSTOMREQUEST, "NOOP");
  perform(handle.get(), dialogue, login.server);
  return dialogue.encrypted();
}

void transfer(const Outgoing& mail, const Settings& settings) {
  const Url url = serverUrl(mail.server);
  const List recipients = makeList(mail.recipients);
  Dialogue dialogue(isEncrypted(url.get()), mail.password, settings.stallTimeout);

  const Handle handle = makeHandle();
  CURL* curl = handle.get();
  const Parts parts = makeParts(curl, mail.bodies, mail.files);
  std::vector<QByteArray> lines = mail.headers;
  lines.push_back(parts.typeHeader);
  const List headers = makeList(lines);
  prepare(curl, url.get(), mail, settings, dialogue);
  set(curl, CURLOPT_MAIL_FROM, mail.from.constData());
  set(curl, CURLOPT_MAIL_RCPT, recipients.get());
  set(curl, CURLOPT_HTTPHEADER, headers.get());
  set(curl, CURLOPT_MIMEPOST, parts.mime.get());

  perform(curl, dialogue, mail.server);
}

}  // namespace mail
