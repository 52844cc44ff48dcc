#include "platform/web/web_pane.h"

#include <QFileInfo>
#include <QPrinterInfo>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/markup/rich_text.h"
#include "platform/values/runtime_error.h"
#include "platform/web/find_bar.h"
#include "platform/web/html_view.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kStep = 0.1;

std::optional<QByteArray> contentOf(const QString& path) {
  try {
    return files::readAll(path);
  } catch (const values::RuntimeError&) {
    return {};  // the pane says so
  }
}

}  // namespace

WebPane::WebPane(QWidget* parent) : QWidget(parent), bar_(new FindBar(*this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(&sentence_);
  sentence_.setAlignment(Qt::AlignCenter);
  sentence_.setWordWrap(true);
  sentence_.setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::TabFocus);  // what has none has no place in the order of Tab to give to its view
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
}

void WebPane::navigate(const QString& path, const QString& ifMissing, std::optional<QByteArray> part) {
  path_ = path;
  ifMissing_ = ifMissing;
  part_ = std::move(part);
  pending_ = true;
  if (isVisible()) load();
}

void WebPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (pending_) load();
}

DocumentView* WebPane::view() {
  if (pending_) load();
  return view_;
}

void WebPane::load() {
  pending_ = false;
  setFocusProxy(nullptr);
  delete std::exchange(view_, nullptr);
  if (path_.isEmpty()) return say({});
  const std::optional<QByteArray> content = part_ ? std::exchange(part_, {}) : contentOf(path_);
  if (!content)
    return say(ifMissing_.isEmpty() ? u"O arquivo não foi encontrado:\n%1"_s.arg(path_) : ifMissing_);
  DocumentView* view = viewOf(*content);
  if (view == nullptr) return say(u"O arquivo não pôde ser mostrado:\n%1"_s.arg(path_));
  place(view);
}

DocumentView* WebPane::viewOf(const QByteArray& content) {
  if (path_.endsWith(u".pdf", Qt::CaseInsensitive)) return makePdfView(content, path_, this);
  const auto text = markup::richText(content);
  if (!text) return nullptr;
  const QString folder = QFileInfo(files::resolve(path_)).absolutePath();
  return new HtmlView(*text, folder, PictureFolders(folders_), this);
}

void WebPane::place(DocumentView* view) {
  view_ = view;
  sentence_.hide();
  static_cast<QVBoxLayout*>(layout())->addWidget(view, 1);
  view->show();  // it has its size from here on
  layout()->activate();
  setTabOrder(this, view);  // else it is the window's last, and Tab never leaves it and the tabs
  setFocusProxy(view);
  view->setFoot(foot_);
  connect(view, &DocumentView::zoomChanged, this, [this](double factor) {
    zoom_ = factor;
    Q_EMIT zoomChanged(factor);
  });
  if (fit_)
    view->fitWidth();
  else
    view->setZoom(zoom_);
}

void WebPane::say(const QString& sentence) {
  sentence_.setText(sentence);
  sentence_.show();
}

bool WebPane::stands() { return view() != nullptr || path_.isEmpty(); }

QString WebPane::pageText() { return view() == nullptr ? sentence_.text() : view_->text(); }

void WebPane::setZoom(double factor) {
  fit_ = false;
  zoom_ = std::clamp(factor, kSmallestZoom, kLargestZoom);
  if (view_ != nullptr)
    view_->setZoom(zoom_);
  else
    Q_EMIT zoomChanged(zoom_);
}

void WebPane::zoomIn() { setZoom(zoom_ + kStep); }
void WebPane::zoomOut() { setZoom(zoom_ - kStep); }

void WebPane::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier) || event->angleDelta().y() == 0)
    return QWidget::wheelEvent(event);
  setZoom(zoom_ + (event->angleDelta().y() > 0 ? kStep : -kStep));
}

void WebPane::fitWidth() {
  fit_ = true;
  if (view_ != nullptr) view_->fitWidth();
}

void WebPane::openFind() { bar_->open(); }

bool WebPane::find(const QString& text, bool backward) {
  return view() != nullptr && view_->find(text, backward);
}

bool WebPane::printToFile(const QString& pdfPath) {
  return view() != nullptr && view_->writePdf(files::resolve(pdfPath));
}

QStringList WebPane::missingPictures() {
  return view() != nullptr ? view_->missingPictures() : QStringList();
}

PrintReport WebPane::print() {
  const QString printer = QPrinterInfo::defaultPrinter().printerName();
  if (printer.isEmpty()) return {Printed::NoPrinter, {}};
  if (view() == nullptr) return {Printed::Failed, {}};
  const QString job = QFileInfo(files::resolve(path_)).completeBaseName();
  const Printed result = view_->print(printer, job);
  return {result, missingPictures()};
}

}  // namespace web
