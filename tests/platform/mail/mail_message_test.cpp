#include "platform/mail/mail_message.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "platform/values/dates.h"
#include "platform/values/runtime_error.h"
#include "support/smtp_server.h"

using namespace Qt::StringLiterals;
using mail::MailMessage;
using support::SmtpServer;

namespace {

MailMessage message(const SmtpServer& server) {
  MailMessage email;
  email.Server = server.address();
  email.MailFrom = u"vendas@aurora.example"_s;
  email.SendTo = u"dora@clara.example"_s;
  email.MessageSubject = u"Aviso"_s;
  email.MessageText = u"Olá"_s;
  return email;
}

/// The text of the error that sending raises; empty when it goes.
QString failure(const MailMessage& email) {
  try {
    email.SendEmail();
    return {};
  } catch (const values::RuntimeError& error) {
    EXPECT_EQ(error.number(), mail::kMailFailed);
    return error.text();
  }
}

QString header(const QJsonObject& mail, const QString& name) { return mail[u"headers"_s][name].toString(); }

QJsonObject part(const QJsonObject& mail, int index) { return mail[u"parts"_s][index].toObject(); }

QByteArray bytes(const QJsonObject& part) {
  return QByteArray::fromBase64(part[u"base64"_s].toString().toLatin1());
}

/// What holds for every message: nothing that a mail library stumbles over.
void expectSound(const QJsonObject& mail) {
  EXPECT_TRUE(mail[u"defects"_s].toArray().isEmpty());
  EXPECT_TRUE(mail[u"ascii_head"_s].toBool());
  EXPECT_LE(mail[u"longest_line"_s].toInt(), 998);
  EXPECT_EQ(mail[u"bare_line_ends"_s].toInt(), 0);
}

class Mail : public ::testing::Test {
 protected:
  ~Mail() override {
    mail::settings() = {};
    values::setClock({});
  }
};

}  // namespace

TEST_F(Mail, PlainMessageWithAccentsToSeveral) {
  const SmtpServer server;
  values::setClock([] { return QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9)); });
  MailMessage email = message(server);
  email.MailFrom = u"\"Aurora, Presentes & Ação\" <vendas@aurora.example>"_s;
  email.SendTo = u"dora@clara.example, , ana@clara.example;,"_s;
  email.SendCC = u" , chefe@aurora.example, Dora@clara.example"_s;
  email.MessageSubject =
      u"Orçamento Nr.:000123 Aprovado! "_s + u"Coração 💝 "_s.repeated(12) + u"fim\r\nBcc: x@y"_s;
  email.MessageText = u"Linha 1\rLinha 2 — ção\r\n.\nfim   "_s;
  email.SendEmail();

  ASSERT_EQ(server.messages().size(), 1);
  const QJsonObject mail = server.messages().first();
  expectSound(mail);
  EXPECT_EQ(mail[u"from"_s].toString(), u"vendas@aurora.example"_s);
  EXPECT_EQ(mail[u"recipients"_s].toArray(),
            (QJsonArray{u"dora@clara.example"_s, u"ana@clara.example"_s, u"chefe@aurora.example"_s}));
  EXPECT_EQ(mail[u"to"_s].toArray(), (QJsonArray{u"dora@clara.example"_s, u"ana@clara.example"_s}));
  EXPECT_EQ(header(mail, u"cc"_s), u"chefe@aurora.example, Dora@clara.example"_s);
  EXPECT_EQ(header(mail, u"from"_s), u"\"Aurora, Presentes & Ação\" <vendas@aurora.example>"_s);
  EXPECT_EQ(header(mail, u"subject"_s),
            u"Orçamento Nr.:000123 Aprovado! "_s + u"Coração 💝 "_s.repeated(12) + u"fim  Bcc: x@y"_s);
  EXPECT_FALSE(mail[u"headers"_s].toObject().contains(u"bcc"_s));
  EXPECT_TRUE(mail[u"date"_s].toString().startsWith(u"2024-03-05T14:07:09"_s));
  EXPECT_TRUE(header(mail, u"message-id"_s).endsWith(u"@aurora.example>"_s));
  EXPECT_EQ(part(mail, 0)[u"charset"_s].toString(), u"utf-8"_s);
  EXPECT_EQ(bytes(part(mail, 0)), "Linha 1\r\nLinha 2 — ção\r\n.\r\nfim   ");
}

TEST_F(Mail, HtmlGoesInTheCharsetOfItsHead) {
  const SmtpServer server;
  const struct {
    QString html;
    QString charset;
    QByteArray content;
  } cases[] = {
      {u"<html><head><meta http-equiv='Content-Type' content='text/html; charset=ISO-8859-1'></head>ção €</html>"_s,
       u"iso-8859-1"_s,
       "<html><head><meta http-equiv='Content-Type' content='text/html; charset=ISO-8859-1'></head>"
       "\xE7\xE3o &#8364;</html>"},
      {u"<head><META CHARSET=\"windows-1252\"></head>ção"_s, u"windows-1252"_s,
       "<head><META CHARSET=\"windows-1252\"></head>&#231;&#227;o"},
      {u"<head><meta charset=utf-8></head>ção €"_s, u"utf-8"_s, "<head><meta charset=utf-8></head>ção €"},
      {u"<body>ção <meta charset=koi8-r>"_s, u"utf-8"_s, "<body>ção <meta charset=koi8-r>"},
      {u"<p>"_s + u"x"_s.repeated(5000) + u"</p>"_s, u"utf-8"_s, "<p>" + QByteArray(5000, 'x') + "</p>"},
  };
  for (const auto& [html, charset, content] : cases) {
    MailMessage email = message(server);
    email.MessageText.clear();
    email.MessageHTML = html;
    email.SendEmail();
    const QJsonObject mail = server.messages().last();
    expectSound(mail);
    ASSERT_EQ(mail[u"parts"_s].toArray().size(), 1);
    EXPECT_EQ(part(mail, 0)[u"type"_s].toString(), u"text/html"_s);
    EXPECT_EQ(part(mail, 0)[u"charset"_s].toString(), charset);
    EXPECT_EQ(bytes(part(mail, 0)), content);
  }
}

TEST_F(Mail, AttachmentsKeepTheirBytesAndNames) {
  const SmtpServer server;
  QTemporaryDir folder;
  QByteArray all;
  for (int value = 0; value < 256 * 300; ++value) all += static_cast<char>(value % 256);
  const struct {
    QString name;
    QString type;
  } files[] = {{u"deta_orca_000123.html"_s, u"text/html"_s},
               {u"Orçamento \"açúcar\" nº 1.pdf"_s, u"application/pdf"_s},
               {u"sem ponto"_s, u"application/octet-stream"_s}};
  MailMessage email = message(server);
  email.MessageHTML = u"<b>Olá</b>"_s;
  for (const auto& [name, type] : files) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(all);
    file.close();
    email.Attachments.Add(folder.filePath(name));
    file.remove();
  }
  email.SendEmail();

  const QJsonObject mail = server.messages().first();
  expectSound(mail);
  ASSERT_EQ(mail[u"parts"_s].toArray().size(), 5);
  EXPECT_EQ(part(mail, 0)[u"text"_s].toString(), u"Olá"_s);
  EXPECT_EQ(part(mail, 1)[u"text"_s].toString(), u"<b>Olá</b>"_s);
  for (int at = 0; at < 3; ++at) {
    EXPECT_EQ(part(mail, at + 2)[u"filename"_s].toString(), files[at].name);
    EXPECT_EQ(part(mail, at + 2)[u"type"_s].toString(), files[at].type);
    EXPECT_TRUE(bytes(part(mail, at + 2)) == all);
  }
}

TEST_F(Mail, LogsInAndTakesTlsWhenItIsOffered) {
  for (const auto tls : {SmtpServer::Tls::None, SmtpServer::Tls::StartTls}) {
    const SmtpServer server({u"--login"_s, u"vendas@aurora.example:Sénha:1"_s}, tls);
    mail::settings().caFile = tls == SmtpServer::Tls::None ? QString() : server.certificate();
    MailMessage email = message(server);
    email.Username = u"vendas@aurora.example"_s;
    email.Password = u"Sénha:1"_s;
    email.AuthenticationType = mail::kLogin;
    EXPECT_EQ(failure(email), QString());
    ASSERT_EQ(server.messages().size(), 1);
    EXPECT_EQ(server.messages()[0][u"login"_s].toString(), u"vendas@aurora.example"_s);
    EXPECT_EQ(server.messages()[0][u"tls"_s].toBool(), tls != SmtpServer::Tls::None);

    email.Password = u"outra"_s;
    const QString text = failure(email);
    EXPECT_TRUE(text.startsWith(u"O e-mail não foi enviado: o servidor recusou o usuário ou a senha."_s));
    EXPECT_TRUE(text.contains(u"Servidor: "_s + server.address()) && text.contains(u"Resposta: 535"_s));
    EXPECT_FALSE(text.contains(u"outra"_s));
    EXPECT_EQ(server.messages().size(), 1);
  }
}

TEST_F(Mail, TlsFromTheStartOnItsPort) {
  const SmtpServer server({u"--port"_s, u"465"_s}, SmtpServer::Tls::FromStart);
  if (!server.listens()) GTEST_SKIP() << "port 465 can't be listened on here";
  mail::settings().caFile = server.certificate();
  EXPECT_EQ(failure(message(server)), QString());
  EXPECT_EQ(server.messages().size(), 1);
}

TEST_F(Mail, CertificateThatNobodyVouchesForIsRefused) {
  const SmtpServer server({}, SmtpServer::Tls::StartTls);
  EXPECT_TRUE(failure(message(server)).contains(u"o certificado do servidor de e-mail não é de confiança"_s));
  EXPECT_TRUE(server.messages().isEmpty());
}

TEST_F(Mail, FaultsTellTheStepAndTheAnswer) {
  const QString refused = u"O e-mail não foi enviado: o servidor recusou "_s;
  const struct {
    QStringList options;
    QString step;
    QString answer;
  } cases[] = {
      {{u"--refuse"_s, u"ana@clara.example"_s},
       refused + u"o destinatário ana@clara.example."_s,
       u"550 5.1.1 no such mailbox"_s},
      {{u"--refuse"_s, u"vendas@aurora.example"_s},
       refused + u"o remetente vendas@aurora.example."_s,
       u"550 5.1.0 sender unknown here"_s},
      {{u"--refuse"_s, u"message"_s}, refused + u"a mensagem."_s, u"554 5.7.1 looks like spam"_s},
      {{u"--fault"_s, u"gone"_s},
       u"O e-mail não foi enviado: a conexão com o servidor de e-mail caiu."_s,
       {}},
      {{u"--fault"_s, u"stall"_s},
       u"O e-mail não foi enviado: o servidor de e-mail não respondeu a tempo."_s,
       {}},
      {{u"--fault"_s, u"mute"_s},
       u"O e-mail não foi enviado: o servidor de e-mail não respondeu a tempo."_s,
       u"nenhuma"_s},
  };
  for (const auto& [options, step, answer] : cases) {
    const SmtpServer server(options);
    const bool waits = options.contains(u"stall"_s) || options.contains(u"mute"_s);
    mail::settings() =
        waits ? mail::Settings{.connectTimeout = 1, .stallTimeout = 1, .caFile = {}} : mail::Settings{};
    for (const qsizetype size : {10, 4000000}) {
      MailMessage email = message(server);
      email.SendTo = u"dora@clara.example, ana@clara.example"_s;
      email.MessageText = u"x"_s.repeated(size);
      const QString text = failure(email);
      EXPECT_TRUE(text.startsWith(step)) << text.toStdString();
      EXPECT_TRUE(text.contains(u"\rResposta: "_s + answer)) << text.toStdString();
      EXPECT_TRUE(server.messages().isEmpty());
    }
  }
}

TEST_F(Mail, WhatCannotBeSentIsSaidClearly) {
  const SmtpServer server;
  const auto sending = [&](auto change) {
    MailMessage email = message(server);
    change(email);
    return failure(email).section(u": "_s, 1).section(u'\r', 0, 0);
  };
  EXPECT_EQ(sending([](MailMessage& email) { email.SendTo = u" , ;<>"_s; }),
            u"não há nenhum destinatário."_s);
  EXPECT_EQ(sending([](MailMessage& email) { email.MailFrom = u" "_s; }),
            u"falta o endereço do remetente."_s);
  EXPECT_EQ(sending([](MailMessage& email) { email.Server.clear(); }), u"falta o servidor de e-mail."_s);
  EXPECT_EQ(sending([](MailMessage& email) { email.Server = u"smtp aurora:x"_s; }),
            u"o endereço do servidor de e-mail não é válido."_s);
  EXPECT_EQ(sending([](MailMessage& email) { email.Server = u"127.0.0.1:1"_s; }),
            u"não foi possível conectar ao servidor de e-mail."_s);
  EXPECT_EQ(sending([](MailMessage& email) { email.Server = u"smtp.invalid"_s; }),
            u"o servidor de e-mail não foi encontrado."_s);
  EXPECT_TRUE(server.messages().isEmpty());
}
