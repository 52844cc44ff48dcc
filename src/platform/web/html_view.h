#pragma once

#include <QTextDocument>

#include "platform/web/document_view.h"
#include "platform/web/pictures.h"
#include "platform/web/rich_text.h"

class QGraphicsTextItem;
class QGraphicsView;

namespace web {

/// Shows a document. It is laid out once, as wide as paper; a zoom scales it.
class HtmlView : public DocumentView {
  Q_OBJECT

 public:
  HtmlView(const RichText& rich, const QString& folder, const PictureFolders& folders, QWidget* parent);
  ~HtmlView() override;

  [[nodiscard]] QString text() override;
  bool find(const QString& text, bool backward) override;
  bool paint(QPagedPaintDevice& device) override;
  [[nodiscard]] QStringList missingPictures() override;
  void setZoom(double factor) override;
  void fitWidth() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void applyZoom(double factor);
  void copySelection() const;
  void layOut();
  /// Waits until no picture of the web is on its way.
  void waitForPictures();

  PictureFolders folders_;
  Pictures* pictures_ = nullptr;
  QTextDocument document_;
  QGraphicsView* view_ = nullptr;
  QGraphicsTextItem* page_ = nullptr;
  bool fit_ = false;
};

}  // namespace web
