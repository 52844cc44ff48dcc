#include "platform/web/web_pane.h"

#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineFindTextResult>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <algorithm>

#include "platform/files/paths.h"
#include "platform/web/find_bar.h"
#include "platform/web/page.h"
#include "platform/web/waiting.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {
constexpr double kSmallest = 0.3;
constexpr double kLargest = 4.0;
constexpr double kStep = 0.1;
constexpr int kSettling = 100;  // milliseconds
constexpr int kScrollBar = 15;  // pixels that the engine's own takes
// What stands for Verdana and Tahoma, and for any other font that the machine lacks.
constexpr char16_t kPlainFont[] = u"DejaVu Sans";
}  // namespace

bool isPdf(const QString& path) { return path.endsWith(u".pdf", Qt::CaseInsensitive); }

class WebPane::Private {
 public:
  explicit Private(WebPane* pane) : bar(new FindBar(pane)) {}

  FindBar* bar;
  QWebEngineView* view = nullptr;
  double zoom = 1.0;
  bool loading = false;
  bool ok = false;
  bool fit = true;  // nobody has set the zoom
  QTimer settled;   // the engine tells a new size in steps, some of them late
};

WebPane::WebPane(QWidget* parent) : QWidget(parent), d_(std::make_unique<Private>(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(d_->bar);
  column->addStretch();
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);

  connect(d_->bar, &FindBar::searched, this,
          [this](const QString& text, bool backward) { d_->bar->showResult(find(text, backward)); });
  connect(d_->bar, &FindBar::closed, this, [this] {
    find({});
    if (d_->view != nullptr) d_->view->setFocus();
  });
}

WebPane::~WebPane() = default;

void WebPane::makeEngine() {
  prepare();
  d_->view = new QWebEngineView(this);
  d_->view->setPage(new Page(d_->view));
  for (const auto family : {QWebEngineSettings::StandardFont, QWebEngineSettings::SansSerifFont})
    d_->view->settings()->setFontFamily(family, QString::fromUtf16(kPlainFont));
  d_->view->setContextMenuPolicy(Qt::NoContextMenu);
  auto* column = static_cast<QVBoxLayout*>(layout());
  delete column->takeAt(1);
  column->addWidget(d_->view, 1);
  setFocusProxy(d_->view);
  connect(d_->view, &QWebEngineView::loadFinished, this, &WebPane::pageLoaded);
  d_->settled.setSingleShot(true);
  d_->settled.setInterval(kSettling);
  connect(d_->view->page(), &QWebEnginePage::contentsSizeChanged, &d_->settled, qOverload<>(&QTimer::start));
  connect(&d_->settled, &QTimer::timeout, this, &WebPane::shrinkToWidth);
}

void WebPane::navigate(const QString& path) {
  if (d_->view == nullptr) makeEngine();
  path_ = path;
  d_->loading = true;
  QUrl address = path.isEmpty() ? QUrl(u"about:blank"_s) : QUrl::fromLocalFile(files::resolve(path));
  const bool pdf = isPdf(path);
  if (pdf) address.setFragment(u"navpanes=0"_s);  // the page itself gets the width
  d_->view->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, pdf);  // its viewer is a script
  d_->view->load(address);
}

void WebPane::pageLoaded(bool ok) {
  if (!d_->loading) return;  // a link that opened elsewhere
  d_->loading = false;
  d_->ok = ok;
  if (d_->fit)
    fitWidth();
  else
    applyZoom(d_->zoom);
  Q_EMIT loaded(ok);
}

bool WebPane::waitForLoad(int milliseconds) {
  if (!d_->loading) return d_->ok;
  QEventLoop loop;
  connect(this, &WebPane::loaded, &loop, &QEventLoop::quit);
  waitIn(loop, milliseconds);
  return !d_->loading && d_->ok;
}

QString WebPane::pageText() {
  if (d_->view == nullptr || !waitForLoad()) return {};
  QEventLoop loop;
  auto text = std::make_shared<QString>();
  d_->view->page()->toPlainText([text, waiting = QPointer<QEventLoop>(&loop)](const QString& shown) {
    *text = shown;
    if (waiting) waiting->quit();
  });
  waitIn(loop);
  return *text;
}

int WebPane::contentWidth() const {
  return d_->view == nullptr ? 0 : static_cast<int>(d_->view->page()->contentsSize().width());
}

void WebPane::setZoom(double factor) {
  d_->fit = false;
  applyZoom(factor);
}

double WebPane::zoom() const { return d_->zoom; }
void WebPane::zoomIn() { setZoom(d_->zoom + kStep); }
void WebPane::zoomOut() { setZoom(d_->zoom - kStep); }

void WebPane::fitWidth() {
  d_->fit = true;
  applyZoom(1.0);
  d_->settled.start();
}

void WebPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (d_->fit && d_->view != nullptr) fitWidth();
}

void WebPane::applyZoom(double factor) {
  d_->zoom = std::clamp(factor, kSmallest, kLargest);
  if (d_->view != nullptr) d_->view->setZoomFactor(d_->zoom);
  Q_EMIT zoomChanged(d_->zoom);
}

void WebPane::shrinkToWidth() {
  if (!d_->fit || d_->view == nullptr || d_->loading || !d_->view->isVisible()) return;
  const QSizeF page = d_->view->page()->contentsSize();
  const int scrollBar = page.height() > d_->view->height() ? kScrollBar : 0;
  const double excess = page.width() / (d_->view->width() - scrollBar);
  if (excess < 1.005) return;
  applyZoom(d_->zoom / excess);
}

void WebPane::openFind() { d_->bar->open(); }

bool WebPane::find(const QString& text, bool backward) {
  if (d_->view == nullptr || !waitForLoad()) return false;
  QEventLoop loop;
  auto found = std::make_shared<bool>(false);
  const auto flags = backward ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags{};
  d_->view->page()->findText(
      text, flags, [found, waiting = QPointer<QEventLoop>(&loop)](const QWebEngineFindTextResult& result) {
        *found = result.numberOfMatches() > 0;
        if (waiting) waiting->quit();
      });
  if (text.isEmpty()) return false;  // the engine doesn't answer when a mark is taken away
  waitIn(loop);
  return *found;
}

bool WebPane::printToFile(const QString& pdfPath) {
  if (d_->view == nullptr || !waitForLoad()) return false;
  QEventLoop loop;
  bool written = false;
  const auto done = connect(d_->view->page(), &QWebEnginePage::pdfPrintingFinished, &loop,
                            [&](const QString&, bool success) {
                              written = success;
                              loop.quit();
                            });
  d_->view->page()->printToPdf(files::resolve(pdfPath),
                               QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                           QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter));
  waitIn(loop);
  disconnect(done);
  return written;
}

}  // namespace web
