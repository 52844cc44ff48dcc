#pragma once

#include "documents/document_values.h"
#include "platform/mail/mail_message.h"
#include "run/context.h"
#include "support/company.h"
#include "support/script.h"
#include "support/smtp_server.h"

/// A company whose mail goes to a real server on loopback.
class Mailing : public support::Company {
 protected:
  Mailing() {
    support::fillBasics(databasePath());
    reiniciaDocumento();
  }

  /// Lets the company's mail go to this server.
  void mailTo(const support::SmtpServer& server) {
    sql(QStringLiteral("update empr set emai_serv = '") + server.address().toUpper() + QStringLiteral("'"));
  }

  support::Script script_;
};
