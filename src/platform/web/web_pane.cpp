#include "platform/web/web_pane.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <optional>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"
#include "platform/web/document_view.h"
#include "platform/web/find_bar.h"
#include "platform/web/html_view.h"
#include "platform/web/printing.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kStep = 0.1;

bool isPdf(const QString& path) { return path.endsWith(u".pdf", Qt::CaseInsensitive); }

std::optional<QByteArray> contentOf(const QString& path) {
  try {
    if (files::exists(path)) return files::readAll(path);
  } catch (const values::RuntimeError&) {
    // The pane says so.
  }
  return {};
}

}  // namespace

class WebPane::Private {
 public:
  explicit Private(WebPane* pane) : bar(new FindBar(pane)), sentence(new QLabel(pane)) {}

  FindBar* bar;
  QLabel* sentence;  ///< in the document's place
  DocumentView* view = nullptr;
  PictureFolders folders;
  std::optional<QByteArray> part;
  QString foot;
  QString ifMissing;     ///< what stands in the place of a file that isn't there
  bool pending = false;  ///< not loaded yet
  bool ok = false;
  bool fit = true;  ///< nobody has set the zoom
  double zoom = 1.0;
};

WebPane::WebPane(QWidget* parent) : QWidget(parent), d_(std::make_unique<Private>(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(d_->bar);
  column->addWidget(d_->sentence);
  d_->sentence->setAlignment(Qt::AlignCenter);
  d_->sentence->setWordWrap(true);
  d_->sentence->setTextFormat(Qt::PlainText);
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

void WebPane::setPictureFolders(const QStringList& folders) { d_->folders = PictureFolders(folders); }

void WebPane::navigate(const QString& path, const QString& ifMissing) {
  path_ = path;
  d_->ifMissing = ifMissing;
  d_->part.reset();
  d_->pending = true;
  if (isVisible()) load();
}

void WebPane::showPart(const QByteArray& html, const QString& path) {
  path_ = path;
  d_->part = html;
  d_->pending = true;
  if (isVisible()) load();
}

void WebPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (d_->pending) load();
}

DocumentView* WebPane::view() {
  if (d_->pending) load();
  return d_->view;
}

void WebPane::load() {
  d_->pending = false;
  setFocusProxy(nullptr);
  delete std::exchange(d_->view, nullptr);
  if (path_.isEmpty()) return say({}, true);
  const std::optional<QByteArray> content = d_->part ? std::exchange(d_->part, {}) : contentOf(path_);
  if (!content)
    return say(d_->ifMissing.isEmpty() ? u"O arquivo não foi encontrado:\n%1"_s.arg(path_) : d_->ifMissing,
               false);
  DocumentView* view = viewOf(*content);
  if (view == nullptr) return say(u"O arquivo não pôde ser mostrado:\n%1"_s.arg(path_), false);
  place(view);
}

DocumentView* WebPane::viewOf(const QByteArray& content) {
  if (isPdf(path_)) return makePdfView(content, path_, this);
  const auto rich = richText(content);
  if (!rich) return nullptr;
  return new HtmlView(*rich, QFileInfo(files::resolve(path_)).absolutePath(), d_->folders, this);
}

void WebPane::place(DocumentView* view) {
  d_->view = view;
  d_->ok = true;
  d_->sentence->hide();
  static_cast<QVBoxLayout*>(layout())->addWidget(view, 1);
  view->show();  // it has its size from here on
  layout()->activate();
  setFocusProxy(view);
  view->setFoot(d_->foot);
  connect(view, &DocumentView::zoomChanged, this, [this](double factor) {
    d_->zoom = factor;
    Q_EMIT zoomChanged(factor);
  });
  if (d_->fit)
    view->fitWidth();
  else
    view->setZoom(d_->zoom);
}

void WebPane::say(const QString& sentence, bool ok) {
  d_->ok = ok;
  d_->sentence->setText(sentence);
  d_->sentence->show();
}

bool WebPane::stands() {
  view();
  return d_->ok;
}

QString WebPane::pageText() { return view() == nullptr ? d_->sentence->text() : d_->view->text(); }

void WebPane::setFoot(const QString& foot) {
  d_->foot = foot;
  if (d_->view != nullptr) d_->view->setFoot(foot);
}

void WebPane::setZoom(double factor) {
  d_->fit = false;
  d_->zoom = std::clamp(factor, kSmallestZoom, kLargestZoom);
  if (d_->view != nullptr)
    d_->view->setZoom(d_->zoom);
  else
    Q_EMIT zoomChanged(d_->zoom);
}

double WebPane::zoom() const { return d_->zoom; }
void WebPane::zoomIn() { setZoom(d_->zoom + kStep); }
void WebPane::zoomOut() { setZoom(d_->zoom - kStep); }

void WebPane::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier) || event->angleDelta().y() == 0)
    return QWidget::wheelEvent(event);
  setZoom(d_->zoom + (event->angleDelta().y() > 0 ? kStep : -kStep));
}

void WebPane::fitWidth() {
  d_->fit = true;
  if (d_->view != nullptr) d_->view->fitWidth();
}

void WebPane::openFind() { d_->bar->open(); }

bool WebPane::find(const QString& text, bool backward) {
  return view() != nullptr && d_->view->find(text, backward);
}

bool WebPane::printToFile(const QString& pdfPath) {
  return view() != nullptr && d_->view->writePdf(files::resolve(pdfPath));
}

QStringList WebPane::missingPictures() {
  return view() != nullptr ? d_->view->missingPictures() : QStringList();
}

PrintReport WebPane::print() {
  const QString printer = defaultPrinter();
  if (printer.isEmpty()) return {Printed::NoPrinter, {}};
  if (view() == nullptr) return {Printed::Failed, {}};
  const QString job = QFileInfo(files::resolve(path_)).completeBaseName();
  const Printed result = web::print(*d_->view, printer, job);
  return {result, missingPictures()};
}

}  // namespace web
