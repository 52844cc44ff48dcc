#include "platform/mail/mail_message.h"

#include <gtest/gtest.h>
#include <QJsonArray>
#include <QTemporaryDir>
#include <ctime>

#include "platform/files/paths.h"
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
    EXPECT_EQ(error.number(), values::kMailFailed);
    return error.text();
  }
}

/// The bytes of a part, as they were before they were put into the message.
QByteArray bytes(const QJsonObject& mail, int part) {
  return QByteArray::fromBase64(mail[u"contents"_s][part].toString().toLatin1());
}

/// The last message that came, with nothing in it that a mail library stumbles over.
QJsonObject received(const SmtpServer& server) {
  const QJsonObject mail = server.messages().value(server.messages().size() - 1);
  EXPECT_TRUE(mail[u"defects"_s].toArray().isEmpty());
  return mail;
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
  qputenv("TZ", "BRT3");
  tzset();
  values::setClock([] { return QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9)); });
  const QString subject = u"Orçamento Nr.:000123 Aprovado! "_s + u"Coração 💝 "_s.repeated(12);
  MailMessage email = message(server);
  email.MailFrom = u"\"Aurora, Presentes & Ação\" <vendas@aurora.example>"_s;
  email.SendTo = u"dora@clara.example, , ana@clara.example;,"_s;
  email.SendCC = u" , chefe@aurora.example, Dora@clara.example"_s;
  email.MessageSubject = subject + u"fim\r\nBcc: x@y"_s;
  email.MessageText = u"Linha 1\rLinha 2 — ção\r\n.\nfim   "_s;
  email.SendEmail();

  const QJsonObject mail = received(server);
  EXPECT_EQ(mail[u"from"_s].toString(), u"vendas@aurora.example"_s);
  EXPECT_EQ(mail[u"recipients"_s].toArray(),
            (QJsonArray{u"dora@clara.example"_s, u"ana@clara.example"_s, u"chefe@aurora.example"_s}));
  const QJsonObject headers = mail[u"headers"_s].toObject();
  EXPECT_EQ(headers[u"to"_s].toString(), u"dora@clara.example, ana@clara.example"_s);
  EXPECT_EQ(headers[u"cc"_s].toString(), u"chefe@aurora.example, Dora@clara.example"_s);
  EXPECT_EQ(headers[u"from"_s].toString(), u"\"Aurora, Presentes & Ação\" <vendas@aurora.example>"_s);
  EXPECT_EQ(headers[u"subject"_s].toString(), subject + u"fim  Bcc: x@y"_s);
  EXPECT_EQ(headers[u"date"_s].toString(), u"Tue, 05 Mar 2024 14:07:09 -0300"_s);
  EXPECT_TRUE(headers[u"message-id"_s].toString().endsWith(u"@aurora.example>"_s));
  EXPECT_FALSE(headers.contains(u"bcc"_s));
  EXPECT_EQ(bytes(mail, 0), "Linha 1\r\nLinha 2 — ção\r\n.\r\nfim   ");
}

TEST_F(Mail, HtmlGoesInTheCharsetOfItsHead) {
  const SmtpServer server;
  const struct {
    QString html, charset;
    QByteArray content;
  } cases[] = {
      {u"<meta http-equiv='Content-Type' content='text/html; charset=ISO-8859-1'>ç € \U0001F381"_s,
       u"iso-8859-1"_s,
       "<meta http-equiv='Content-Type' content='text/html; charset=ISO-8859-1'>\xE7 &#8364; &#127873;"},
      {u"<META CHARSET=\"windows-1252\">ç"_s, u"windows-1252"_s, "<META CHARSET=\"windows-1252\">&#231;"},
      {u"<meta charset=utf-8>ção €"_s, u"utf-8"_s, "<meta charset=utf-8>ção €"},
      {u"<body>ção <meta charset=koi8-r>"_s, u"utf-8"_s, "<body>ção <meta charset=koi8-r>"},
      {u"x"_s.repeated(5000), u"utf-8"_s, QByteArray(5000, 'x')},
  };
  for (const auto& [html, charset, content] : cases) {
    MailMessage email = message(server);
    email.MessageText.clear();
    email.MessageHTML = html;
    email.SendEmail();
    const QJsonObject mail = received(server);
    EXPECT_TRUE(mail[u"summary"_s].toString().startsWith(u"Aviso | text/html: "_s));
    EXPECT_EQ(mail[u"charsets"_s][0].toString(), charset);
    EXPECT_EQ(bytes(mail, 0), content);
  }
}

TEST_F(Mail, AttachmentsKeepTheirBytesAndNames) {
  const SmtpServer server;
  const QTemporaryDir folder;
  QByteArray all;
  for (int value = 0; value < 256 * 300; ++value) all += static_cast<char>(value % 256);
  MailMessage email = message(server);
  email.MessageHTML = u"<b>Olá</b>"_s;
  for (const auto& name : {u"deta_orca_000123.html"_s, u"Orçamento \"açúcar\" nº 1.pdf"_s, u"sem ponto"_s}) {
    files::write(folder.filePath(name), all);
    email.Attachments.Add(folder.filePath(name));
    files::removeIfThere(folder.filePath(name));
  }
  email.SendEmail();

  const QJsonObject mail = received(server);
  EXPECT_EQ(mail[u"summary"_s].toString(),
            u"Aviso | text/plain: Olá | text/html: <b>Olá</b> | text/html: deta_orca_000123.html | "
            "application/pdf: Orçamento \"açúcar\" nº 1.pdf | application/octet-stream: sem ponto"_s);
  for (const int at : {2, 3, 4}) EXPECT_TRUE(bytes(mail, at) == all);
}

TEST_F(Mail, LogsInAndTakesTlsWhenItIsOffered) {
  for (const auto tls : {SmtpServer::Tls::None, SmtpServer::Tls::StartTls}) {
    const SmtpServer server({u"--login"_s, u"vendas@aurora.example:Sénha:1"_s}, tls);
    MailMessage email = message(server);
    email.Username = u"vendas@aurora.example"_s;
    email.Password = u"outra"_s;
    email.AuthenticationType = mail::kLogin;
    if (tls == SmtpServer::Tls::StartTls) {
      EXPECT_TRUE(failure(email).contains(u"o certificado do servidor de e-mail não é de confiança"_s));
      mail::settings().caFile = server.certificate();
    }
    const QString text = failure(email);
    EXPECT_TRUE(text.startsWith(u"O e-mail não foi enviado: o servidor recusou o usuário ou a senha."_s));
    EXPECT_TRUE(text.contains(u"Servidor: "_s + server.address()) && text.contains(u"Resposta: 535"_s));
    EXPECT_FALSE(text.contains(u"outra"_s));
    EXPECT_TRUE(server.messages().isEmpty());

    email.Password = u"Sénha:1"_s;
    EXPECT_EQ(failure(email), QString());
    ASSERT_EQ(server.messages().size(), 1);
    EXPECT_EQ(server.messages()[0][u"login"_s].toString(), u"vendas@aurora.example"_s);
    EXPECT_EQ(server.messages()[0][u"tls"_s].toBool(), tls == SmtpServer::Tls::StartTls);
  }
}

TEST_F(Mail, TlsFromTheStartOnItsPort) {
  const SmtpServer server({u"--port"_s, u"465"_s}, SmtpServer::Tls::FromStart);
  if (!server.listens()) GTEST_SKIP() << "port 465 can't be listened on here";
  mail::settings().caFile = server.certificate();
  EXPECT_EQ(failure(message(server)), QString());
  EXPECT_EQ(server.messages().size(), 1);
}

TEST_F(Mail, FaultsTellTheStepAndTheAnswer) {
  const QString late = u"o servidor de e-mail não respondeu a tempo."_s;
  const struct {
    QString option, value, step, answer;
  } cases[] = {
      {u"--refuse"_s, u"ana@clara.example"_s, u"o servidor recusou o destinatário ana@clara.example."_s,
       u"550 5.1.1 no such mailbox"_s},
      {u"--refuse"_s, u"vendas@aurora.example"_s, u"o servidor recusou o remetente vendas@aurora.example."_s,
       u"550 5.1.0 sender unknown here"_s},
      {u"--refuse"_s, u"message"_s, u"o servidor recusou a mensagem."_s, u"554 5.7.1 looks like spam"_s},
      {u"--fault"_s, u"gone"_s, u"a conexão com o servidor de e-mail caiu."_s, {}},
      {u"--fault"_s, u"stall"_s, late, {}},
      {u"--fault"_s, u"mute"_s, late, u"nenhuma"_s},
  };
  for (const auto& [option, value, step, answer] : cases) {
    const SmtpServer server({option, value});
    mail::settings() = {};
    if (step == late) mail::settings().connectTimeout = mail::settings().stallTimeout = 1;
    for (const qsizetype size : {10, 4000000}) {
      MailMessage email = message(server);
      email.SendTo = u"dora@clara.example, ana@clara.example"_s;
      email.MessageText = u"x"_s.repeated(size);
      const QString text = failure(email);
      EXPECT_TRUE(text.startsWith(u"O e-mail não foi enviado: "_s + step)) << text.toStdString();
      EXPECT_TRUE(text.contains(u"\rResposta: "_s + answer)) << text.toStdString();
      EXPECT_TRUE(server.messages().isEmpty());
    }
  }
}

TEST_F(Mail, WhatCannotBeSentIsSaidClearly) {
  const std::tuple<QString MailMessage::*, QString, QString> cases[] = {
      {&MailMessage::SendTo, u" , ;<>"_s, u"não há nenhum destinatário."_s},
      {&MailMessage::MailFrom, u" "_s, u"falta o endereço do remetente."_s},
      {&MailMessage::Server, {}, u"falta o servidor de e-mail."_s},
      {&MailMessage::Server, u"smtp aurora:x"_s, u"o endereço do servidor de e-mail não é válido."_s},
      {&MailMessage::Server, u"127.0.0.1:1"_s, u"não foi possível conectar ao servidor de e-mail."_s},
      {&MailMessage::Server, u"smtp.invalid"_s, u"o servidor de e-mail não foi encontrado."_s},
  };
  const SmtpServer server;
  for (const auto& [member, value, told] : cases) {
    MailMessage email = message(server);
    email.*member = value;
    EXPECT_EQ(failure(email).section(u": "_s, 1).section(u'\r', 0, 0), told);
  }
  EXPECT_TRUE(server.messages().isEmpty());
}
