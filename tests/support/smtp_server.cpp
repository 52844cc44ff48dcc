#include "support/smtp_server.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace support {

SmtpServer::SmtpServer(const QStringList& options, Tls tls) {
  QStringList arguments{u"-Wignore"_s, QStringLiteral(ZARIM_SOURCE_DIR "/tests/support/smtp_server.py"),
                        folder_.path()};
  arguments += options;
  if (tls != Tls::None) {
    makeCertificate();
    arguments << u"--tls"_s << (tls == Tls::StartTls ? u"offered"_s : u"at once"_s);
  }
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(u"/usr/bin/python3"_s, arguments);
  if (process_.waitForReadyRead(30000)) port_ = QString::fromLatin1(process_.readLine()).trimmed();
  EXPECT_TRUE(listens() || options.contains(u"--port"_s)) << "the mail server did not start";
}

SmtpServer::~SmtpServer() {
  process_.terminate();
  process_.waitForFinished();
}

QString SmtpServer::address() const { return u"localhost:"_s + port_; }

QString SmtpServer::certificate() const { return folder_.filePath(u"certificate.pem"_s); }

void SmtpServer::makeCertificate() const {
  QProcess openssl;
  openssl.start(u"openssl"_s,
                {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                 u"-subj"_s, u"/CN=localhost"_s, u"-addext"_s, u"subjectAltName=DNS:localhost"_s,
                 u"-keyout"_s, folder_.filePath(u"key.pem"_s), u"-out"_s, certificate()});
  openssl.waitForFinished();
  EXPECT_EQ(openssl.exitCode(), 0) << openssl.readAllStandardError().toStdString();
}

QList<QJsonObject> SmtpServer::messages() const {
  QList<QJsonObject> messages;
  for (int number = 1;; ++number) {
    QFile file(folder_.filePath(u"%1.json"_s.arg(number)));
    if (!file.open(QIODevice::ReadOnly)) return messages;
    messages << QJsonDocument::fromJson(file.readAll()).object();
  }
}

QByteArray SmtpServer::heard() const {
  QFile file(folder_.filePath(u"heard"_s));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace support
