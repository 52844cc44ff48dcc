#include "shared/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr QColor kFundo(0x1f, 0x4e, 0x79);
constexpr QColor kPapel(0xff, 0xff, 0xff);
constexpr QColor kLinha(0xb4, 0xc3, 0xd4);
constexpr QColor kFita(0xd8, 0x43, 0x4e);
constexpr QColor kNo(0xa8, 0x2a, 0x36);

/// Shapes on a ground of 32 by 32.
void desenha(QPainter& pintor) {
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(kFundo);
  pintor.drawRoundedRect(QRectF(0, 0, 32, 32), 6, 6);
  pintor.setBrush(kPapel);
  pintor.drawRoundedRect(QRectF(7, 4, 18, 24), 1.5, 1.5);
  pintor.setBrush(kLinha);
  for (const double y : {8.0, 11.0, 22.0, 25.0}) pintor.drawRect(QRectF(10, y, 12, 1.2));
  pintor.setBrush(kFita);
  pintor.drawRect(QRectF(5, 15, 22, 3.6));
  QPainterPath laco;
  laco.moveTo(16, 16.8);
  laco.cubicTo(10, 9.5, 6.5, 15, 16, 16.8);
  laco.cubicTo(25.5, 15, 22, 9.5, 16, 16.8);
  pintor.drawPath(laco);
  pintor.setBrush(kNo);
  pintor.drawEllipse(QRectF(14.2, 15, 3.6, 3.6));
}

}  // namespace

QImage imagemDoPrograma(int lado) {
  QImage imagem(lado, lado, QImage::Format_ARGB32_Premultiplied);
  imagem.fill(Qt::transparent);
  QPainter pintor(&imagem);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.scale(lado / 32.0, lado / 32.0);
  desenha(pintor);
  return imagem;
}

QIcon iconeDoPrograma() {
  QIcon icone;
  for (const int lado : {16, 32, 48}) icone.addPixmap(QPixmap::fromImage(imagemDoPrograma(lado)));
  return icone;
}
