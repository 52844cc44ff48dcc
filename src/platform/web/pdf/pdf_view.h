#pragma once

#include <QBuffer>
#include <QPdfDocument>
#include <QPdfView>

#include "platform/web/document_view.h"

namespace web {

/// The pages of a PDF one under the other, with a place marked on them.
class PdfPages : public QPdfView {
  Q_OBJECT

 public:
  explicit PdfPages(QWidget* parent);

  /// Marks rectangles of a page, in points from its top left, and brings the first into sight; none takes the
  /// mark away.
  void mark(int page, const QList<QRectF>& places);
  /// The zoom that shows the widest page whole.
  [[nodiscard]] double fittingZoom() const;
  /// The zoom up to which all pages are pictures that memory holds.
  [[nodiscard]] double largestZoom() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  /// Where a page lies in the scrolled content, in pixels.
  [[nodiscard]] QRect placeOf(int page) const;
  [[nodiscard]] QRect scaled(const QRectF& points) const;

  int markedPage_ = 0;
  QList<QRectF> marks_;
};

/// Shows a PDF.
class PdfView : public DocumentView {
  Q_OBJECT

 public:
  PdfView(const QByteArray& pdf, QWidget* parent);

  /// Whether it can be shown.
  [[nodiscard]] bool isReadable() const;

  [[nodiscard]] QString text() override;
  bool find(const QString& text, bool backward) override;
  bool paint(QPagedPaintDevice& device) override;
  bool writePdf(const QString& file) override;
  void setZoom(double factor) override;
  void fitWidth() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Place {
    int page;
    QList<QRectF> rectangles;
  };
  void applyZoom(double factor);
  void search(const QString& text);

  QBuffer bytes_;  // not the file itself: the next PDF takes its name
  QPdfDocument document_;
  PdfPages* pages_;
  QString searched_;
  QList<Place> found_;
  qsizetype current_ = -1;
  bool fit_ = false;
};

}  // namespace web
