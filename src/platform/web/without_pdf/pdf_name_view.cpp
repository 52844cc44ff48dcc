// Stands for the PDF view where the toolkit was built without one.
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "platform/files/paths.h"
#include "platform/web/document_view.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

/// The file's name and a button that opens it in the system's reader.
class PdfNameView : public DocumentView {
 public:
  PdfNameView(QByteArray pdf, const QString& path, QWidget* parent)
      : DocumentView(1.0, parent), pdf_(std::move(pdf)), file_(files::resolve(path)) {
    auto* open = new QPushButton(u"&Abrir no leitor de PDF"_s, this);
    auto* column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(new QLabel(text(), this), 0, Qt::AlignHCenter);
    column->addWidget(open, 0, Qt::AlignHCenter);
    column->addStretch();
    setFocusProxy(open);
    connect(open, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(file_.absoluteFilePath())); });
  }

  QString text() override { return file_.fileName(); }
  bool find(const QString&, bool) override { return false; }
  bool paint(QPagedPaintDevice&) override { return false; }
  bool writePdf(const QString& file) override {
    QFile copy(file);
    return copy.open(QIODevice::WriteOnly) && copy.write(pdf_) == pdf_.size();
  }

 private:
  QByteArray pdf_;
  QFileInfo file_;
};

}  // namespace

DocumentView* makePdfView(const QByteArray& pdf, const QString& path, QWidget* parent) {
  return new PdfNameView(pdf, path, parent);
}

}  // namespace web
