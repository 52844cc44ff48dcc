#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace support {

/// A real SMTP server on loopback in a process of its own, for one test.
class SmtpServer {
 public:
  enum class Tls { None, StartTls, FromStart };

  /// options: --login user:password, --refuse address (or "message"), --fault gone|stall|mute, --answer
  /// COMMAND=text (see smtp_server.py), --port number (which may be taken or forbidden: see listens).
  explicit SmtpServer(const QStringList& options = {}, Tls tls = Tls::None);
  ~SmtpServer();

  [[nodiscard]] bool listens() const { return !port_.isEmpty(); }
  /// "localhost:port".
  [[nodiscard]] QString address() const;
  /// The certificate of its TLS, which is its own authority.
  [[nodiscard]] QString certificate() const;
  /// What came, in order, as Python's mail library reads it; keys in smtp_server.py. The
  /// summary is "subject | type: text | type: file name", with as many parts as there are.
  [[nodiscard]] QList<QJsonObject> messages() const;

  /// Every byte that it has read, decrypted.
  [[nodiscard]] QByteArray heard() const;

 private:
  void makeCertificate() const;

  QTemporaryDir folder_;
  QProcess process_;
  QString port_;
};

}  // namespace support
