#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::form;

class Life : public FormTest {
 protected:
  /// Opens the modal form from a click on the first button.
  void openOther() {
    sample.acts[u"cmdOne!"_s] = [this] {
      form<frmOther>().showModal();
      sample.note(u"back"_s);
    };
  }
};

TEST_F(Life, IsRegisteredBeforeItLoadsAndKeptWhileHidden) {
  frmOther::loads = 0;
  frmOther& other = form<frmOther>();
  EXPECT_EQ(frmOther::loads, 1);
  EXPECT_EQ(&form<frmOther>(), &other);
  other.hideForm();
  EXPECT_TRUE(other.isLoaded());
  EXPECT_EQ(frmOther::loads, 1);
  EXPECT_EQ(forms::findControl(u"frmOther"_s, u"cmdGo"_s), other.cmdGo);
  EXPECT_EQ(forms::findControl(u"frmNowhere"_s, u"cmdGo"_s), nullptr);
}

TEST_F(Life, AModalFormUnloadsFromItsOwnHandlerAndTheNextUseMakesItAnew) {
  openOther();
  support::Script script;
  frmOther::loads = 0;
  script.modal([](forms::Form& opened) {
    auto& other = dynamic_cast<frmOther&>(opened);
    EXPECT_TRUE(other.cmdGo->hasFocus());
    other.on(other.cmdGo, forms::Event::Click, [&other] {
      other.unload();
      EXPECT_EQ(forms::registry::find(u"frmOther"_s), nullptr);
      other.setWindowTitle(u"still there"_s);  // its handler goes on
    });
    support::click(other.cmdGo);
  });
  support::click(sample.cmdOne);
  EXPECT_TRUE(sample.taken().endsWith(u"cmdOne! back"_s));
  EXPECT_EQ(QApplication::activeWindow(), &sample);
  EXPECT_TRUE(form<frmOther>().windowTitle().isEmpty());
  EXPECT_EQ(frmOther::loads, 2);
}

TEST_F(Life, EscAndXCloseUnlessTheCloseEntryIsGone) {
  openOther();
  support::Script script;
  script.modal([](forms::Form& opened) {
    auto& other = dynamic_cast<frmOther&>(opened);
    other.removeCloseEntry();
    support::key(&other, Qt::Key_Escape);
    other.close();
    EXPECT_TRUE(other.isLoaded());
    other.unload();
  });
  script.modal([](forms::Form& opened) { support::key(&opened, Qt::Key_Escape); });
  support::click(sample.cmdOne);
  support::click(sample.cmdOne);
  EXPECT_EQ(forms::registry::find(u"frmOther"_s), nullptr);
}

TEST_F(Life, ARuntimeErrorInAModalFormIsToldAndEndsAllOfIt) {
  openOther();
  support::Script script;
  script.expectEnd(1).box(u"Erro em tempo de execução '13':\n\nTipos incompatíveis"_s);
  script.modal([](forms::Form& opened) {
    auto& other = dynamic_cast<frmOther&>(opened);
    other.on(other.cmdGo, forms::Event::Click, [] { values::raise(values::kTypeMismatch); });
    support::click(other.cmdGo);
  });
  support::click(sample.cmdOne);
  EXPECT_TRUE(script.ended());
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
  // The handler that had opened the form goes no further either.
  EXPECT_FALSE(sample.log.contains(u"back"_s));
  EXPECT_FALSE(form<frmOther>().isVisible());
}

TEST_F(Life, TheProcessEndsAtOnceWithItsStatus) {
  EXPECT_EXIT(forms::guarded([] { forms::end(3); }), ::testing::ExitedWithCode(3), "");
}

struct RealBox {
  forms::Buttons buttons;
  QStringList captions;
  Qt::Key key;
  forms::Answer answer;
};

class RealBoxes : public FormTest, public ::testing::WithParamInterface<RealBox> {};

TEST_P(RealBoxes, ShowPortugueseButtonsAndAnswerToKeys) {
  QStringList captions;
  QString text;
  QTimer::singleShot(0, &sample, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text();
    QMap<int, QString> leftToRight;
    for (const QAbstractButton* button : box->buttons()) leftToRight.insert(button->x(), button->text());
    captions = leftToRight.values();
    QTest::keyClick(box, GetParam().key);
    // Esc leaves a question without Cancel where it is.
    if (GetParam().key == Qt::Key_Escape && box->isVisible()) QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(forms::msgBox({.text = u"a\rb\r\nc"_s, .buttons = GetParam().buttons}), GetParam().answer);
  EXPECT_EQ(text, u"a\nb\nc"_s);
  EXPECT_EQ(captions, GetParam().captions);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, RealBoxes,
    ::testing::Values(RealBox{forms::Buttons::Ok, {u"&OK"_s}, Qt::Key_Escape, forms::Answer::Ok},
                      RealBox{forms::Buttons::YesNo, {u"&Sim"_s, u"&Não"_s}, Qt::Key_N, forms::Answer::No},
                      RealBox{
                          forms::Buttons::YesNo, {u"&Sim"_s, u"&Não"_s}, Qt::Key_Escape, forms::Answer::Yes},
                      RealBox{forms::Buttons::YesNoCancel,
                              {u"&Sim"_s, u"&Não"_s, u"&Cancelar"_s},
                              Qt::Key_Escape,
                              forms::Answer::Cancel},
                      RealBox{forms::Buttons::YesNoCancel,
                              {u"&Sim"_s, u"&Não"_s, u"&Cancelar"_s},
                              Qt::Key_Return,
                              forms::Answer::Yes}));
