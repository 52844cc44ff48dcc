#include "platform/forms/masked_box.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace forms {

MaskedBox::MaskedBox(QWidget* parent) : QLineEdit(parent) { setWithTime(false); }

void MaskedBox::setWithTime(bool withTime) {
  withTime_ = withTime;
  setInputMask(withTime ? u"99/99/9999 99:99;_"_s : u"99/99/9999;_"_s);
  setCursorPosition(0);
}

void MaskedBox::setBoxText(const QString& text) {
  setText(text);
  setCursorPosition(0);
}

QString MaskedBox::emptyMask() const { return withTime_ ? u"__/__/____ __:__"_s : u"__/__/____"_s; }

void MaskedBox::keyPressEvent(QKeyEvent* event) {
  const QString mask = emptyMask();
  const QString typed = event->text();
  if (isReadOnly() || typed.size() != 1 || typed == u" "_s || typed == u"_"_s || !mask.contains(typed))
    return QLineEdit::keyPressEvent(event);
  const auto caret = static_cast<qsizetype>(hasSelectedText() ? 0 : cursorPosition());
  const qsizetype end = mask.indexOf(typed[0], caret);
  // After two digits the caret has moved on already.
  if (end < 0 || end - caret >= 2) return;
  QString text = boxText();
  const qsizetype start = end - 2;
  if (text[start].isDigit() && text[start + 1] == u'_') {
    text[start + 1] = text[start];
    text[start] = u'0';
    setText(text);
    Q_EMIT textEdited(text);
  }
  setCursorPosition(static_cast<int>(end) + 1);
}

void MaskedBox::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (isBlank()) setCursorPosition(0);
}

QSize MaskedBox::sizeHint() const {
  constexpr int kRoom = 14;
  const QString sample = emptyMask().replace(u'_', u'0');
  return {fontMetrics().horizontalAdvance(sample) + kRoom, QLineEdit::sizeHint().height()};
}

}  // namespace forms
