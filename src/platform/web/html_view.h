#pragma once

#include <QTimer>

#include "platform/web/document_view.h"
#include "platform/web/page.h"

class QWebEngineView;

namespace web {

/// Shows a document's HTML in the browser engine. A picture that doesn't come holds nothing up.
class HtmlView : public DocumentView {
  Q_OBJECT

 public:
  HtmlView(const QByteArray& html, const QString& folder, const PictureFolders& folders, QWidget* parent);
  ~HtmlView() override;

  void open();

  [[nodiscard]] QString text() override;
  bool find(const QString& text, bool backward) override;
  bool writePdf(const QString& file) override;
  [[nodiscard]] QStringList missingPictures() override;
  void setZoom(double factor) override;
  void fitWidth() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// Nothing has come for a while: looks which pictures keep the page waiting.
  void missPictures();
  void openWithout(const QList<QUrl>& pictures);
  void stand(bool ok);
  void applyZoom(double factor);
  void shrinkToWidth();

  QByteArray html_;
  QString folder_;
  PictureFolders folders_;
  QList<QUrl> leftOut_;  ///< pictures of the web that no server gives
  QWebEngineView* view_ = nullptr;
  Page* page_ = nullptr;
  QTimer patience_;  ///< with pictures of the web
  QTimer settled_;   ///< the engine reports a new size in steps, some of them late
  double zoom_ = 1.0;
  double measured_ = 0;  ///< width of the content at which it was shrunk last
  bool fit_ = false;
  bool stands_ = false;
};

}  // namespace web
