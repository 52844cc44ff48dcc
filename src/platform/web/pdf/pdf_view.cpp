#include "platform/web/pdf/pdf_view.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfLink>
#include <QPdfSearchModel>
#include <QPdfSelection>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/web/pdf/pdf_trial.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kMark(255, 200, 0, 120);

/// Keeps off the terminal what the toolkit warns of: finds whose letters are of another case.
class Quiet {
 public:
  Quiet() = default;
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { qInstallMessageHandler(before_); }

 private:
  QtMessageHandler before_ =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
};

double pixelsPerPoint() { return QGuiApplication::primaryScreen()->logicalDotsPerInch() / 72.0; }

/// Pixels to a point up to which a page, of whatever size it says it is, is a picture that memory holds.
double largestScale(const QPdfDocument& document, int page) {
  constexpr double kMostPixels = 36e6;  // an A4 page at 600 dots an inch
  const QSizeF size = document.pagePointSize(page);
  return std::sqrt(kMostPixels / std::max(1.0, size.width() * size.height()));
}

}  // namespace

PdfPages::PdfPages(QWidget* parent) : QPdfView(parent) {
  setPageMode(PageMode::MultiPage);
  setZoomMode(ZoomMode::Custom);
  QPalette around = palette();
  around.setBrush(QPalette::Dark, palette().mid());  // paper on a light ground
  setPalette(around);
}

// The layout is the view's own, which keeps it to itself.
QRect PdfPages::placeOf(int page) const {
  int top = documentMargins().top();
  int widest = 0;
  QSize size;
  for (int i = 0; i < document()->pageCount(); ++i) {
    const QSize one = (document()->pagePointSize(i) * pixelsPerPoint() * zoomFactor()).toSize();
    if (i < page) top += one.height() + pageSpacing();
    if (i == page) size = one;
    widest = std::max(widest, one.width());
  }
  const int whole = widest + documentMargins().left() + documentMargins().right();
  return {QPoint((std::max(whole, viewport()->width()) - size.width()) / 2, top), size};
}

QRect PdfPages::scaled(const QRectF& points) const {
  const double factor = pixelsPerPoint() * zoomFactor();
  return QRectF(points.topLeft() * factor, points.size() * factor).toAlignedRect();
}

void PdfPages::mark(int page, const QList<QRectF>& places) {
  markedPage_ = page;
  marks_ = places;
  viewport()->update();
  if (places.isEmpty()) return;
  const QRect place = scaled(places.first()).translated(placeOf(page).topLeft());
  const QRect sight({horizontalScrollBar()->value(), verticalScrollBar()->value()}, viewport()->size());
  if (sight.contains(place)) return;
  verticalScrollBar()->setValue(place.center().y() - viewport()->height() / 2);
  horizontalScrollBar()->setValue(place.center().x() - viewport()->width() / 2);
}

double PdfPages::fittingZoom() const {
  double widest = 1.0;
  for (int i = 0; i < document()->pageCount(); ++i)
    widest = std::max(widest, document()->pagePointSize(i).width());
  // Room for the scroll bar from the start: its coming and going would change the width again.
  const int room = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() -
                   documentMargins().left() - documentMargins().right();
  return room / (widest * pixelsPerPoint());
}

double PdfPages::largestZoom() const {
  double zoom = kLargestZoom;
  for (int i = 0; i < document()->pageCount(); ++i)
    zoom = std::min(zoom, largestScale(*document(), i) / pixelsPerPoint());
  return zoom;
}

void PdfPages::paintEvent(QPaintEvent* event) {
  QPdfView::paintEvent(event);
  if (marks_.isEmpty()) return;
  QPainter painter(viewport());
  const QPoint origin =
      placeOf(markedPage_).topLeft() - QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
  for (const QRectF& place : marks_) painter.fillRect(scaled(place).translated(origin), kMark);
}

void PdfPages::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();  // the pane zooms
  QPdfView::wheelEvent(event);
}

PdfView::PdfView(const QByteArray& pdf, QWidget* parent) : DocumentView(parent), pages_(new PdfPages(this)) {
  bytes_.setData(pdf);
  bytes_.open(QIODevice::ReadOnly);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(pages_);
  setFocusProxy(pages_);
  document_.load(&bytes_);
  pages_->setDocument(&document_);
}

bool PdfView::isReadable() const { return document_.status() == QPdfDocument::Status::Ready; }

QString PdfView::text() {
  QString all;
  for (int page = 0; page < document_.pageCount(); ++page) all += document_.getAllText(page).text() + u'\n';
  return all;
}

void PdfView::search(const QString& text) {
  searched_ = text;
  current_ = -1;
  found_.clear();
  if (text.isEmpty()) return;
  const Quiet quiet;
  QPdfSearchModel model;
  model.setDocument(&document_);
  model.setSearchString(text);
  for (int page = 0; page < document_.pageCount(); ++page)
    for (const QPdfLink& link : model.resultsOnPage(page)) found_ << Place{page, link.rectangles()};
}

bool PdfView::find(const QString& text, bool backward) {
  if (text != searched_) search(text);
  if (found_.isEmpty()) {
    pages_->mark(0, {});
    return false;
  }
  const qsizetype last = found_.size() - 1;
  if (backward)
    current_ = current_ <= 0 ? last : current_ - 1;
  else
    current_ = current_ == last ? 0 : current_ + 1;
  pages_->mark(found_[current_].page, found_[current_].rectangles);
  return true;
}

bool PdfView::paint(QPagedPaintDevice& device) {
  const double dots = device.logicalDpiX() / 72.0;
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  QPainter painter;
  if (!painter.begin(&device)) return false;
  for (int page = 0; page < document_.pageCount(); ++page) {
    if (page > 0 && !device.newPage()) return false;
    const double scale = std::min(dots, largestScale(document_, page));
    const QSize size = (document_.pagePointSize(page) * scale).toSize();
    QImage paper(size, QImage::Format_RGB32);  // a page has no ground of its own: its edges would print grey
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, document_.render(page, size));
    painter.drawImage(QRectF({}, document_.pagePointSize(page) * dots), paper);
  }
  return painter.end();
}

bool PdfView::writePdf(const QString& file) {
  QFile copy(file);
  return copy.open(QIODevice::WriteOnly) && copy.write(bytes_.data()) == bytes_.size();
}

void PdfView::setZoom(double factor) {
  fit_ = false;
  applyZoom(factor);
}

void PdfView::fitWidth() {
  fit_ = true;
  applyZoom(std::clamp(pages_->fittingZoom(), kSmallestFit, kLargestZoom));
}

void PdfView::resizeEvent(QResizeEvent* event) {
  DocumentView::resizeEvent(event);
  if (fit_ && document_.pageCount() > 0) fitWidth();
}

void PdfView::applyZoom(double factor) {
  const double zoom = std::min(factor, pages_->largestZoom());
  pages_->setZoomFactor(zoom);
  Q_EMIT zoomChanged(zoom);
}

DocumentView* makePdfView(const QByteArray& pdf, const QString&, QWidget* parent) {
  if (!canBeDrawn(pdf)) return nullptr;
  auto view = std::make_unique<PdfView>(pdf, parent);
  return view->isReadable() ? view.release() : nullptr;
}

}  // namespace web
