#include <QTest>

#include "platform/forms/masked_box.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;

class Controls : public FormTest {};

TEST_F(Controls, AMaskedBoxTakesDigitsAndKeepsItsPromptCharacters) {
  forms::MaskedBox box(&sample);
  box.show();
  support::type(&box, u"15a03"_s);
  EXPECT_EQ(box.boxText(), u"15/03/____"_s);
  box.setBoxText(u"1_/__/____"_s);
  EXPECT_EQ(box.boxText(), u"1_/__/____"_s);
}

TEST_F(Controls, AComboKeepsItsTextWhileItsListIsFilled) {
  forms::Combo& combo = *sample.cboC;
  int fills = 0;
  QObject::connect(&combo, &forms::Combo::dropDown, &combo, [&] {
    ++fills;
    combo.clearList();
    combo.addEntry(u"Ana Maria"_s);
    combo.addEntry(u"Bia"_s);
  });
  support::type(&combo, u"an"_s);
  combo.showPopup();
  combo.hidePopup();
  support::key(&combo, Qt::Key_Return);
  EXPECT_EQ(combo.text(), u"an"_s);
  EXPECT_EQ(combo.count(), 2);
  combo.setText(u"Bia"_s);
  combo.clearList();
  EXPECT_EQ(combo.text(), u"Bia"_s);

  combo.setLocked(true);
  combo.showPopup();
  EXPECT_EQ(fills, 1);
  support::type(&combo, u"x"_s);
  EXPECT_EQ(combo.text(), u"Bia"_s);
}

TEST_F(Controls, ALimitedBoxRefusesWhatIsTypedOrPastedLast) {
  QPlainTextEdit& box = *sample.txtLines;
  forms::limitText(&box, 8);
  forms::setControlText(&box, u"abcdefghij"_s);
  EXPECT_EQ(forms::controlText(&box), u"abcdefgh"_s);
  for (const int place : {0, 3}) {
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(place);
    box.setTextCursor(cursor);
    box.insertPlainText(u"XY"_s);
    EXPECT_EQ(forms::controlText(&box), u"abcdefgh"_s);
  }
  forms::setControlText(&box, u"abcdefg"_s);
  QTest::keyClicks(&box, u"XY"_s);
  EXPECT_EQ(forms::controlText(&box), u"Xabcdefg"_s);
  box.undo();
  EXPECT_EQ(forms::controlText(&box), u"abcdefg"_s);
  forms::setControlText(&box, u"abcd"_s);
  box.moveCursor(QTextCursor::End);
  box.insertPlainText(u"\n\n💝\n"_s);
  EXPECT_EQ(forms::controlText(&box), u"abcd\r\n\r\n"_s);
  box.undo();
  EXPECT_EQ(forms::controlText(&box), u"abcd"_s);
}

TEST_F(Controls, ColorsAreBlueGreenRedOrTheSystemsAndTextStaysReadable) {
  EXPECT_EQ(forms::toColor(33023), QColor(255, 128, 0));
  EXPECT_EQ(forms::toColor(0x80000005), QColor(Qt::white));
  EXPECT_EQ(forms::toColor(-2147483643), QColor(Qt::white));
  forms::setBackColor(sample.txtA, 0x400000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::white));
  forms::setForeColor(sample.txtA, 255);
  forms::setBackColor(sample.txtA, 0x500000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::red));
}
