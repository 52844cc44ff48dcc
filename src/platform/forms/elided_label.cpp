#include "platform/forms/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace forms {

namespace {
constexpr int kFewLetters = 12;
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kFewLetters, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        fitting, foregroundRole());
}

}  // namespace forms
