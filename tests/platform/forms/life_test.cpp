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
  form<frmOther>().hideForm();
  EXPECT_TRUE(form<frmOther>().isLoaded());
  EXPECT_EQ(frmOther::loads, 2);
}

TEST_F(Life, EscAndXCloseUnlessTheCloseEntryIsGone) {
  support::Script script;
  open(script, [](frmOther& other) {
    other.removeCloseEntry();
    support::key(&other, Qt::Key_Escape);
    other.close();
    EXPECT_TRUE(other.isLoaded());
    other.unload();
  });
  open(script, [](frmOther& other) { support::key(&other, Qt::Key_Escape); });
  EXPECT_EQ(forms::registry::find(u"frmOther"_s), nullptr);
}

TEST_F(Life, ARuntimeErrorInAModalFormIsToldAndEndsAllOfIt) {
  support::Script script;
  script.expectEnd(1).box(u"Erro em tempo de execução '13':\n\nTipos incompatíveis"_s);
  open(script, [](frmOther& other) {
    other.on(other.cmdGo, forms::Event::Click, [] { values::raise(values::kTypeMismatch); });
    support::click(other.cmdGo);
  });
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
  // The handler that had opened the form goes no further either.
  EXPECT_FALSE(sample.log.contains(u"back"_s));
  EXPECT_FALSE(form<frmOther>().isVisible());
}

TEST_F(Life, TheProcessEndsAtOnceWithItsStatus) {
  EXPECT_EXIT(forms::guarded([] { forms::end(3); }), ::testing::ExitedWithCode(3), "");
}

TEST_F(Life, RealBoxesShowPortugueseButtonsAndAnswerToKeys) {
  using enum forms::Buttons;
  struct Case {
    forms::Buttons buttons;
    QString captions;
    Qt::Key key;
    forms::Answer answer;
  };
  for (const Case& one :
       {Case{Ok, u"&OK"_s, Qt::Key_Escape, forms::Answer::Ok},
        Case{YesNo, u"&Sim &Não"_s, Qt::Key_N, forms::Answer::No},
        // Esc leaves a question without Cancel where it is.
        Case{YesNo, u"&Sim &Não"_s, Qt::Key_Escape, forms::Answer::Yes},
        Case{YesNoCancel, u"&Sim &Não &Cancelar"_s, Qt::Key_Escape, forms::Answer::Cancel}}) {
    QMap<int, QString> leftToRight;
    QTimer::singleShot(0, &sample, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), u"a\nb\nc"_s);
      for (const QAbstractButton* button : box->buttons()) leftToRight.insert(button->x(), button->text());
      QTest::keyClick(box, one.key);
      if (one.key == Qt::Key_Escape && box->isVisible()) QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(forms::msgBox({.text = u"a\rb\r\nc"_s, .buttons = one.buttons}), one.answer);
    EXPECT_EQ(QStringList(leftToRight.values()).join(u' '), one.captions);
  }
}
