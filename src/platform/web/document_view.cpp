#include "platform/web/document_view.h"

#include <QApplication>
#include <QClipboard>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <algorithm>

namespace web {

using namespace Qt::StringLiterals;

namespace {

/// Below this a document isn't read any more: fitting a wide one stops here, and the pane scrolls sideways.
constexpr double kSmallestFit = 0.7;
constexpr double kMargin = 8;      // dots around the document
constexpr int kPatience = 30'000;  // milliseconds for the printing system
constexpr int kDotsPerInch = 300;  // of a printer; more takes seconds and memory where pages are pictures

}  // namespace

DocumentView::DocumentView(double largestFit, QWidget* parent)
    : QGraphicsView(new QGraphicsScene, parent), largestFit_(largestFit) {
  scene()->setParent(this);
  scene()->setItemIndexMethod(QGraphicsScene::NoIndex);
  setFrameShape(NoFrame);
  setBackgroundBrush(Qt::white);
  setAlignment(Qt::AlignTop | Qt::AlignHCenter);
  setTransformationAnchor(NoAnchor);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);
}

void DocumentView::setDocumentSize(const QSizeF& size) {
  setSceneRect(QRectF({}, size).adjusted(-kMargin, -kMargin, kMargin, kMargin));
  if (fit_) fitWidth();
}

void DocumentView::setZoom(double factor) {
  fit_ = false;
  applyZoom(factor);
}

void DocumentView::fitWidth() {
  fit_ = true;
  const QRectF page = sceneRect();
  const QSize room = maximumViewportSize();
  const double whole = room.width() / page.width();
  const bool scrolls = page.height() * std::min(largestFit_, whole) > room.height();
  const int scrollBar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
  applyZoom(std::clamp((room.width() - scrollBar) / page.width(), kSmallestFit, largestFit_));
}

void DocumentView::applyZoom(double factor) {
  const QPointF corner = mapToScene(QPoint(0, 0));
  setTransform(QTransform::fromScale(factor, factor));
  // What stands at the top stays there.
  verticalScrollBar()->setValue(qRound(corner.y() * factor));
  horizontalScrollBar()->setValue(qRound(corner.x() * factor));
  Q_EMIT zoomChanged(factor);
}

void DocumentView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  if (fit_) fitWidth();
}

void DocumentView::keyPressEvent(QKeyEvent* event) {
  // Both with Ctrl or without.
  if (event->key() == Qt::Key_Home) return verticalScrollBar()->setValue(verticalScrollBar()->minimum());
  if (event->key() == Qt::Key_End) return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  if (!event->matches(QKeySequence::Copy)) return QGraphicsView::keyPressEvent(event);
  if (const QString selected = selection(); !selected.isEmpty()) QApplication::clipboard()->setText(selected);
}

void DocumentView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();  // the pane zooms
  QGraphicsView::wheelEvent(event);
}

bool DocumentView::writePdf(const QString& file) {
  QPdfWriter writer(file);
  return paint(writer);
}

Printed DocumentView::print(const QString& printer, const QString& job) {
  const QString spooler = QStandardPaths::findExecutable(u"lp"_s);
  if (spooler.isEmpty()) {
    QPrinter device(QPrinterInfo::printerInfo(printer));
    device.setResolution(kDotsPerInch);
    device.setDocName(job);
    device.setFullPage(true);
    return paint(device) ? Printed::Sent : Printed::Refused;
  }
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"documento.pdf"_s);
  if (!writePdf(file)) return Printed::Failed;
  QProcess process;
  process.start(spooler, {u"-d"_s, printer, u"-t"_s, job, u"--"_s, file});
  const bool taken = process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit &&
                     process.exitCode() == 0;
  return taken ? Printed::Sent : Printed::Refused;
}

}  // namespace web
