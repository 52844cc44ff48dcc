#include "platform/mail/smtp_transfer.h"

#include "platform/mail/mime.h"
#include "platform/mail/smtp_dialogue.h"

using namespace Qt::StringLiterals;

namespace mail {

namespace {

/// TLS from the start on its own port.
bool isTlsPort(const QString& server) { return server.section(u':', -1).toInt() == 465; }

template <class Value>
void set(CURL* handle, CURLoption option, Value value) {
  curl_easy_setopt(handle, option, value);
}

/// A line to the server with all but the message. TLS is taken where it is offered; the dialogue sees to it
/// that it succeeds then.
Handle makeHandle(const Outgoing& mail, const Settings& settings, Dialogue& dialogue) {
  static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
  Handle handle(started == CURLE_OK ? curl_easy_init() : nullptr);
  if (!handle) throw std::bad_alloc();
  CURL* curl = handle.get();
  const QByteArray url = (isTlsPort(mail.server) ? "smtps://" : "smtp://") + mail.server.toUtf8();
  set(curl, CURLOPT_URL, url.constData());
  set(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  set(curl, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  set(curl, CURLOPT_PROXY, "");
  if (!settings.caFile.isEmpty()) set(curl, CURLOPT_CAINFO, settings.caFile.toLocal8Bit().constData());
  if (!mail.username.isEmpty()) {
    set(curl, CURLOPT_USERNAME, mail.username.toUtf8().constData());
    set(curl, CURLOPT_PASSWORD, mail.password.toUtf8().constData());
    // The methods that take user and password as they are, whatever else the server offers.
    set(curl, CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN");
  }
  // Up to the end of the login; what follows has the dialogue's limits.
  set(curl, CURLOPT_CONNECTTIMEOUT, long{settings.connectTimeout});
  set(curl, CURLOPT_NOSIGNAL, 1L);
  // A name server that doesn't answer is not waited for beyond that time.
  set(curl, CURLOPT_QUICK_EXIT, 1L);
  // The line is closed while the dialogue still listens, so that the good-bye has its limit.
  set(curl, CURLOPT_FORBID_REUSE, 1L);
  dialogue.listenTo(curl);
  return handle;
}

void perform(CURL* curl, const Dialogue& dialogue, const QString& server) {
  const CURLcode result = curl_easy_perform(curl);
  if (result != CURLE_OK) fail(dialogue.failure(result), dialogue.details(server), dialogue.silence(result));
}

}  // namespace

bool tryLogin(const Outgoing& login, const Settings& settings) {
  Dialogue dialogue(isTlsPort(login.server), login.password, settings.stallTimeout);
  const Handle handle = makeHandle(login, settings, dialogue);
  set(handle.get(), CURLOPT_NOBODY, 1L);
  set(handle.get(), CURLOPT_CUSTOMREQUEST, "NOOP");
  perform(handle.get(), dialogue, login.server);
  return dialogue.encrypted();
}

void transfer(const Outgoing& mail, const Settings& settings) {
  Dialogue dialogue(isTlsPort(mail.server), mail.password, settings.stallTimeout);
  const List recipients = makeList(mail.recipients);
  const Handle handle = makeHandle(mail, settings, dialogue);
  CURL* curl = handle.get();
  const Parts parts = makeParts(curl, mail);
  std::vector<QByteArray> lines = mail.headers;
  lines.push_back(parts.typeHeader);
  const List headers = makeList(lines);
  set(curl, CURLOPT_MAIL_FROM, mail.from.constData());
  set(curl, CURLOPT_MAIL_RCPT, recipients.get());
  set(curl, CURLOPT_HTTPHEADER, headers.get());
  set(curl, CURLOPT_MIMEPOST, parts.mime.get());
  perform(curl, dialogue, mail.server);
}

}  // namespace mail
