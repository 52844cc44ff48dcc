#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryFile>
#include <optional>

// Connection strings: "KEY=VALUE;…", keys in any case.
namespace data {

/// Whether a string names the embedded file.
[[nodiscard]] bool isEmbeddedString(const QString& connectionString);

/// Whether a string names the driver of SQL Server.
[[nodiscard]] bool isServerString(const QString& connectionString);

/// The value of a key; nothing without it.
[[nodiscard]] std::optional<QString> keyValue(const QString& connectionString, QStringView key);

/// The string without some keys (in small letters), and with another pair at its end.
[[nodiscard]] QString withPair(const QString& connectionString, const QStringList& without,
                               const QString& pair);

/// Which database a string leads to, so that two can be told apart: the path of the embedded file, links
/// followed, or the server and the name of the database there, in small letters.
[[nodiscard]] QString placeOf(const QString& connectionString);

// What differs between systems stands in odbc_string_unix.cpp and odbc_string_windows.cpp.

/// The string that goes to the driver manager: the given one with what the driver needs put after it.
/// portOfEnvironment is what TDSPORT holds; timeout, in seconds, is how long a statement may go unanswered.
[[nodiscard]] QString odbcString(const QString& connectionString, const QString& portOfEnvironment,
                                 int timeout);

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
