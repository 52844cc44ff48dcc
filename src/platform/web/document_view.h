#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>

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

  /// What it shows, once it stands.
  [[nodiscard]] virtual QString text() = 0;
  /// Marks the next place where the text stands and goes there; an empty text takes the mark away.
  virtual bool find(const QString& text, bool backward) = 0;
  /// Writes the document as an A4 file; false where that fails.
  virtual bool writePdf(const QString& file) = 0;
  /// Addresses of pictures that have not come.
  [[nodiscard]] virtual QStringList missingPictures() { return {}; }

  /// A zoom that the user has set, 1.0 is 100 %.
  virtual void setZoom(double factor) = 0;
  /// From here on the zoom follows the width of the pane.
  virtual void fitWidth() = 0;

 Q_SIGNALS:
  /// The document can be read; once for each view.
  void stands(bool ok);
  void zoomChanged(double factor);
};

}  // namespace web
