#include "platform/forms/icons.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace forms {

QIcon searchIcon(const QWidget& control) {
  constexpr int kSide = 32;
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(control.palette().color(QPalette::ButtonText), 3.5, Qt::SolidLine, Qt::RoundCap));
  painter.drawEllipse(QRectF(5, 5, 16, 16));
  painter.drawLine(QPointF(19.5, 19.5), QPointF(27, 27));
  painter.end();
  return QIcon(picture);
}

}  // namespace forms
