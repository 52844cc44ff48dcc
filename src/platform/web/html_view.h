#pragma once

#include <QGraphicsTextItem>
#include <QTextDocument>

#include "platform/web/document_view.h"
#include "platform/web/pictures.h"

namespace web {

/// Shows a document of rich text, laid out as wide as paper.
class HtmlView : public DocumentView {
  Q_OBJECT

 public:
  /// `richText` is what markup::richText() gives; the document's pictures lie from its folder on.
  HtmlView(const QString& richText, const QString& folder, const PictureFolders& folders, QWidget* parent);
  ~HtmlView() override;

  [[nodiscard]] QString text() override;
  bool find(const QString& text, bool backward) override;
  bool paint(QPagedPaintDevice& device) override;
  [[nodiscard]] QStringList missingPictures() override;
  [[nodiscard]] QString selection() const override;

 private:
  QTextDocument document_;
  Pictures* pictures_ = nullptr;
  QGraphicsTextItem* page_;
};

}  // namespace web
