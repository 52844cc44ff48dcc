#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWebEngineView>
#include <memory>

#include "platform/files/paths.h"
#include "platform/web/waiting.h"
#include "platform/web/web_pane.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

/// The page as a picture, for a printing system that takes no files.
bool printPicture(QWebEngineView& view, const QPrinterInfo& info) {
  constexpr int kDotsPerInch = 300;  // more takes seconds and memory and shows no better
  const auto printer = std::make_shared<QPrinter>(info);
  printer->setResolution(kDotsPerInch);
  QEventLoop loop;
  const auto printed = std::make_shared<bool>(false);
  // The engine needs the printer until it has finished, even where nobody waits for it any more.
  QObject::connect(
      &view, &QWebEngineView::printFinished, &view,
      [printer, printed, waiting = QPointer<QEventLoop>(&loop)](bool success) {
        *printed = success;
        if (waiting) waiting->quit();
      },
      Qt::SingleShotConnection);
  view.print(printer.get());
  waitIn(loop);
  return *printed;
}

}  // namespace

Printed WebPane::print() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (printer.isNull()) return Printed::NoPrinter;
  auto* view = findChild<QWebEngineView*>();
  if (view == nullptr) return Printed::Failed;
  const QString spooler = QStandardPaths::findExecutable(u"lp"_s);
  // A pane that shows a PDF would print blank: only the file itself can go out.
  if (spooler.isEmpty())
    return !isPdf(path_) && waitForLoad() && printPicture(*view, printer) ? Printed::Sent : Printed::Failed;

  const QTemporaryDir folder;
  QString file = files::resolve(path_);
  if (!isPdf(path_)) {
    file = folder.filePath(u"page.pdf"_s);
    if (!printToFile(file)) return Printed::Failed;
  }
  const int status = QProcess::execute(spooler, {u"-d"_s, printer.printerName(), u"--"_s, file});
  return status == 0 ? Printed::Sent : Printed::Failed;
}

}  // namespace web
