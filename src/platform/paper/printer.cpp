#include "platform/paper/printer.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include "platform/paper/text_pieces.h"

namespace paper {

using namespace Qt::StringLiterals;

namespace {

constexpr double kFootSize = 8, kFootRise = 20;  // points; its line's distance from the paper's end

class Painting {
 public:
  Painting(QTextDocument& text, const Sheet& sheet, QPagedPaintDevice& device)
      : text_(text), sheet_(sheet), device_(device), dots_(device.logicalDpiX() / 72.0) {}

  bool print(const std::vector<Page>& pages) {
    if (!painter_.begin(&device_)) return false;
    for (std::size_t i = 0; i < pages.size(); ++i) {
      if (i > 0 && !device_.newPage()) return false;
      paint(pages[i].head, 0);
      paint(pages[i].body, pages[i].head.height());
      if (i > 0 && !sheet_.foot.isEmpty())
        paintFoot(u"%1 · página %2 de %3"_s.arg(sheet_.foot).arg(i + 1).arg(pages.size()));
    }
    return painter_.end();
  }

 private:
  /// A strip, its top so many dots of the layout under the margin.
  void paint(const Strip& strip, double under) {
    if (strip.height() <= 0) return;
    painter_.save();
    painter_.scale(dots_, dots_);
    painter_.translate(sheet_.margins.left(), sheet_.margins.top());
    painter_.scale(sheet_.scale, sheet_.scale);
    painter_.translate(0, under - strip.top);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    // What ends or begins on the edge itself is another page's, lines are not.
    context.clip = QRectF(-1, strip.top + 0.5, sheet_.width + 2, strip.height() - 1);
    painter_.setClipRect(context.clip.adjusted(0, -1, 0, 1));
    text_.documentLayout()->draw(&painter_, context);
    painter_.restore();
  }

  void paintFoot(const QString& words) {
    painter_.save();
    painter_.scale(dots_, dots_);
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(qRound(kFootSize));
    painter_.setFont(font);
    const QRectF line(0, kPageHeight - kFootRise - 2 * kFootSize, kPageWidth, 2 * kFootSize);
    painter_.drawText(line, Qt::AlignHCenter | Qt::AlignBottom, words);
    painter_.restore();
  }

  QTextDocument& text_;
  const Sheet& sheet_;
  QPagedPaintDevice& device_;
  double dots_;  // of the device to a point
  QPainter painter_;
};

}  // namespace

void layOutForAnyDevice(QTextDocument& text) {
  static QImage device(1, 1, QImage::Format_RGB32);
  device.setDotsPerMeterX(qRound(kDotsPerInch / 0.0254));
  device.setDotsPerMeterY(qRound(kDotsPerInch / 0.0254));
  text.setDocumentMargin(0);
  text.setUndoRedoEnabled(false);
  text.setUseDesignMetrics(true);
  text.documentLayout()->setPaintDevice(&device);
}

bool print(QTextDocument& text, const Sheet& sheet, QPagedPaintDevice& device) {
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  const double height = (kPageHeight - sheet.margins.top() - sheet.margins.bottom()) / sheet.scale;
  return Painting(text, sheet, device).print(paginate(piecesOf(text, height), height));
}

}  // namespace paper
