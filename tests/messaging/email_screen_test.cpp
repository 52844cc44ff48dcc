#include <QApplication>

#include "mailing_case.h"
#include "messaging/frmEmailOS.h"
#include "platform/files/contents.h"

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
    script.modal([&](forms::Form& form) {
      act(screen());
      if (forms::registry::find(u"frmEmailOS"_s) != nullptr) form.close();
    });
    screen().showModal();
  }

  QTemporaryDir folder_;
};

}  // namespace

TEST_F(EmailScreen, BodyIsTheDocumentUnlessThereIsAnother) {
  const SmtpServer server({u"--login"_s, u"orcamentos@aurora.example:senha-orca"_s});
  mailTo(server);
  const QString path = folder_.filePath(u"orca_000123.html"_s);
  files::write(path,
               "<meta charset=iso-8859-1>\r\n<body>Or\xE7"
               "amento\r\n n\xBA 123\r\n");
  documento().ArquivoCorpoEmail = path;
  const QString file = u" | text/html: orca_000123.html"_s;
  const struct {
    QString ready, typed, listed, attached, body;
  } cases[] = {
      {{},
       u"  "_s,
       {},
       {},
       u"text/plain: Orçamento nº 123\n | text/html: <meta charset=iso-8859-1><body>Orçamento nº 123"_s},
      {{}, u"Segue o orçamento.\n  "_s, {}, {}, u"text/plain: Segue o orçamento.\n"_s},
      {u"<p>Pronto</p>"_s, u"não"_s, {}, {}, u"text/plain: Pronto\n | text/html: <p>Pronto</p>"_s},
      {{}, u"A"_s, u"2^%1^%1^"_s.arg(path), u" %1 "_s.arg(path), u"text/plain: A"_s + file + file + file},
  };
  for (const auto& one : cases) {
    documento().MensagemHTMLEmail = one.ready;
    documento().AnexosEmail = one.listed;
    shown([&](frmEmailOS& form) {
      type(form.txtPara, u"a@clara.example;b@clara.example"_s);
      type(form.txtMsg, one.typed);
      if (!one.attached.isEmpty()) {
        script.input(one.attached);
        click(form.cmdAnexo);
      }
      script.box(u"Mensagem Enviada!"_s);
      click(form.cmdEnviarEmail);
    });
    EXPECT_EQ(forms::registry::find(u"frmEmailOS"_s), nullptr);
    EXPECT_EQ(documento().MensagemHTMLEmail, QString());
    const QJsonObject mail = server.messages().last();
    EXPECT_EQ(mail[u"summary"_s].toString(), u"Orçamento - 000123 - Aurora | "_s + one.body);
    EXPECT_EQ(mail[u"recipients"_s].toArray(),
              (QJsonArray{u"a@clara.example"_s, u"b@clara.example"_s, u"vendas@aurora.example"_s}));
  }
}

TEST_F(EmailScreen, ASendThatFailedLeavesThePointerUntilTheNextKey) {
  sql(u"update empr set emai_serv = '127.0.0.1:1'"_s);
  forms::setBoxAnswerer([](const forms::Box& box) {
    EXPECT_TRUE(box.text.contains(u"não foi possível conectar"_s)) << box.text.toStdString();
    return forms::Answer::Ok;
  });
  shown([](frmEmailOS& form) {
    type(form.txtPara, u"a@clara.example"_s);
    type(form.txtMsg, u"A"_s);
    click(form.cmdEnviarEmail);
    EXPECT_FALSE(forms::WaitPointer::isWorking());
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    support::key(form.cmdEnviarEmail, Qt::Key_Tab);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  });
}
