#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/values/runtime_error.h"

// One message by SMTP. The members bear the names by which the program knows its mail component; what fails
// in it is raised as a MailError.
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

/// Values of AuthenticationType.
enum Authentication : int { kNoLogin = 0, kLogin = 2 };

/// Files that go with a message.
class AttachmentList {
 public:
  struct File {
    QString name;
    QByteArray content;
  };

  /// Takes a file by its path, as the program knows paths; its content is read now. Raises 53 when it is
  /// not there, 76 when its folder isn't, 52 on a path with a NUL, 70 or 75 when it can't be read.
  void Add(const QString& path);
  [[nodiscard]] const std::vector<File>& files() const { return files_; }

 private:
  std::vector<File> files_;
};

/// How long a server may keep the program waiting, and whom it trusts. Whole seconds.
struct Settings {
  int connectTimeout = 30;
  int stallTimeout = 60;
  /// PEM file of certificate authorities; empty: the system's own. ZARIM_MAIL_CA names it at the start.
  QString caFile;
};
[[nodiscard]] Settings& settings();

class MailMessage {
 public:
  QString Username;
  QString Password;
  int AuthenticationType = kNoLogin;
  AttachmentList Attachments;
  /// "host" or "host:port"; without a port 25. TLS from the start on port 465, else as soon as the server
  /// offers it, and then nothing is sent without it; its certificate must be good.
  QString Server;
  QString MailFrom;
  /// Addresses separated by commas or semicolons; empty entries are passed over, one that can't be read whole
  /// fails the message.
  QString SendTo;
  QString SendCC;
  QString MessageSubject;
  /// Goes out in the character set that its own head declares, UTF-8 without one, beside MessageText or,
  /// where that is empty, beside its own text without the tags.
  QString MessageHTML;
  QString MessageText;

  /// Sends it and waits. Raises values::kMailFailed, whose text says which step failed and what the server
  /// answered; then nobody got the message.
  void SendEmail() const;
  /// Connects and logs in, and sends nothing. Whether the line was encrypted. Raises as SendEmail does.
  [[nodiscard]] bool tryLogin() const;
};

}  // namespace mail
