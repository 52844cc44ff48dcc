#include "platform/forms/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "platform/forms/tips.h"

namespace forms {

namespace {
constexpr int kFewLetters = 12;
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kFewLetters, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
  const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
  if (event->type() != QEvent::ToolTip || !cut || !toolTip().isEmpty()) return QLabel::event(event);
  QToolTip::showText(dynamic_cast<QHelpEvent*>(event)->globalPos(), asTip(text()), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        fitting, foregroundRole());
}

}  // namespace forms
