#include "platform/web/printing.h"

#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30'000;  // milliseconds

Printed spool(const QString& spooler, DocumentView& view, const QString& printer, const QString& job) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"documento.pdf"_s);
  if (!view.writePdf(file)) return Printed::Failed;
  QProcess process;
  process.start(spooler, {u"-d"_s, printer, u"-t"_s, job, u"--"_s, file});
  if (!process.waitForFinished(kPatience)) return Printed::Refused;
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? Printed::Sent
                                                                                 : Printed::Refused;
}

/// For a printing system that takes no files.
Printed draw(DocumentView& view, const QString& printerName, const QString& job) {
  constexpr int kDotsPerInch = 300;  // more takes seconds and memory where pages are pictures
  QPrinter printer(QPrinterInfo::printerInfo(printerName));
  printer.setResolution(kDotsPerInch);
  printer.setDocName(job);
  printer.setFullPage(true);
  return view.paint(printer) ? Printed::Sent : Printed::Refused;
}

}  // namespace

bool DocumentView::writePdf(const QString& file) {
  QPdfWriter writer(file);
  return paint(writer);
}

QString defaultPrinter() { return QPrinterInfo::defaultPrinter().printerName(); }

Printed print(DocumentView& view, const QString& printer, const QString& job) {
  const QString spooler = QStandardPaths::findExecutable(u"lp"_s);
  return spooler.isEmpty() ? draw(view, printer, job) : spool(spooler, view, printer, job);
}

}  // namespace web
