#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/files/paths.h"
#include "platform/web/web_pane.h"

namespace web {

using namespace Qt::StringLiterals;

Printed WebPane::print() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (printer.isNull()) return Printed::NoPrinter;
  const QString spooler = QStandardPaths::findExecutable(u"lp"_s);
  if (spooler.isEmpty()) return Printed::Failed;

  const QTemporaryDir folder;
  QString file = files::resolve(path_);
  // A pane that shows a PDF would print blank: the file itself goes out.
  if (!file.endsWith(u".pdf", Qt::CaseInsensitive)) {
    file = folder.filePath(u"page.pdf"_s);
    if (!printToFile(file)) return Printed::Failed;
  }
  const int status = QProcess::execute(spooler, {u"-d"_s, printer.printerName(), u"--"_s, file});
  return status == 0 ? Printed::Sent : Printed::Failed;
}

}  // namespace web
