#include "shared/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr QColor kGround(0x1f, 0x4e, 0x79);
constexpr QColor kPaper(0xff, 0xff, 0xff);
constexpr QColor kLine(0xb4, 0xc3, 0xd4);
constexpr QColor kRibbon(0xd8, 0x43, 0x4e);
constexpr QColor kKnot(0xa8, 0x2a, 0x36);

/// Shapes on a ground of 32 by 32.
void draw(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(kGround);
  painter.drawRoundedRect(QRectF(0, 0, 32, 32), 6, 6);
  painter.setBrush(kPaper);
  painter.drawRoundedRect(QRectF(7, 4, 18, 24), 1.5, 1.5);
  painter.setBrush(kLine);
  for (const double y : {8.0, 11.0, 22.0, 25.0}) painter.drawRect(QRectF(10, y, 12, 1.2));
  painter.setBrush(kRibbon);
  painter.drawRect(QRectF(5, 15, 22, 3.6));
  QPainterPath bow;
  bow.moveTo(16, 16.8);
  bow.cubicTo(10, 9.5, 6.5, 15, 16, 16.8);
  bow.cubicTo(25.5, 15, 22, 9.5, 16, 16.8);
  painter.drawPath(bow);
  painter.setBrush(kKnot);
  painter.drawEllipse(QRectF(14.2, 15, 3.6, 3.6));
}

}  // namespace

QImage programImage(int side) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 32.0, side / 32.0);
  draw(painter);
  return image;
}

QIcon programIcon() {
  QIcon icon;
  for (const int side : {16, 32, 48}) icon.addPixmap(QPixmap::fromImage(programImage(side)));
  return icon;
}
