#include "platform/mail/mail_message.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTemporaryDir>
#include <ctime>

#include "platform/files/contents.h"
#include "platform/values/dates.h"
#include "platform/values/runtime_error.h"
#include "support/printing.h"
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
  email.SendTo = u"Dora (compras, SP) <dora@clara.example>, , \"Silva; Ana\" <ana@ação.example>;,"_s;
  email.SendCC = u" , chefe@aurora.example, Dora@clara.example"_s;
  email.MessageSubject = subject + u"fim\r\nBcc: x@y"_s;
  email.MessageText = u"Linha 1\rLinha 2 — ção\r\n.\nfim   "_s;
  email.SendEmail();

  const QJsonObject mail = received(server);
  EXPECT_EQ(mail[u"from"_s].toString(), u"vendas@aurora.example"_s);
  EXPECT_EQ(mail[u"recipients"_s].toArray(),
            (QJsonArray{u"dora@clara.example"_s, u"ana@xn--ao-siap.example"_s, u"chefe@aurora.example"_s}));
  const QJsonObject headers = mail[u"headers"_s].toObject();
  EXPECT_EQ(headers[u"to"_s].toString(),
            u"\"Dora (compras, SP)\" <dora@clara.example>, \"Silva; Ana\" <ana@xn--ao-siap.example>"_s);
  EXPECT_TRUE(mail[u"summary"_s].toString().contains(u"fim  Bcc: x@y | text/plain: Linha 1\n"_s));
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
    EXPECT_TRUE(mail[u"summary"_s].toString().contains(u" | text/html: "_s));
    EXPECT_EQ(mail[u"charsets"_s][1].toString(), charset);
    EXPECT_EQ(bytes(mail, 1), content);
  }
}

TEST_F(Mail, HtmlHasItsTextBesideIt) {
  const SmtpServer server;
  MailMessage email = message(server);
  email.MessageText.clear();
  email.MessageHTML =
      u"<HTML><head><title>x</title><style>td {}</style></head><body onload='x()'><!-- <b>no</b> "
      u"--><script>1<2</script>"
      "<h1>Orçamento&nbsp nº&#32;3</h1><table><tr><td width='25%'>Fita\r\n  AZUL&lt;PRATA</td><td><img "
      "src='c:\\a.png'>"
      "</td><td align=right>1 &amp; 2</td></tr><tr><th>Total</table><p>1<br>2</p><b"_s;
  email.SendEmail();
  const QJsonObject mail = received(server);
  EXPECT_EQ(QString::fromUtf8(bytes(mail, 0)),
            u"Orçamento nº 3\r\n\r\nFita\r\nAZUL<PRATA  1 & 2\r\nTotal\r\n\r\n1\r\n2\r\n"_s);
  EXPECT_TRUE(mail[u"headers"_s][u"content-type"_s].toString().startsWith(u"multipart/alternative"_s));
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
    QStringList options{u"--login"_s, u"vendas@aurora.example:Sénha:1"_s};
    // Methods that need more than user and password are passed over.
    if (tls == SmtpServer::Tls::None)
      options << u"--answer"_s
              << u"EHLO=250-x\n250 AUTH GSSAPI NTLM SCRAM-SHA-256 DIGEST-MD5 CRAM-MD5 LOGIN"_s;
    const SmtpServer server(options, tls);
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
    EXPECT_TRUE(text.contains(u"Servidor: "_s + server.address()));
    EXPECT_TRUE(text.contains(u"Resposta: 535"_s));
    EXPECT_FALSE(text.contains(u"outra"_s));
    EXPECT_TRUE(server.messages().isEmpty());

    email.Password = u"Sénha:1"_s;
    EXPECT_EQ(failure(email), QString());
    ASSERT_EQ(server.messages().size(), 1);
    EXPECT_EQ(server.messages()[0][u"login"_s].toString(), u"vendas@aurora.example"_s);
    EXPECT_EQ(server.messages()[0][u"tls"_s].toBool(), tls == SmtpServer::Tls::StartTls);
  }
}

TEST_F(Mail, NothingGoesInClearOnceTlsWasOffered) {
  const QString offers = u"EHLO=250-x\n250-%1\n250 AUTH PLAIN LOGIN"_s;
  const std::pair<QString, QString> servers[] = {
      {u"STARTTLS"_s, u"454 4.7.0 not now"_s},         {u"STARTTLS"_s, u"250 as you like"_s},
      {u"STARTTLS"_s, u"220-ready\n502 no"_s},         {u"STARTTLS"_s, u"220 ready"_s},
      {u"STARTTLS"_s, u"220 ready\n235 let in"_s},     {u"starttls"_s, u"454 4.7.0 not now"_s},
      {u"StartTLS and more"_s, u"502 what is that"_s},
  };
  for (const auto& [offer, answer] : servers) {
    const SmtpServer server({u"--answer"_s, offers.arg(offer), u"--answer"_s, u"STARTTLS="_s + answer,
                             u"--answer"_s, u"AUTH=334 \n235 let in"_s});
    mail::settings().connectTimeout = 2;
    MailMessage email = message(server);
    email.Username = u"vendas@aurora.example"_s;
    email.Password = u"Senha-1"_s;
    email.AuthenticationType = mail::kLogin;
    const QString text = failure(email).section(u'\r', 0, 0);
    EXPECT_TRUE(text.contains(u"conexão segura"_s) || answer.startsWith(u"220 "_s)) << text.toStdString();
    EXPECT_NE(text, QString());
    for (const char* secret : {"AUTH", "MAIL", "vendas"})
      EXPECT_FALSE(server.heard().contains(secret)) << secret;
    EXPECT_TRUE(server.heard().contains("EHLO"));
  }
}

TEST_F(Mail, AnswersAreCutAndShowNoSecret) {
  const QByteArray login = QByteArray("\0vendas@aurora.example\0Senha secreta-1", 38).toBase64();
  const QString word = QString::fromLatin1(login);
  const QString echo =
      u"AUTH=334 \n535-{}\n535-senha SECRETA-1 \x1b[2J\u202e%1\n535-%2 %3\n535-4\n535-5\n535 6"_s;
  const struct {
    QStringList options;
    QString said, answer;
  } cases[] = {
      {{u"--answer"_s, u"EHLO=250-x\n250 AUTH PLAIN"_s, u"--answer"_s,
        echo.arg(word.toLower(), word.first(9), word.sliced(9))},
       u"o servidor recusou o usuário ou a senha"_s,
       u"535 •••"_s},
      {{u"--answer"_s, u"EHLO=250-x\n250 AUTH PLAIN"_s, u"--answer"_s,
        u"AUTH=334 \n535-S e n h\n535 a s e c"_s},
       u"o servidor recusou o usuário ou a senha"_s,
       u"535 •••"_s},
      {{u"--answer"_s, u"EHLO=250-x\n250 AUTH PLAIN"_s, u"--answer"_s, u"AUTH=334 \n235 let in"_s,
        u"--answer"_s, u"MAIL=550-senha SECRETA-1 \x1b[2J\u202e%1\n550 no"_s.arg(word.toLower())},
       u"o servidor recusou o remetente vendas@aurora.example"_s,
       u"550-••• [2J •••\r550 no"_s},
      {{u"--answer"_s, u"MAIL="_s + u"250-mais uma\n"_s.repeated(3000)},
       u"o servidor de e-mail respondeu com linhas demais"_s,
       u"250-mais uma\r250-mais uma\r250-mais uma\r250-mais uma\r…"_s},
      {{u"--answer"_s, u"EHLO=550 "_s + u"não "_s.repeated(60), u"--answer"_s,
        u"HELO=550 "_s + u"não "_s.repeated(60)},
       u"o servidor recusou a conexão"_s,
       (u"550 "_s + u"não "_s.repeated(60)).first(120) + u"…"_s},
  };
  for (const auto& [options, said, answer] : cases) {
    const SmtpServer server(options);
    MailMessage email = message(server);
    email.Username = u"vendas@aurora.example"_s;
    email.Password = u"Senha secreta-1"_s;
    email.AuthenticationType = mail::kLogin;
    EXPECT_EQ(failure(email), u"O e-mail não foi enviado: %1.\rServidor: %2\rResposta: %3"_s.arg(
                                  said, server.address(), answer));
  }
}

TEST_F(Mail, TlsFromTheStartOnItsPort) {
  const SmtpServer server({u"--port"_s, u"465"_s}, SmtpServer::Tls::FromStart);
  if (!server.listens()) GTEST_SKIP() << "port 465 can't be listened on here";
  mail::settings().caFile = server.certificate();
  EXPECT_EQ(failure(message(server)), QString());
  EXPECT_EQ(server.messages().size(), 1);
}

TEST_F(Mail, FaultsNameTheStepAndTheAnswer) {
  const QString late = u"o servidor de e-mail não respondeu a tempo."_s;
  const QString tooLarge = u"a mensagem é grande demais para o servidor."_s;
  const struct {
    QString option, value, step, answer;
  } cases[] = {
      {u"--refuse"_s, u"ana@clara.example"_s, u"o servidor recusou o destinatário ana@clara.example."_s,
       u"550 5.1.1 no such mailbox"_s},
      {u"--refuse"_s, u"vendas@aurora.example"_s, u"o servidor recusou o remetente vendas@aurora.example."_s,
       u"550 5.1.0 sender unknown here"_s},
      {u"--refuse"_s, u"message"_s, u"o servidor recusou a mensagem."_s, u"554 5.7.1 looks like spam"_s},
      {u"--answer"_s, u"MAIL=552 Error: message size exceeds the maximum"_s, tooLarge, u"552 Error"_s},
      {u"--answer"_s, u"MAIL=552 5.2.2 no room"_s, u"o servidor recusou o remetente vendas@aurora.example."_s,
       u"552 5.2.2 no room"_s},
      {u"--answer"_s, u"RCPT=550 5.2.3 too long for this mailbox"_s, tooLarge, u"550 5.2.3"_s},
      {u"--answer"_s, u"RCPT=552 mailbox full"_s, u"o servidor recusou o destinatário dora@clara.example."_s,
       u"552 mailbox full"_s},
      {u"--answer"_s, u"DATA=552-5.3.4 too big\n552 5.3.4 really"_s, tooLarge, u"552-5.3.4 too big"_s},
      {u"--fault"_s, u"gone"_s, u"a conexão com o servidor de e-mail caiu."_s, {}},
      {u"--fault"_s, u"stall"_s, late, {}},
      {u"--fault"_s, u"mute"_s, late, u"nenhuma"_s},
  };
  for (const auto& [option, value, step, answer] : cases) {
    const SmtpServer server({option, value});
    mail::settings() = {};
    if (step == late) mail::settings() = {.connectTimeout = 1, .stallTimeout = 3, .caFile = {}};
    for (const qsizetype size : {10, 4000000}) {
      MailMessage email = message(server);
      email.SendTo = u"dora@clara.example, ana@clara.example"_s;
      email.MessageText = u"x"_s.repeated(size);
      QElapsedTimer time;
      time.start();
      const QString text = failure(email);
      // A server that has been waited for once has no time for its good-bye.
      EXPECT_LT(time.elapsed(), 5500);
      EXPECT_TRUE(text.startsWith(u"O e-mail não foi enviado: "_s + step)) << text.toStdString();
      EXPECT_TRUE(text.contains(u"\rResposta: "_s + answer)) << text.toStdString();
      EXPECT_TRUE(server.messages().isEmpty());
    }
  }
}

TEST_F(Mail, WhatCannotBeSentIsSaidClearly) {
  const std::tuple<QString MailMessage::*, QString, QString> cases[] = {
      {&MailMessage::MailFrom, u" "_s, u"falta o endereço do remetente."_s},
      {&MailMessage::Server, {}, u"falta o servidor de e-mail."_s},
      {&MailMessage::Server, u"smtp aurora:x"_s, u"o endereço do servidor de e-mail não é válido."_s},
      {&MailMessage::Server, u"smtp.invalid"_s, u"o servidor de e-mail não foi encontrado."_s},
  };
  const SmtpServer server;
  for (const auto& [member, value, reason] : cases) {
    MailMessage email = message(server);
    email.*member = value;
    EXPECT_EQ(failure(email).section(u": "_s, 1).section(u'\r', 0, 0), reason);
  }
  EXPECT_TRUE(server.messages().isEmpty());
}

TEST_F(Mail, NobodyGetsItWhenARecipientCannotBeRead) {
  const SmtpServer server;
  for (const QString& entry :
       {u"Ana <ana@b.example> Bia <bia@b.example>"_s, u"\"Maria <m@b.example>"_s, u"Ana <ana@b.example"_s,
        u"ana@b.example bia@b.example"_s, u"<>"_s, u"bia@b.example <ana@b.example>"_s,
        u"Ana (bia@b.example; SP) <ana@b.example>"_s, u"\"Bia <b@b.example>, \"Ana <a@b.example>"_s,
        u"ana@b.example/bia@b.example"_s, u"Silva"_s}) {
    MailMessage email = message(server);
    email.SendTo = u"dora@clara.example, "_s + entry + u", outro@b.example"_s;
    EXPECT_EQ(failure(email),
              u"O e-mail não foi enviado: não foi possível ler o destinatário \"%1\"."_s.arg(entry));
  }
  EXPECT_TRUE(server.heard().isEmpty());
}
