#include "platform/mail/mail_message.h"

#include <QFileInfo>

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
  for (const auto* list : {&to, &copy})
    for (const Address& address : *list) mail.recipients.push_back(address.address.toUtf8());

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
