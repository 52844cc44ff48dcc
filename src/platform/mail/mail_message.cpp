#include "platform/mail/mail_message.h"

#include <QFileInfo>
#include <algorithm>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/mail/headers.h"
#include "platform/mail/smtp_transfer.h"
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
std::vector<QByteArray> envelope(const std::vector<Address>& to, const std::vector<Address>& copy) {
  std::vector<QByteArray> recipients;
  for (const auto* list : {&to, &copy}) {
    for (const Address& address : *list) {
      const auto same = [&address](const QByteArray& other) {
        return other.compare(address.address, Qt::CaseInsensitive) == 0;
      };
      if (std::ranges::none_of(recipients, same)) recipients.push_back(address.address);
    }
  }
  return recipients;
}

}  // namespace

void MailMessage::SendEmail() const {
  const std::vector<Address> from = parseAddresses(MailFrom, u"o remetente"_s);
  const std::vector<Address> to = parseAddresses(SendTo, u"o destinatário"_s);
  const std::vector<Address> copy = parseAddresses(SendCC, u"o destinatário da cópia"_s);
  if (Server.trimmed().isEmpty()) fail(u"falta o servidor de e-mail"_s);
  if (from.empty()) fail(u"falta o endereço do remetente"_s);
  if (to.empty()) fail(u"não há nenhum destinatário"_s);

  Outgoing mail;
  mail.server = Server.trimmed();
  if (AuthenticationType == kLogin) {
    mail.username = Username;
    mail.password = Password;
  }
  mail.from = from.front().address;
  mail.recipients = envelope(to, copy);
  mail.headers = {dateHeader(values::now()), messageIdHeader(mail.from),
                  addressHeader("From", {from.front()}), addressHeader("To", to)};
  if (!copy.empty()) mail.headers.push_back(addressHeader("Cc", copy));
  mail.headers.push_back(textHeader("Subject", MessageSubject));
  mail.text = MessageText;
  mail.html = MessageHTML;
  mail.files = Attachments.files();
  transfer(mail, settings());
}

}  // namespace mail
