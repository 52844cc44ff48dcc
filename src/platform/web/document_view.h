#pragma once

#include <QByteArray>
#include <QPagedPaintDevice>
#include <QString>
#include <QWidget>
#include <utility>

namespace web {

inline constexpr double kSmallestZoom = 0.3;
inline constexpr double kLargestZoom = 4.0;
/// Below this a document isn't read any more: fitting a wide one stops here, and the pane scrolls sideways.
inline constexpr double kSmallestFit = 0.7;

/// What a pane shows one document with; made for it and dropped with it.
class DocumentView : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

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

  /// A zoom that the user has set, 1.0 is 100 %.
  virtual void setZoom(double factor) = 0;
  /// From here on the zoom follows the width of the pane.
  virtual void fitWidth() = 0;

  /// What stands below the second page on paper and those after it, with the page's number.
  void setFoot(QString foot) { foot_ = std::move(foot); }

 Q_SIGNALS:
  void zoomChanged(double factor);

 protected:
  [[nodiscard]] const QString& foot() const { return foot_; }

 private:
  QString foot_;
};

/// A view of a PDF; nullptr where it can't be shown. `path` is the file that it came from.
[[nodiscard]] DocumentView* makePdfView(const QByteArray& pdf, const QString& path, QWidget* parent);

}  // namespace web
