#pragma once

#include <QGraphicsTextItem>
#include <QTextDocument>
#include <memory>

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
  /// Lays the rest out, when there is one: from then on the page can be marked and searched.
  void finish();
  void showPage();

  QTextDocument document_;
  Pictures* pictures_ = nullptr;
  std::unique_ptr<QGraphicsItem> beginning_;  // stands for the page of a long document until all is laid out
  QGraphicsTextItem* page_;
};

}  // namespace web
