#pragma once

#include <QByteArray>
#include <QGraphicsView>
#include <QPagedPaintDevice>
#include <QString>
#include <utility>

#include "platform/web/web_pane.h"

namespace web {

inline constexpr double kSmallestZoom = 0.3;
inline constexpr double kLargestZoom = 4.0;

/// What a pane shows one document with; made for it and dropped with it. The document is a scene, laid out
/// once in dots of 96 to an inch; a zoom scales it.
class DocumentView : public QGraphicsView {
  Q_OBJECT

 public:
  /// A document that is narrower than the pane is made larger up to `largestFit` where it fits the width.
  DocumentView(double largestFit, QWidget* parent);

  /// What it shows.
  [[nodiscard]] virtual QString text() = 0;
  /// Marks the next place where the text stands and goes there; an empty text takes the mark away.
  virtual bool find(const QString& text, bool backward) = 0;
  /// Paints the document on A4 pages; false where that fails.
  virtual bool paint(QPagedPaintDevice& device) = 0;
  /// Writes the document as an A4 file with vectors; false where that fails.
  virtual bool writePdf(const QString& file);
  /// Addresses of pictures of the web that have not come.
  [[nodiscard]] virtual QStringList missingPictures() { return {}; }
  [[nodiscard]] virtual QString selection() const { return {}; }

  /// Hands the document to the printing system as a job of that name, without a dialog and without a word on
  /// the terminal: as a PDF file by the command `lp` where there is one, else painted page by page.
  [[nodiscard]] Printed print(const QString& printer, const QString& job);

  /// A zoom that the user has set, 1.0 is 100 %.
  void setZoom(double factor);
  /// From here on the zoom follows the width of the pane.
  void fitWidth();

  /// What stands below the second page on paper and those after it, with the page's number.
  void setFoot(QString foot) { foot_ = std::move(foot); }

 Q_SIGNALS:
  void zoomChanged(double factor);

 protected:
  [[nodiscard]] const QString& foot() const { return foot_; }
  void setDocumentSize(const QSizeF& size);
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void applyZoom(double factor);

  double largestFit_;
  bool fit_ = false;
  QString foot_;
};

/// A view of a PDF; nullptr where it can't be shown. `path` is the file that it came from.
[[nodiscard]] DocumentView* makePdfView(const QByteArray& pdf, const QString& path, QWidget* parent);

}  // namespace web
