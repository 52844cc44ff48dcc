#include "platform/mail/mail_error.h"

using namespace Qt::StringLiterals;

namespace mail {

void fail(const QString& step, const QStringList& details, bool serverSilent) {
  const QString first = u"O e-mail não foi enviado: "_s + step + u'.';
  throw MailError(values::kMailFailed, (QStringList{first} + details).join(u'\r'), serverSilent);
}

}  // namespace mail
