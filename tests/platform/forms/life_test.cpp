#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <optional>
#include <vector>

#include "platform/data/walk.h"
#include "platform/forms/process.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::form;

class Life : public FormTest {
 protected:
  /// Opens the modal form from a click on the first button.
  void open(support::Script& script, const std::function<void(frmOther&)>& act) {
    sample.acts[u"cmdOne!"_s] = [this] {
      form<frmOther>().showModal();
      sample.note(u"back"_s);
    };
    script.modal([act](forms::Form& opened) { act(dynamic_cast<frmOther&>(opened)); });
    support::click(sample.cmdOne);
  }
};

TEST_F(Life, AModalFormUnloadsFromItsOwnHandlerAndTheNextUseMakesItAnew) {
  support::Script script;
  frmOther::loads = 0;
  open(script, [](frmOther& other) {
    EXPECT_TRUE(other.cmdGo->hasFocus());
    other.on(other.cmdGo, forms::Event::Click, [&other] {
      other.unload();
      EXPECT_EQ(forms::registry::find(u"frmOther"_s), nullptr);
      other.setWindowTitle(u"still there"_s);  // its handler goes on
    });
    support::click(other.cmdGo);
  });
  EXPECT_TRUE(sample.taken().endsWith(u"cmdOne! back"_s));
  EXPECT_EQ(QApplication::activeWindow(), &sample);
  EXPECT_TRUE(form<frmOther>().windowTitle().isEmpty());
  form<frmOther>().hide();
  EXPECT_EQ(frmOther::loads, 2);
}

TEST_F(Life, EscAndXCloseUnlessTheCloseEntryIsGone) {
  support::Script script;
  open(script, [this](frmOther& other) {
    sample.close();  // as a desktop may ask of a window under another one
    EXPECT_EQ(forms::registry::find(sample.objectName()), &sample);
    other.removeCloseEntry();
    support::key(&other, Qt::Key_Escape);
    other.close();
    EXPECT_EQ(forms::registry::find(other.objectName()), &other);
    other.escClicks(other.cmdGo);
    other.on(other.cmdGo, forms::Event::Click, [&other] { other.unload(); });
    support::key(&other, Qt::Key_Escape);
  });
  open(script, [](frmOther& other) { support::key(&other, Qt::Key_Escape); });
  EXPECT_EQ(forms::registry::find(u"frmOther"_s), nullptr);
}

TEST_F(Life, LongWorkShowsHowFarItIsAndHandlesNoEvent) {
  bool handled = false;
  QTimer::singleShot(0, &sample, [&handled] { handled = true; });
  const auto shown = [] {
    for (const auto* label : QApplication::activeWindow()->findChildren<QLabel*>())
      if (label->isVisible() && label->text().startsWith(u"Processando")) return label->text();
    return QString();
  };
  {
    const forms::WaitPointer wait;
    data::Walk walk;
    walk.done(1, 5000);
    EXPECT_EQ(shown(), QString());
    QTest::qSleep(1001);
    walk.done(1200, 5000);
    EXPECT_EQ(shown(), u"Processando: 1.200 de 5.000"_s);
  }
  EXPECT_EQ(shown(), QString());
  EXPECT_FALSE(handled);
}

TEST_F(Life, RealBoxesAnswerToKeys) {
  using enum forms::Buttons;
  const auto press = [](QKeyCombination key) {
    const QWidget* box = QApplication::activeModalWidget();
    if (box != nullptr) QTest::keyClick(box->focusWidget(), key.key(), key.keyboardModifiers());
  };
  const struct {
    forms::Buttons buttons;
    std::vector<QKeyCombination> keys;
    forms::Answer answer;
    std::optional<forms::Answer> usual = {};
  } cases[] = {{Ok, {Qt::Key_Escape}, forms::Answer::Ok},
               {Ok, {Qt::Key_Space}, forms::Answer::Ok},
               // Letters and blanks are what a user types on who has not seen the question.
               {YesNo, {Qt::Key_N, Qt::Key_Space, Qt::SHIFT | Qt::Key_N, Qt::Key_Return}, forms::Answer::Yes},
               {YesNo, {Qt::ALT | Qt::Key_N}, forms::Answer::No},
               {YesNo, {Qt::Key_Tab, Qt::Key_Return}, forms::Answer::No},
               {YesNo, {Qt::Key_Right, Qt::Key_Return}, forms::Answer::No},
               {YesNo, {Qt::Key_Return}, forms::Answer::No, forms::Answer::No},
               {YesNo, {Qt::Key_Escape, Qt::Key_Return}, forms::Answer::Yes},  // Esc leaves it where it is
               {YesNoCancel, {Qt::Key_S, Qt::Key_Escape}, forms::Answer::No},
               {YesNoCancel, {Qt::Key_Return}, forms::Answer::No}};
  for (const auto& one : cases) {
    // What comes while a question has not been seen yet answers nothing.
    const int early = one.buttons == Ok ? 0 : forms::kTypedAhead / 2;
    if (early > 0)
      QTimer::singleShot(early, &sample, [&press] {
        for (const QKeyCombination key : {QKeyCombination(Qt::Key_Return), Qt::ALT | Qt::Key_S}) press(key);
      });
    QTimer::singleShot(early * 3, &sample, [&, this] {
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      sample.close();
      for (const QKeyCombination key : one.keys) press(key);
    });
    EXPECT_EQ(forms::msgBox({.text = u"a"_s, .buttons = one.buttons, .usual = one.usual}), one.answer);
    EXPECT_EQ(forms::registry::find(sample.objectName()), &sample);
  }
  QTimer::singleShot(0, &sample, [] {
    QWidget* box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->findChild<QLabel*>()->textFormat(), Qt::PlainText) << "a remark names no file to be read";
    QTest::keyClick(box, Qt::Key_Escape);
  });
  EXPECT_EQ(forms::inputBox({u"<img src='/dev/zero'>"_s, u"a"_s, u"b"_s}), QString());
}
