#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
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
  box.setWithTime(true);
  for (const auto& [typed, shown] : {std::pair(u"5/3/2026"_s, u"05/03/2026 __:__"_s),
                                     {u"15/12/202610"_s, u"15/12/2026 10:__"_s},
                                     {u"1/1220269:30"_s, u"01/12/2026 09:30"_s}}) {
    support::type(&box, typed);
    EXPECT_EQ(box.boxText(), shown);
  }
}

TEST_F(Controls, ARemarkShowsItsFirstLineWhenItIsLoadedEnteredAndLeft) {
  QPlainTextEdit& box = *sample.txtLines;
  box.setFixedHeight(24);
  box.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  forms::setControlText(&box, u"one\r\ntwo\r\nthree"_s);
  support::focus(&box);
  box.moveCursor(QTextCursor::End);
  EXPECT_GT(box.verticalScrollBar()->value(), 0);
  support::key(&box, Qt::Key_X, Qt::AltModifier);  // nobody's access key
  support::focus(sample.txtA);
  EXPECT_EQ(box.verticalScrollBar()->value(), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return box.findChild<QWidget*>(u"qt_more_sign"_s)->isVisible(); }));
  EXPECT_EQ(forms::controlText(&box), u"one\r\ntwo\r\nthree"_s);
}

TEST_F(Controls, LinesPastedIntoABoxAreTakenOneByOneWhereItIsUnlocked) {
  QStringList taken;
  sample.onLinesPasted(sample.txtA, [&](const QStringList& lines) { taken += lines; });
  QApplication::clipboard()->setText(u"b\r\n \nc\nd\n"_s);
  support::type(sample.txtA, u"a"_s);
  support::key(sample.txtA, Qt::Key_V, Qt::ControlModifier);
  forms::setLocked(sample.txtA, true);
  support::key(sample.txtA, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(taken, QStringList({u"ab"_s, u"c"_s, u"d"_s}));
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

TEST_F(Controls, ALimitCutsNoCharacterInTwo) {
  forms::limitText(sample.txtA, 4);
  for (const auto& [pasted, kept] :
       {std::pair{u"abc💝"_s, u"abc"_s}, {u"ab💝"_s, u"ab💝"_s}, {u"abcdef"_s, u"abcd"_s}}) {
    sample.txtA->clear();
    sample.txtA->insert(pasted);
    EXPECT_EQ(sample.txtA->text(), kept);
    sample.txtA->setText(pasted);
    EXPECT_EQ(sample.txtA->text(), kept);
  }
  sample.txtA->setText(u"abc"_s);
  sample.txtA->setCursorPosition(1);
  sample.txtA->insert(u"💝"_s);
  EXPECT_EQ(sample.txtA->text(), u"abc"_s);
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
