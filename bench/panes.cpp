#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <algorithm>
#include <cstdio>

#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "harness.h"
#include "measurements.h"
#include "rows.h"
#include "run/context.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int kFirstQuote = 30;

/// What follows a word in a file of /proc; 0 where it isn't there.
double procValue(const QString& path, const QByteArray& word) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n'))
    if (line.startsWith(word)) return line.mid(word.size()).trimmed().split(' ').first().toDouble();
  return 0;
}

/// Proportional memory of a process and all that it started, in MB.
double megabytesOf(qint64 process) {
  double sum = procValue(u"/proc/%1/smaps_rollup"_s.arg(process), "Pss:") / 1024;
  for (const QString& other : QDir(u"/proc"_s).entryList(QDir::Dirs))
    if (procValue(u"/proc/%1/status"_s.arg(other), "PPid:") == static_cast<double>(process))
      sum += megabytesOf(other.toLongLong());
  return sum;
}

/// Shows the viewer until the first copy can be read; milliseconds.
double show(int quote) {
  documento().IdDocumento = quote;
  documento().rsImpressao = abreConsulta(u"SELECT * FROM prop_cmrc where idprop_cmrc=%1"_s.arg(quote));
  QElapsedTimer timer;
  timer.start();
  auto& viewer = forms::form<frmPedHTML>();
  viewer.showForm();
  viewer.WebBrowser1->stands();
  QCoreApplication::processEvents();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

struct Shown {
  double first, second, onePage, bothPages, print;
};

Shown showAsChild(int lines) {
  const QString command =
      QCoreApplication::applicationFilePath() + u" --document "_s + QString::number(lines);
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.startCommand(command);
  process.waitForFinished(600'000);
  const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
  const auto word = [&words](int at) { return words.value(at).toDouble(); };
  return {word(0), word(1), word(2), word(3), word(4)};
}

}  // namespace

int documentAsChild(int lines) {
  Bench company;
  company.fill(quoteRows(kFirstQuote, lines));
  company.fill(quoteRows(kFirstQuote + 1, 12));
  contexto().TelaChamadora = u"frmPropCmrcTL"_s;
  documento().TipoDocumento = u"ORCA_VENDAS"_s;
  company.start();
  const double first = show(kFirstQuote);
  auto& viewer = forms::form<frmPedHTML>();
  const double onePage = megabytesOf(QCoreApplication::applicationPid());
  QElapsedTimer timer;
  timer.start();
  viewer.WebBrowser1->printToFile(company.drive() + u"/impresso.pdf"_s);
  const double print = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  viewer.SSTab1->setCurrentIndex(1);
  viewer.WebBrowser2->stands();
  QCoreApplication::processEvents();
  const double bothPages = megabytesOf(QCoreApplication::applicationPid());
  viewer.unload();
  std::printf("%.1f %.1f %.1f %.1f %.1f\n", first, show(kFirstQuote + 1), onePage, bothPages, print);
  return 0;
}

void showing() {
  for (const int lines : {12, 100, 1000}) {
    std::vector<double> first, second, print;
    Shown shown{};
    for (int run = 0; run < (lines == 1000 ? 3 : 5); ++run) {
      shown = showAsChild(lines);
      first.push_back(shown.first);
      second.push_back(shown.second);
      print.push_back(shown.print);
    }
    record("Imprimir to the first page, first document", lines, {median(first), 0}, {});
    if (lines == 12) record("Imprimir to the first page, second document", lines, {median(second), 0}, {});
    record("first copy to a PDF", lines, {median(print), 0}, {});
    char line[120];
    std::snprintf(line, sizeof line,
                  "memory of all processes, %d lines: %.1f MB with one copy, %.1f MB with both", lines,
                  shown.onePage, shown.bothPages);
    addLine(line);
  }
}

}  // namespace bench
