#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::msgBox;

class Focus : public FormTest {};

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
