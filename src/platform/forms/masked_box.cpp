#include "platform/forms/masked_box.h"

using namespace Qt::StringLiterals;

namespace forms {

MaskedBox::MaskedBox(QWidget* parent) : QLineEdit(parent) { setWithTime(false); }

void MaskedBox::setWithTime(bool withTime) {
  withTime_ = withTime;
  setInputMask(withTime ? u"99/99/9999 99:99;_"_s : u"99/99/9999;_"_s);
  setCursorPosition(0);
}

QString MaskedBox::boxText() const { return displayText(); }

void MaskedBox::setBoxText(const QString& text) {
  setText(text);
  setCursorPosition(0);
}

QString MaskedBox::emptyMask() const { return withTime_ ? u"__/__/____ __:__"_s : u"__/__/____"_s; }

QSize MaskedBox::sizeHint() const {
  constexpr int kRoom = 14;
  const QString sample = emptyMask().replace(u'_', u'0');
  return {fontMetrics().horizontalAdvance(sample) + kRoom, QLineEdit::sizeHint().height()};
}

}  // namespace forms
