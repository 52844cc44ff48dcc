#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <QTest>

#include "platform/forms/masked_box.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;

struct Mask {
  bool withTime;
  QString given, shown;
};
class MaskedBoxes : public ::testing::TestWithParam<Mask> {};

TEST_P(MaskedBoxes, KeepTheirPromptCharacters) {
  const Mask& mask = GetParam();
  forms::MaskedBox box;
  box.setWithTime(mask.withTime);
  EXPECT_EQ(box.boxText(), box.emptyMask());
  box.setBoxText(mask.given);
  EXPECT_EQ(box.boxText(), mask.shown);
  box.setBoxText(QString());
  EXPECT_EQ(box.boxText(), box.emptyMask());
}

INSTANTIATE_TEST_SUITE_P(Texts, MaskedBoxes,
                         ::testing::Values(Mask{false, u"15/03/2024"_s, u"15/03/2024"_s},
                                           Mask{false, u"15/__/____"_s, u"15/__/____"_s},
                                           Mask{false, u"__/__/____"_s, u"__/__/____"_s},
                                           Mask{true, u"15/03/2024 09:30"_s, u"15/03/2024 09:30"_s},
                                           Mask{true, u"__/__/____ __:__"_s, u"__/__/____ __:__"_s}));

class Controls : public FormTest {};

TEST_F(Controls, AMaskedBoxTakesTypedDigits) {
  forms::MaskedBox box(&sample);
  box.show();
  support::type(&box, u"15a03"_s);
  EXPECT_EQ(box.boxText(), u"15/03/____"_s);
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
  EXPECT_EQ(combo.text(), u"an"_s);
  EXPECT_EQ(combo.count(), 2);
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

TEST_F(Controls, TextOfEveryKindIsReadAndWritten) {
  QLabel label;
  QRadioButton option;
  QGroupBox frame;
  for (QWidget* control :
       QList<QWidget*>{&label, &option, &frame, sample.txtA, sample.cboC, sample.txtLines}) {
    forms::setControlText(control, u"R$ 1"_s);
    EXPECT_EQ(forms::controlText(control), u"R$ 1"_s) << control->metaObject()->className();
  }
  forms::setControlText(sample.txtLines, u"a\rb\r\nc\nd"_s);
  EXPECT_EQ(forms::controlText(sample.txtLines), u"a\r\nb\r\nc\r\nd"_s);
  forms::writeControl(u"frmSample"_s, u"txtB"_s, u"12"_s);
  forms::writeControl(u"frmSample"_s, u"txtNowhere"_s, u"12"_s);
  EXPECT_EQ(sample.txtB->text(), u"12"_s);
}

struct Number {
  forms::ColorNumber number;
  QColor color;
};
class Colors : public ::testing::TestWithParam<Number> {};

TEST_P(Colors, AreBlueGreenRedOrTheSystems) {
  EXPECT_EQ(forms::toColor(GetParam().number), GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(Numbers, Colors,
                         ::testing::Values(Number{255, Qt::red}, Number{0xC0FFFF, QColor(255, 255, 0xC0)},
                                           Number{33023, QColor(255, 128, 0)},
                                           Number{-2147483643, forms::toColor(0x80000005)},
                                           Number{0x80000005, Qt::white}));

TEST_F(Controls, TextStaysReadableOnADarkGround) {
  forms::setBackColor(sample.txtA, 0x400000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::white));
  EXPECT_EQ(forms::backColor(sample.txtA), 0x400000);
  EXPECT_EQ(forms::backColor(sample.txtB), 0x80000005);
  forms::setForeColor(sample.txtA, 255);
  forms::setBackColor(sample.txtA, 0x500000);
  EXPECT_EQ(sample.txtA->palette().color(QPalette::Text), QColor(Qt::red));
}
