#pragma once

#include <QString>
#include <QTemporaryFile>

namespace data {

/// Has the driver look at the server's certificate where a string names authorities:
/// "CAFile=/etc/zarim/ca.pem", or "CAFile=system" for the machine's own. The line is encrypted then, and the
/// certificate must come from one of them and name the server; before that neither user nor password are
/// sent. FreeTDS takes this from a file of settings alone, so one is there as long as this object lives.
/// Strings without the key stay as they are.
class ServerTrust {
 public:
  /// The path is one as the program knows paths.
  explicit ServerTrust(const QString& connectionString);
  ~ServerTrust();
  ServerTrust(const ServerTrust&) = delete;
  ServerTrust& operator=(const ServerTrust&) = delete;

  /// What goes to the driver manager.
  [[nodiscard]] const QString& connectionString() const { return string_; }

 private:
  QString string_;
  QTemporaryFile settings_;
  QByteArray before_;
};

}  // namespace data
