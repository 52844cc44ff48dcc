// F1 and Shift+F1, from wherever the focus is.
#include "help/help_keys.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QLineEdit>
#include <QTest>

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace {

class Opened : public QObject {
  Q_OBJECT

 public:
  QUrl last;
 public Q_SLOTS:
  void open(const QUrl& url) { last = url; }
};

TEST(TeclasDeAjuda, OpenTheScreensPageAndSayWhatSupportAsks) {
  reiniciaContexto();
  contexto().Ambiente = u"DEV"_s;
  contexto().SenhaBanco = u"segredo"_s;
  forms::Form form;
  form.setObjectName(u"frmEmailOS"_s);
  auto* box = new QLineEdit(&form);
  TeclasDeAjuda keys;
  qApp->installEventFilter(&keys);
  Opened opened;
  QDesktopServices::setUrlHandler(u"file"_s, &opened, "open");
  QString said;
  forms::setBoxAnswerer([&said](const forms::Box& shown) {
    said = shown.text;
    return forms::Answer::Ok;
  });

  QTest::keyClick(box, Qt::Key_F1);
  EXPECT_EQ(opened.last.fileName(), u"documentos.html"_s);
  EXPECT_EQ(said, QString());
  QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_TRUE(said.contains(u"Versão: 1."_s)) << qPrintable(said);
  EXPECT_TRUE(said.contains(u"Ambiente: DEV"_s)) << qPrintable(said);
  EXPECT_FALSE(said.contains(u"segredo"_s)) << qPrintable(said);

  QDesktopServices::unsetUrlHandler(u"file"_s);
  forms::setBoxAnswerer({});
}

}  // namespace

#include "help_keys_test.moc"
