#include <QApplication>
#include <QTest>

#include "platform/forms/masked_box.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;

class Controls : public FormTest {};

TEST_F(Controls, AMaskedBoxKeepsItsPromptCharacters) {
  forms::MaskedBox box(&sample);
  box.show();
  support::type(&box, u"15a03"_s);
  EXPECT_EQ(box.boxText(), u"15/03/____"_s);
  for (const bool withTime : {false, true}) {
    box.setWithTime(withTime);
    const QString empty = withTime ? u"__/__/____ __:__"_s : u"__/__/____"_s;
    for (const QString& text : {withTime ? u"15/03/2024 09:30"_s : u"15/__/____"_s, empty}) {
      box.setBoxText(text);
      EXPECT_EQ(box.boxText(), text);
    }
    box.setBoxText(QString());
    EXPECT_EQ(box.boxText(), empty);
  }
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

TEST_F(Controls, AChosenEntryOfTheListIsAClick) {
  forms::Combo& combo = *sample.cboC;
  combo.addEntry(u"Ana"_s);
  combo.addEntry(u"Bia"_s);
  EXPECT_EQ(combo.text(), QString());
  support::focus(&combo);
  sample.taken();
  combo.showPopup();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr);
  QTest::keyClick(list->focusWidget() != nullptr ? list->focusWidget() : list, Qt::Key_Return);
  support::settle();
  EXPECT_EQ(sample.taken(), u"cboC!"_s);
  EXPECT_FALSE(combo.text().isEmpty());
}

TEST_F(Controls, LinesEndAsThoseOfTheDatabase) {
  forms::setControlText(sample.txtLines, u"a\rb\r\nc\nd"_s);
  EXPECT_EQ(forms::controlText(sample.txtLines), u"a\r\nb\r\nc\r\nd"_s);
}

TEST_F(Controls, ColorsAreBlueGreenRedOrTheSystems) {
  EXPECT_EQ(forms::toColor(33023), QColor(255, 128, 0));
  EXPECT_EQ(forms::toColor(0x80000005), QColor(Qt::white));
  EXPECT_EQ(forms::toColor(-2147483643), QColor(Qt::white));
}

TEST_F(Controls, TextStaysReadableOnADarkGround) {
  forms::setBackColor(sample.txtA, 0x400000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::white));
  forms::setForeColor(sample.txtA, 255);
  forms::setBackColor(sample.txtA, 0x500000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::red));
}
