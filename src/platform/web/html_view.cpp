#include "platform/web/html_view.h"

#include <QPointer>
#include <QVBoxLayout>
#include <QWebEngineFindTextResult>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <algorithm>
#include <memory>
#include <utility>

#include "platform/web/picture_check.h"
#include "platform/web/waiting.h"
#include "platform/web/web_pane.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {
constexpr int kPicturePatience = 5'000;  // milliseconds without any progress
constexpr int kPictureLimit = 20'000;    // milliseconds
constexpr int kSettling = 100;           // milliseconds
constexpr int kAfterZoom = 500;          // milliseconds; what comes sooner is of the zoom before
constexpr int kScrollBar = 15;           // pixels that the engine's own takes
// What stands for Verdana and Tahoma, and for any other font that the machine lacks.
constexpr char16_t kPlainFont[] = u"DejaVu Sans";
}  // namespace

HtmlView::HtmlView(const QByteArray& html, const QString& folder, const PictureFolders& folders,
                   QWidget* parent)
    : DocumentView(parent), html_(html), folder_(folder), folders_(folders) {
  prepare();
  view_ = new QWebEngineView(this);
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  view_->setAcceptDrops(false);  // a file dropped here would be shown in the document's place
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(view_);
  setFocusProxy(view_);
  settled_.setSingleShot(true);
  settled_.setInterval(kSettling);
  patience_.setSingleShot(true);
  patience_.setInterval(kPicturePatience);
  connect(&settled_, &QTimer::timeout, this, &HtmlView::shrinkToWidth);
  connect(&patience_, &QTimer::timeout, this, &HtmlView::missPictures);
}

HtmlView::~HtmlView() = default;

void HtmlView::open() {
  Page* before = std::exchange(page_, new Page(html_, folder_, folders_, leftOut_, view_));
  view_->setPage(page_);
  delete before;
  for (const auto family : {QWebEngineSettings::StandardFont, QWebEngineSettings::SansSerifFont})
    page_->settings()->setFontFamily(family, QString::fromUtf16(kPlainFont));
  connect(page_, &QWebEnginePage::contentsSizeChanged, &settled_, qOverload<>(&QTimer::start));
  connect(page_, &QWebEnginePage::loadProgress, &patience_, qOverload<>(&QTimer::start));
  connect(page_, &QWebEnginePage::loadFinished, this, &HtmlView::stand);
  connect(page_, &QWebEnginePage::renderProcessTerminated, this, [this] { stand(false); });
  // Pictures that come without end, or ever so slowly, aren't waited for either.
  QTimer::singleShot(kPictureLimit, page_, [this] {
    if (!stands_ && leftOut_.isEmpty() && !page_->requests().webPictures().isEmpty())
      openWithout(page_->requests().webPictures());
  });
  patience_.start();
  page_->show();
}

void HtmlView::missPictures() {
  const QList<QUrl> asked = page_->requests().webPictures();
  // Without a picture of the web it is the document itself that takes long.
  if (asked.isEmpty()) return patience_.start();
  // Who still keeps it waiting the second time does without all of them.
  if (!leftOut_.isEmpty()) return openWithout(asked);
  auto* check = new PictureCheck(asked, this);
  connect(check, &PictureCheck::done, this, [this, check](const QList<QUrl>& missing) {
    check->deleteLater();
    if (stands_) return;
    if (missing.isEmpty()) return patience_.start();
    openWithout(missing);
  });
}

void HtmlView::openWithout(const QList<QUrl>& pictures) {
  leftOut_ = pictures;
  open();
}

void HtmlView::stand(bool ok) {
  disconnect(page_, nullptr, &patience_, nullptr);
  patience_.stop();
  settled_.start();
  if (!std::exchange(stands_, true)) Q_EMIT stands(ok);
}

QString HtmlView::text() {
  QEventLoop loop;
  auto text = std::make_shared<QString>();
  page_->toPlainText([text, waiting = QPointer<QEventLoop>(&loop)](const QString& shown) {
    *text = shown;
    if (waiting) waiting->quit();
  });
  waitIn(loop);
  return *text;
}

bool HtmlView::find(const QString& text, bool backward) {
  QEventLoop loop;
  auto found = std::make_shared<bool>(false);
  const auto flags = backward ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags{};
  page_->findText(text, flags,
                  [found, waiting = QPointer<QEventLoop>(&loop)](const QWebEngineFindTextResult& result) {
                    *found = result.numberOfMatches() > 0;
                    if (waiting) waiting->quit();
                  });
  if (text.isEmpty()) return false;  // the engine doesn't answer when a mark is taken away
  waitIn(loop);
  return *found;
}

bool HtmlView::writePdf(const QString& file) {
  QEventLoop loop;
  bool written = false;
  const auto done =
      connect(page_, &QWebEnginePage::pdfPrintingFinished, &loop, [&](const QString&, bool success) {
        written = success;
        loop.quit();
      });
  page_->printToPdf(file, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                      QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter));
  waitIn(loop);
  disconnect(done);
  return written;
}

QStringList HtmlView::missingPictures() {
  QList<QUrl> missing = leftOut_;
  if (missing.isEmpty() && !page_->requests().webPictures().isEmpty()) {
    QEventLoop loop;
    PictureCheck check(page_->requests().webPictures(), nullptr);
    connect(&check, &PictureCheck::done, &loop, [&](const QList<QUrl>& found) {
      missing = found;
      loop.quit();
    });
    waitIn(loop);
  }
  QStringList addresses;
  for (const QUrl& one : std::as_const(missing)) addresses << one.toDisplayString();
  return addresses;
}

void HtmlView::setZoom(double factor) {
  fit_ = false;
  applyZoom(factor);
}

void HtmlView::fitWidth() {
  fit_ = true;
  measured_ = 0;
  settled_.setInterval(kSettling);
  applyZoom(1.0);
  settled_.start();
}

void HtmlView::resizeEvent(QResizeEvent* event) {
  DocumentView::resizeEvent(event);
  if (fit_) fitWidth();
}

void HtmlView::applyZoom(double factor) {
  zoom_ = factor;
  view_->setZoomFactor(zoom_);
  Q_EMIT zoomChanged(zoom_);
}

void HtmlView::shrinkToWidth() {
  if (!fit_ || !stands_ || !view_->isVisible()) return;
  const QSizeF page = page_->contentsSize() / devicePixelRatioF();  // the engine counts the display's own
  const int scrollBar = page.height() > view_->height() ? kScrollBar : 0;
  const double excess = page.width() / (view_->width() - scrollBar);
  if (excess < 1.005 || zoom_ <= kSmallestFit || page.width() == measured_) return;
  measured_ = page.width();
  settled_.setInterval(kAfterZoom);
  applyZoom(std::max(kSmallestFit, zoom_ / excess));
}

}  // namespace web
