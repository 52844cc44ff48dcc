#pragma once

#include <QStringList>

#include "platform/values/runtime_error.h"

namespace mail {

/// What the mail component raises, and nothing else does: its callers show it and go on.
class MailError : public values::RuntimeError {
 public:
  MailError(int number, const QString& text, bool serverSilent = false)
      : RuntimeError(number, text), serverSilent_(serverSilent) {}
  /// The server could not be reached or did not answer in time: the next message would wait as long.
  [[nodiscard]] bool serverSilent() const { return serverSilent_; }

 private:
  bool serverSilent_;
};

/// Raises values::kMailFailed: what failed, in one line, and the lines with details.
[[noreturn]] inline void fail(const QString& step, const QStringList& details = {},
                              bool serverSilent = false) {
  const QString first = QStringLiteral("O e-mail não foi enviado: %1.").arg(step);
  throw MailError(values::kMailFailed, (QStringList{first} + details).join(u'\r'), serverSilent);
}

}  // namespace mail
