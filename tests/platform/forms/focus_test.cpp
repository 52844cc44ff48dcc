#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::msgBox;

class Focus : public FormTest {};

TEST_F(Focus, MovesFromFieldToFieldByEnterWithEventsOfBoth) {
  sample.txtA->setText(u"abc"_s);
  support::key(sample.txtA, Qt::Key_Return);
  EXPECT_EQ(sample.taken(), u"txtA- txtB+"_s);
  support::key(sample.txtB, Qt::Key_Return);
  support::key(sample.cboC, Qt::Key_Enter);
  EXPECT_EQ(sample.taken(), u"txtB- cboC+ cboC- txtLines+"_s);
  support::key(sample.txtLines, Qt::Key_X, Qt::NoModifier);
  support::key(sample.txtLines, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(forms::controlText(sample.txtLines), u"x\r\n"_s);
  support::key(sample.txtLines, Qt::Key_Return);
  EXPECT_TRUE(sample.Flex->hasFocus());
  support::focus(sample.txtA);
  EXPECT_EQ(sample.txtA->selectedText(), u"abc"_s);
  support::focus(sample.cmdOne);
  sample.taken();
  support::key(sample.cmdOne, Qt::Key_Return);  // a button is clicked, unless it is said to move on
  support::focus(sample.cmdTwo);
  support::key(sample.cmdTwo, Qt::Key_Return);
  EXPECT_EQ(sample.taken(), u"cmdOne! cmdOne- cmdTwo+ cmdTwo- txtA+"_s);
}

TEST_F(Focus, ABoxFromLosingTheFocusSwallowsTheClick) {
  support::Script script;
  script.box(u"no such entry"_s);
  sample.acts[u"txtA-"_s] = [this] {
    msgBox({.text = u"no such entry"_s});
    forms::Form::focus(sample.txtA);
  };
  support::click(sample.cmdOne);
  EXPECT_EQ(sample.taken(), u"txtA- txtA+"_s);
  EXPECT_TRUE(sample.txtA->hasFocus());
  EXPECT_FALSE(sample.cmdOne->isDown());

  sample.acts.clear();
  support::click(sample.cmdOne);
  EXPECT_EQ(sample.taken(), u"txtA- cmdOne+ cmdOne!"_s);
}

TEST_F(Focus, AnAccessKeyMovesTheFocusFirstAndABoxSwallowsItToo) {
  support::key(sample.txtA, Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(sample.taken(), u"txtA- cmdOne+ cmdOne!"_s);

  support::Script script;
  script.box(u"wrong"_s);
  sample.acts[u"cmdOne-"_s] = [] { msgBox({.text = u"wrong"_s}); };
  support::key(sample.cmdOne, Qt::Key_T, Qt::AltModifier);
  EXPECT_EQ(sample.taken(), u"cmdOne- cmdTwo+"_s);
}
