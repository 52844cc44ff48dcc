#include "platform/mail/mail_message.h"

#include <QFileInfo>
#include <QSet>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/mail/headers.h"
#include "platform/mail/mime.h"
#include "platform/mail/smtp_dialogue.h"
#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

namespace mail {

void AttachmentList::Add(const QString& path) {
  try {
    QByteArray content = files::readAll(path);
    files_.push_back({QFileInfo(files::resolve(path)).fileName(), std::move(content)});
  } catch (const values::RuntimeError& error) {
    throw MailError(error.number(), error.text());
  }
}

Settings& settings() {
  static Settings instance{.caFile = qEnvironmentVariable("ZARIM_MAIL_CA")};
  return instance;
}

namespace {

/// Every address once: who stands in the list twice gets one message.
List envelope(std::vector<Address> to, const std::vector<Address>& copy) {
  to.insert(to.end(), copy.begin(), copy.end());
  std::vector<QByteArray> recipients;
  QSet<QByteArray> known;
  for (const Address& one : to) {
    if (known.contains(one.address.toLower())) continue;
    known << one.address.toLower();
    recipients.push_back(one.address);
  }
  return makeList(recipients);
}

/// TLS from the start on its own port.
bool isTlsPort(const QString& server) { return server.section(u':', -1).toInt() == 465; }

/// A line to the server with all but the message. TLS is taken where it is offered; the dialogue sees to it
/// that it succeeds then.
Handle makeHandle(const MailMessage& mail, Dialogue& dialogue) {
  static const CURLcode started = curl_global_init(CURL_GLOBAL_DEFAULT);
  Handle handle(started == CURLE_OK ? curl_easy_init() : nullptr);
  if (!handle) throw std::bad_alloc();
  CURL* curl = handle.get();
  const QString server = mail.Server.trimmed();
  const QByteArray url = (isTlsPort(server) ? "smtps://" : "smtp://") + server.toUtf8();
  curl_easy_setopt(curl, CURLOPT_URL, url.constData());
  curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  curl_easy_setopt(curl, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  curl_easy_setopt(curl, CURLOPT_PROXY, "");
  if (!settings().caFile.isEmpty())
    curl_easy_setopt(curl, CURLOPT_CAINFO, settings().caFile.toLocal8Bit().constData());
  if (mail.AuthenticationType == kLogin && !mail.Username.isEmpty()) {
    curl_easy_setopt(curl, CURLOPT_USERNAME, mail.Username.toUtf8().constData());
    curl_easy_setopt(curl, CURLOPT_PASSWORD, mail.Password.toUtf8().constData());
    // The methods that take user and password as they are, whatever else the server offers.
    curl_easy_setopt(curl, CURLOPT_LOGIN_OPTIONS, "AUTH=PLAIN;AUTH=LOGIN");
  }
  // Up to the end of the login; what follows has the dialogue's limits.
  curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, long{settings().connectTimeout});
  curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
  // A name server that doesn't answer is not waited for beyond that time.
  curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);
  // The line is closed while the dialogue still listens, so that the good-bye has its limit.
  curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
  dialogue.listenTo(curl);
  return handle;
}

void perform(CURL* curl, const Dialogue& dialogue, const QString& server) {
  const CURLcode result = curl_easy_perform(curl);
  if (result != CURLE_OK) fail(dialogue.failure(result), dialogue.details(server), dialogue.silence(result));
}

}  // namespace

bool MailMessage::tryLogin() const {
  Dialogue dialogue(isTlsPort(Server), Password, settings().stallTimeout);
  const Handle handle = makeHandle(*this, dialogue);
  curl_easy_setopt(handle.get(), CURLOPT_NOBODY, 1L);
  curl_easy_setopt(handle.get(), CURLOPT_CUSTOMREQUEST, "NOOP");
  perform(handle.get(), dialogue, Server);
  return dialogue.encrypted();
}

void MailMessage::SendEmail() const {
  const std::vector<Address> from = parseAddresses(MailFrom, u"o remetente"_s);
  const std::vector<Address> to = parseAddresses(SendTo, u"o destinatário"_s);
  const std::vector<Address> copy = parseAddresses(SendCC, u"o destinatário da cópia"_s);
  const QString server = Server.trimmed();
  if (server.isEmpty()) fail(u"falta o servidor de e-mail"_s);
  if (from.empty()) fail(u"falta o endereço do remetente"_s);
  if (to.empty()) fail(u"não há nenhum destinatário"_s);

  const QByteArray sender = from.front().address;
  const List recipients = envelope(to, copy);
  Dialogue dialogue(isTlsPort(server), Password, settings().stallTimeout);
  const Handle handle = makeHandle(*this, dialogue);
  CURL* curl = handle.get();
  const Parts parts = makeParts(curl, *this);
  std::vector<QByteArray> lines{dateHeader(values::now()), messageIdHeader(sender),
                                addressHeader("From", {from.front()}), addressHeader("To", to)};
  if (!copy.empty()) lines.push_back(addressHeader("Cc", copy));
  lines.push_back(textHeader("Subject", MessageSubject));
  lines.push_back(parts.typeHeader);
  const List headers = makeList(lines);
  curl_easy_setopt(curl, CURLOPT_MAIL_FROM, sender.constData());
  curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, recipients.get());
  curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
  curl_easy_setopt(curl, CURLOPT_MIMEPOST, parts.mime.get());
  perform(curl, dialogue, server);
}

}  // namespace mail
