#include "platform/web/printing.h"

#include <QImage>
#include <QPainter>
#include <QPdfDocument>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

#include "platform/web/pdf_view.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30'000;  // milliseconds

Printed spool(const QString& spooler, const QString& file, const QString& printer, const QString& job) {
  QProcess process;
  process.start(spooler, {u"-d"_s, printer, u"-t"_s, job, u"--"_s, file});
  if (!process.waitForFinished(kPatience)) return Printed::Refused;
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? Printed::Sent
                                                                                 : Printed::Refused;
}

/// For a printing system that takes no files.
Printed draw(const QString& file, const QString& printerName, const QString& job) {
  constexpr int kDotsPerInch = 300;  // more takes seconds and memory and shows no better
  QPdfDocument document;
  if (document.load(file) != QPdfDocument::Error::None) return Printed::Failed;
  QPrinter printer(QPrinterInfo::printerInfo(printerName));
  printer.setResolution(kDotsPerInch);
  printer.setDocName(job);
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return Printed::Refused;
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0 && !printer.newPage()) return Printed::Refused;
    const double scale = std::min(kDotsPerInch / 72.0, largestScale(document, page));
    const QSize size = (document.pagePointSize(page) * scale).toSize();
    QImage paper(size, QImage::Format_RGB32);  // a page has no ground of its own: its edges would print grey
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, document.render(page, size));
    painter.drawImage(0, 0, paper);
  }
  return painter.end() ? Printed::Sent : Printed::Refused;
}

}  // namespace

QString defaultPrinter() { return QPrinterInfo::defaultPrinter().printerName(); }

Printed printPdf(const QString& file, const QString& printer, const QString& job) {
  const QString spooler = QStandardPaths::findExecutable(u"lp"_s);
  return spooler.isEmpty() ? draw(file, printer, job) : spool(spooler, file, printer, job);
}

}  // namespace web
