#include "platform/mail/mail_message.h"

#include <QFileInfo>
#include <algorithm>

#include "platform/files/paths.h"
#include "platform/mail/headers.h"
#include "platform/mail/smtp_transfer.h"
#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

namespace mail {

void AttachmentList::Add(const QString& path) {
  QByteArray content = files::readAll(path);
  files_.push_back({QFileInfo(files::resolve(path)).fileName(), std::move(content)});
}

Settings& settings() {
  static Settings instance{.caFile = qEnvironmentVariable("ZARIM_MAIL_CA")};
  return instance;
}

namespace {

/// Every address once: who stands in the list twice gets one message.
std::vector<QByteArray> envelope(const std::vector<Address>& to, const std::vector<Address>& copy) {
  std::vector<QByteArray> recipients;
  for (const auto* list : {&to, &copy}) {
    for (const Address& address : *list) {
      const QByteArray bytes = address.address.toUtf8();
      const auto same = [&bytes](const QByteArray& other) {
        return other.compare(bytes, Qt::CaseInsensitive) == 0;
      };
      if (std::ranges::none_of(recipients, same)) recipients.push_back(bytes);
    }
  }
  return recipients;
}

}  // namespace

void MailMessage::SendEmail() const {
  const std::vector<Address> from = parseAddresses(MailFrom);
  const std::vector<Address> to = parseAddresses(SendTo);
  const std::vector<Address> copy = parseAddresses(SendCC);
  if (Server.trimmed().isEmpty()) fail(u"falta o servidor de e-mail"_s);
  if (from.empty()) fail(u"falta o endereço do remetente"_s);
  if (to.empty() && copy.empty()) fail(u"não há nenhum destinatário"_s);

  Outgoing mail;
  mail.server = Server.trimmed();
  mail.from = from.front().address.toUtf8();
  mail.files = Attachments.files();
  if (AuthenticationType == kLogin) {
    mail.username = Username;
    mail.password = Password;
  }
  mail.recipients = envelope(to, copy);

  mail.headers = {dateHeader(values::now()), messageIdHeader(from.front().address),
                  addressHeader("From", {from.front()})};
  if (!to.empty()) mail.headers.push_back(addressHeader("To", to));
  if (!copy.empty()) mail.headers.push_back(addressHeader("Cc", copy));
  mail.headers.push_back(textHeader("Subject", MessageSubject));

  if (!MessageText.isEmpty() || MessageHTML.isEmpty()) mail.bodies.push_back(plainBody(MessageText));
  if (!MessageHTML.isEmpty()) mail.bodies.push_back(htmlBody(MessageHTML));
  transfer(mail, settings());
}

}  // namespace mail
