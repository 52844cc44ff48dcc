#include "platform/forms/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "platform/forms/controls.h"

namespace forms {

namespace {

constexpr int kFewLetters = 12;

QRect placeOfText(const QLabel& label) {
  const int margin = label.margin();
  return label.contentsRect().adjusted(margin, margin, -margin, -margin);
}

}  // namespace

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kFewLetters, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
  const auto isCut = [this] { return fontMetrics().horizontalAdvance(text()) > placeOfText(*this).width(); };
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isCut()) return QLabel::event(event);
  QToolTip::showText(dynamic_cast<QHelpEvent*>(event)->globalPos(), asTip(text()), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect place = placeOfText(*this);
  const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
  style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(), fitting,
                        foregroundRole());
}

}  // namespace forms
