#include <QFile>
#include <QJsonArray>

#include "mailing_case.h"
#include "messaging/frmEmailOS.h"
#include "platform/forms/process.h"

using namespace Qt::StringLiterals;
using support::click;
using support::SmtpServer;
using support::type;

namespace {

class EmailScreen : public Mailing {
 protected:
  frmEmailOS& screen() { return forms::form<frmEmailOS>(); }

  /// Shows the screen as the viewer does, and lets a user act on it.
  void shown(const std::function<void(frmEmailOS&)>& act) {
    screen().txtTitulo->setText(u"Orçamento - 000123 - Aurora"_s);
    screen().txtCC->setText(u"vendas@aurora.example"_s);
    script_.modal([&](forms::Form& form) {
      act(screen());
      if (forms::registry::find(u"frmEmailOS"_s) != nullptr) form.close();
    });
    screen().showModal();
  }

  /// Writes the document that is to be the body.
  void document(const QByteArray& content) {
    documento().ArquivoCorpoEmail = folder_.filePath(u"orca_000123.html"_s);
    QFile file(documento().ArquivoCorpoEmail);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  QTemporaryDir folder_;
};

}  // namespace

TEST_F(EmailScreen, RecipientsAndSenderAtTheStart) {
  const struct {
    QString gathered, user, shown;
  } cases[] = {
      {u"contato@clara.example"_s, u"Maria@Aurora.example"_s,
       u"contato@clara.example, maria@aurora.example"_s},
      {u" contato@clara.example, "_s, u"maria@aurora.example"_s,
       u"contato@clara.example, maria@aurora.example"_s},
      {{}, u"maria@aurora.example"_s, u"maria@aurora.example"_s},
      {u" , "_s, u"maria@aurora.example"_s, u"maria@aurora.example"_s},
      {{}, {}, {}},
      {u"a@x"_s, {}, u"a@x, "_s},
  };
  sql(u"update empr set emai_orca = 'Orca@Aurora.example', senh_emai_orca = 'SenhA', emai_serv = 'SMTP.Aurora'"_s);
  for (const auto& [gathered, user, expected] : cases) {
    documento().DestinatariosEmail = gathered;
    sql(u"update usen set emai_user = '"_s + user + u"' where idusen = 7"_s);
    shown([&](frmEmailOS& form) {
      EXPECT_EQ(form.txtPara->text(), expected);
      EXPECT_EQ(form.windowTitle(), u"Zarim 1.2 - Envio de E-mail"_s);
      EXPECT_EQ(form.txtServer->text(), u"smtp.aurora"_s);
      EXPECT_EQ(form.txtMailFrom->text(), u"orca@aurora.example"_s);
      EXPECT_EQ(form.txtUsername->text(), u"orca@aurora.example"_s);
      EXPECT_EQ(form.txtPassword->text(), u"SenhA"_s);
      EXPECT_NE(form.txtPassword->displayText(), form.txtPassword->text());
    });
  }
}

TEST_F(EmailScreen, DocumentIsTheBodyAndTheScreenUnloads) {
  const SmtpServer server({u"--login"_s, u"orcamentos@aurora.example:senha-orca"_s});
  mailTo(server);
  document(
      "<html><head><meta charset=iso-8859-1></head>\r\n<body>Or\xE7"
      "amento\r\n n\xBA 123</body></html>\r\n");
  documento().MensagemTravadaEmail = true;
  shown([this](frmEmailOS& form) {
    EXPECT_FALSE(form.txtMsg->isEnabled());
    type(form.txtPara, u"a@clara.example;b@clara.example"_s);
    script_.box(u"Mensagem Enviada!"_s);
    click(form.cmdEnviarEmail);
  });
  EXPECT_EQ(script_.lastBox().icon, forms::Icon::Information);
  EXPECT_EQ(forms::registry::find(u"frmEmailOS"_s), nullptr);
  ASSERT_EQ(server.messages().size(), 1);
  const QJsonObject mail = server.messages().first();
  EXPECT_EQ(mail[u"recipients"_s].toArray(),
            (QJsonArray{u"a@clara.example"_s, u"b@clara.example"_s, u"vendas@aurora.example"_s}));
  EXPECT_EQ(mail[u"headers"_s][u"cc"_s].toString(), u"vendas@aurora.example"_s);
  EXPECT_EQ(mail[u"headers"_s][u"subject"_s].toString(), u"Orçamento - 000123 - Aurora"_s);
  ASSERT_EQ(mail[u"parts"_s].toArray().size(), 1);
  EXPECT_EQ(mail[u"parts"_s][0][u"charset"_s].toString(), u"iso-8859-1"_s);
  EXPECT_EQ(mail[u"parts"_s][0][u"text"_s].toString(),
            u"<html><head><meta charset=iso-8859-1></head><body>Orçamento nº 123</body></html>"_s);
}

TEST_F(EmailScreen, BodyOfTheUsersOwnAndAttachments) {
  const SmtpServer server;
  mailTo(server);
  document("anexo");
  const QString path = documento().ArquivoCorpoEmail;
  const struct {
    QString html, typed, listed, attached;
    QString type, body;
    int parts;
  } cases[] = {
      {{}, u"Segue o orçamento.\n  "_s, {}, {}, u"text/plain"_s, u"Segue o orçamento."_s, 1},
      {u"<p>Pronto</p>"_s, u"nada disto"_s, {}, {}, u"text/html"_s, u"<p>Pronto</p>"_s, 1},
      {{},
       u"Com anexos"_s,
       u"2^"_s + path + u"^"_s + path + u"^"_s,
       u" "_s + path + u" "_s,
       u"text/plain"_s,
       u"Com anexos"_s,
       4},
  };
  for (const auto& [html, typed, listed, attached, kind, body, parts] : cases) {
    documento().MensagemHTMLEmail = html;
    documento().AnexosEmail = listed;
    shown([&, text = typed, file = attached](frmEmailOS& form) {
      type(form.txtMsg, text);
      form.txtAnexo->setText(file);
      form.txtStatus->setText(u"antes"_s);
      script_.box(u"Mensagem Enviada!"_s);
      click(form.cmdEnviarEmail);
    });
    EXPECT_EQ(documento().MensagemHTMLEmail, QString());
    const QJsonObject mail = server.messages().last();
    ASSERT_EQ(mail[u"parts"_s].toArray().size(), parts);
    EXPECT_EQ(mail[u"parts"_s][0][u"type"_s].toString(), kind);
    EXPECT_TRUE(mail[u"parts"_s][0][u"text"_s].toString().startsWith(body));
  }
}
