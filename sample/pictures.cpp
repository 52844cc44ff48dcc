#include "sample/pictures.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <stdexcept>

#include "platform/values/runtime_error.h"
#include "sample/motifs.h"
#include "sample/rows.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

constexpr QSize kGround{400, 300};
constexpr QSize kSmall{240, 180};
constexpr QSize kLarge{600, 450};
const QColor kBrown(0x62, 0x4a, 0x28);
const QColor kGold(0xb0, 0x9b, 0x6e);

struct Palette {
  QColor base, accent;
  [[nodiscard]] QColor of(Tone tone) const {
    switch (tone) {
      case Tone::Dark:
        return base.darker(135);
      case Tone::Light:
        return base.lighter(145);
      case Tone::Accent:
        return accent;
      case Tone::White:
        return Qt::white;
      case Tone::Base:
        break;
    }
    return base;
  }
};

void draw(QPainter& painter, const Shape& shape, const Palette& palette) {
  const QRectF box(shape.x, shape.y, shape.w, shape.h);
  const QColor colour = palette.of(shape.tone);
  painter.setPen(QPen(colour.darker(125), 1.5));
  painter.setBrush(colour);
  switch (shape.kind) {
    case Kind::Rect:
      painter.drawRect(box);
      break;
    case Kind::Round:
      painter.drawRoundedRect(box, 16, 16);
      break;
    case Kind::Ellipse:
      painter.drawEllipse(box);
      break;
    case Kind::Triangle:
      painter.drawPolygon(QPolygonF{box.bottomLeft(), box.bottomRight(), {box.center().x(), box.top()}});
      break;
    case Kind::Ring:
      painter.setPen(QPen(colour, 9));
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(box);
      break;
  }
}

void draw(QPainter& painter, const Motif& motif, const Palette& palette) {
  for (const Shape& shape : motif.shapes) draw(painter, shape, palette);
}

const Motif& motifNamed(QStringView name) {
  const auto found =
      std::ranges::find_if(kMotifs, [&](const Motif& one) { return name == QStringView(one.name); });
  if (found == std::end(kMotifs)) throw std::logic_error("no motif " + name.toString().toStdString());
  return *found;
}

/// Views of an article: '1' as it stands, '2' from the side, '3' a detail, '4' three of them.
QImage article(const Motif& motif, const Palette& palette, QChar view, const QString& caption, QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size.width() / double{kGround.width()}, size.height() / double{kGround.height()});
  QLinearGradient light(0, 0, 0, kGround.height());
  light.setColorAt(0, QColor(0xfd, 0xfb, 0xf7));
  light.setColorAt(1, QColor(0xe6, 0xdf, 0xd3));
  painter.fillRect(QRect({}, kGround), light);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 28));
  painter.drawEllipse(QRectF(80, 236, 240, 26));
  painter.save();
  if (view == u'2') painter.setTransform(QTransform().translate(60, -8).shear(0, 0.1).scale(0.82, 1), true);
  if (view == u'3') painter.setTransform(QTransform().translate(-200, -150).scale(2, 2), true);
  if (view == u'4') {
    for (const double x : {-70.0, 150.0}) {
      painter.save();
      painter.setTransform(QTransform().translate(x, 70).scale(0.75, 0.72), true);
      draw(painter, motif, palette);
      painter.restore();
    }
  }
  draw(painter, motif, palette);
  painter.restore();
  QFont font(u"Liberation Sans"_s);
  font.setPixelSize(14);
  painter.setFont(font);
  painter.setPen(QColor(0x8c, 0x80, 0x6c));
  painter.drawText(QRectF(8, 276, 384, 20), Qt::AlignRight | Qt::AlignVCenter, caption);
  return picture;
}

/// Pictures are plain copies: they need no write that survives a power cut.
void save(const QImage& picture, const QString& path) {
  if (!picture.save(path, "JPG", 88)) values::raise(values::kPathFileAccess, path);
}

QImage logo(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size.width() / 283.0, size.height() / 127.0);
  painter.setPen(QPen(kGold, 3));
  painter.drawEllipse(QRectF(112, 6, 58, 58));
  QFont font(u"Liberation Serif"_s);
  const auto text = [&](const QRectF& box, int pixels, const QColor& colour, const QString& words) {
    font.setPixelSize(pixels);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(box, Qt::AlignCenter, words);
  };
  font.setItalic(true);
  text(QRectF(112, 6, 58, 58), 30, kBrown, u"MT"_s);
  font.setItalic(false);
  text(QRectF(0, 66, 283, 34), 30, kBrown, u"Marta Tavora"_s);
  text(QRectF(0, 100, 283, 22), 15, kGold, u"P R E S T I G E"_s);
  return picture;
}

QImage noPicture() {
  QImage picture(kSmall, QImage::Format_RGB32);
  picture.fill(QColor(0xee, 0xec, 0xe8));
  QPainter painter(&picture);
  painter.setPen(QPen(QColor(0xb8, 0xb2, 0xa6), 2, Qt::DashLine));
  painter.drawRect(8, 8, kSmall.width() - 16, kSmall.height() - 16);
  QFont font(u"Liberation Sans"_s);
  font.setPixelSize(20);
  painter.setFont(font);
  painter.setPen(QColor(0x8c, 0x86, 0x7a));
  painter.drawText(picture.rect(), Qt::AlignCenter, u"Sem imagem"_s);
  return picture;
}

void drawArticles(const QString& folder) {
  const Rows rows = pictures();
  for (std::size_t i = 0; i < rows.rows.size(); ++i) {
    const QString& code = rows.at(i, u"code");
    const Motif& motif = motifNamed(rows.at(i, u"motif"));
    const Palette palette{QColor(u'#' + rows.at(i, u"colour")), QColor(u'#' + rows.at(i, u"accent"))};
    const QImage plain = article(motif, palette, u'1', code, kSmall);
    save(plain, folder + u"/imagens/"_s + code + rows.at(i, u"variant") + u".jpg"_s);
    save(plain, folder + u"/web/"_s + code + u".jpg"_s);
    save(article(motif, palette, u'1', code, kLarge), folder + u"/imagens2/"_s + code + u"_g.jpg"_s);
    for (const QChar view : rows.at(i, u"views")) {
      const QString name = code + u'_' + view;
      save(article(motif, palette, view, name, kSmall), folder + u"/imagens/"_s + name + u".jpg"_s);
    }
  }
}

}  // namespace

void drawPictures(const QString& folder) {
  for (const QString& part : {u"imagens"_s, u"imagens2"_s, u"web"_s}) QDir(folder).mkpath(part);
  drawArticles(folder);
  QImage blank(kSmall, QImage::Format_RGB32);
  blank.fill(Qt::white);
  for (const QString& part : {u"/imagens/"_s, u"/web/"_s}) {
    save(logo({283, 127}), folder + part + u"logomartatavora283x127.jpg"_s);
    save(logo({200, 90}), folder + part + u"logo_cliente.jpg"_s);
    save(blank, folder + part + u"imagem_branco.jpg"_s);
  }
  save(noPicture(), folder + u"/imagens/sem_imagem.jpg"_s);
}

}  // namespace sample
