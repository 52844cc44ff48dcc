#include <QBuffer>
#include <QCache>
#include <QFile>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfLink>
#include <QPdfSearchModel>
#include <QPdfSelection>
#include <QScopeGuard>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/web/document_view.h"
#include "platform/web/pdf/pdf_trial.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kDotsPerPoint = 96.0 / 72.0;
constexpr double kBetweenPages = 8;   // dots
constexpr double kMostPixels = 36e6;  // of a page's picture: an A4 page at 600 dots an inch
constexpr int kKept = 192 << 10;      // kilobytes of pages as they are drawn
constexpr QColor kMark(255, 200, 0, 120);

/// A picture of a page, so many pixels to a point at most: whatever size it says it is, memory holds it.
QImage pictureOf(QPdfDocument& document, int page, double scale) {
  const QSizeF points = document.pagePointSize(page);
  scale = std::min(scale, std::sqrt(kMostPixels / std::max(1.0, points.width() * points.height())));
  const QSize size = (points * scale).toSize();
  QImage paper(size, QImage::Format_RGB32);  // a page has no ground of its own: its edges would be grey
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, document.render(page, size));
  return paper;
}

/// The pages of a PDF one under the other.
class PdfView : public DocumentView {
 public:
  PdfView(const QByteArray& pdf, QWidget* parent) : DocumentView(kLargestZoom, parent) {
    bytes_.setData(pdf);
    bytes_.open(QIODevice::ReadOnly);
    document_.load(&bytes_);
    setBackgroundBrush(palette().mid());
    QSizeF whole;
    for (int page = 0; page < document_.pageCount(); ++page) whole = whole.expandedTo(sizeOf(page));
    double top = 0;
    for (int page = 0; page < document_.pageCount(); ++page) {
      pages_ << QRectF({(whole.width() - sizeOf(page).width()) / 2, top}, sizeOf(page));
      top = pages_.last().bottom() + kBetweenPages;
    }
    setDocumentSize({whole.width(), top - kBetweenPages});
    verticalScrollBar()->setValue(verticalScrollBar()->minimum());
  }

  [[nodiscard]] bool isReadable() const { return document_.status() == QPdfDocument::Status::Ready; }

  QString text() override {
    QString all;
    for (int page = 0; page < document_.pageCount(); ++page) all += document_.getAllText(page).text() + u'\n';
    return all;
  }

  bool find(const QString& text, bool backward) override {
    if (text != searched_) search(text);
    const qsizetype count = found_.size();
    marks_ = {};
    if (count > 0) {
      current_ = (current_ + (backward ? (current_ < 0 ? 0 : -1) : 1) + count) % count;
      marks_ = found_[current_];
      ensureVisible(marks_.first());
    }
    viewport()->update();
    return count > 0;
  }

  bool paint(QPagedPaintDevice& device) override {
    const double dots = device.logicalDpiX() / 72.0;
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&device)) return false;
    for (int page = 0; page < document_.pageCount(); ++page) {
      if (page > 0 && !device.newPage()) return false;
      painter.drawImage(QRectF({}, document_.pagePointSize(page) * dots), pictureOf(document_, page, dots));
    }
    return painter.end();
  }

  bool writePdf(const QString& file) override {
    QFile copy(file);
    return copy.open(QIODevice::WriteOnly) && copy.write(bytes_.data()) == bytes_.size();
  }

 protected:
  void drawForeground(QPainter* painter, const QRectF& sight) override {
    const double scale = painter->deviceTransform().m11() * kDotsPerPoint;
    if (scale != scale_) drawn_.clear();
    scale_ = scale;
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    for (int page = 0; page < pages_.size(); ++page) {
      if (!pages_[page].intersects(sight)) continue;
      QImage picture = drawn_.contains(page) ? *drawn_[page] : pictureOf(document_, page, scale);
      painter->drawImage(pages_[page], picture);
      if (!drawn_.contains(page)) drawn_.insert(page, new QImage(picture), picture.sizeInBytes() >> 10);
    }
    for (const QRectF& mark : marks_) painter->fillRect(mark, kMark);
  }

 private:
  [[nodiscard]] QSizeF sizeOf(int page) const { return document_.pagePointSize(page) * kDotsPerPoint; }

  void search(const QString& text) {
    searched_ = text;
    current_ = -1;
    found_.clear();
    if (text.isEmpty()) return;
    // The toolkit warns of finds whose letters are of another case.
    const auto loud = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const auto back = qScopeGuard([loud] { qInstallMessageHandler(loud); });
    QPdfSearchModel model;
    model.setDocument(&document_);
    model.setSearchString(text);
    for (int page = 0; page < document_.pageCount(); ++page)
      for (const QPdfLink& link : model.resultsOnPage(page)) {
        QList<QRectF> places;
        for (const QRectF& points : link.rectangles())
          places << QRectF(points.topLeft() * kDotsPerPoint, points.size() * kDotsPerPoint)
                        .translated(pages_[page].topLeft());
        if (!places.isEmpty()) found_ << places;
      }
  }

  QBuffer bytes_;  // not the file itself: the next PDF takes its name
  QPdfDocument document_;
  QList<QRectF> pages_;  // where they lie in the scene
  QCache<int, QImage> drawn_{kKept};
  double scale_ = 0;  // that they are drawn in
  QString searched_;
  QList<QList<QRectF>> found_;  // each as the places of its words
  qsizetype current_ = -1;
  QList<QRectF> marks_;
};

}  // namespace

DocumentView* makePdfView(const QByteArray& pdf, const QString&, QWidget* parent) {
  if (!canBeDrawn(pdf)) return nullptr;
  auto view = std::make_unique<PdfView>(pdf, parent);
  return view->isReadable() ? view.release() : nullptr;
}

}  // namespace web
