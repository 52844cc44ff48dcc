#pragma once

#include <QJsonArray>

#include "documents/document_values.h"
#include "platform/files/paths.h"
#include "screens/screen_case.h"
#include "support/smtp_server.h"

/// A company whose mail goes to a real server on loopback.
class Mailing : public ScreenCase {
 protected:
  Mailing() { reiniciaDocumento(); }

  /// Lets the company's mail go to this server.
  void mailTo(const support::SmtpServer& server) {
    sql(QStringLiteral("update empr set emai_serv = '") + server.address().toUpper() + QStringLiteral("'"));
  }
};
