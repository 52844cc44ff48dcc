#include "documents/documents.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include "documents/document_values.h"
#include "documents/word.h"
#include "harness.h"
#include "measurements.h"
#include "platform/files/contents.h"
#include "rows.h"
#include "run/context.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

const QStringList kCopies{u"c:\\zarim\\documentos\\orca_cliente_000030.html"_s,
                          u"c:\\zarim\\documentos\\orca_empresa_000030.html"_s};

/// Peak resident memory of this process so far, in MB.
double peakMegabytes() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  return 0;
}

void openPrintedQuote() {
  documento().IdDocumento = 30;
  documento().ExibeComposicao = true;
  documento().ExibeMontagem = true;
  documento().rsImpressao = abreConsulta(u"SELECT * FROM prop_cmrc where idprop_cmrc=30"_s);
}

void htmlOf(int lines) {
  Bench company;
  company.fill(quoteRows(30, lines));
  openPrintedQuote();
  const auto removeCopies = [] {
    for (const QString& copy : kCopies) files::removeIfThere(copy);
  };
  QList<QByteArray> written;
  for (const QString& copy : kCopies) {
    MontaOrcaGradeHTML(30, copy);
    written << files::readAll(copy);
  }
  measure(company, {.name = "quote as HTML, both copies",
                    .size = lines,
                    .prepare = removeCopies,
                    .handler =
                        [] {
                          for (const QString& copy : kCopies) MontaOrcaGradeHTML(30, copy);
                        },
                    .runs = lines == 1000 ? 5 : 11,
                    .floorExtra =
                        [&] {
                          for (const QByteArray& bytes : written) {
                            QFile file(company.drive() + u"/zarim/documentos/piso.html"_s);
                            if (file.open(QIODevice::WriteOnly)) file.write(bytes);
                          }
                        }});
}

void wordAndPdf() {
  Bench company;
  company.fill(quoteRows(30, 100));
  openPrintedQuote();
  QImage letterhead(283, 127, QImage::Format_RGB32);
  letterhead.fill(Qt::white);
  letterhead.save(company.drive() + u"/zarim/imagens/logomartatavora283x127.jpg"_s);
  const double before = peakMegabytes();
  std::vector<Times> times;
  for (int run = 0; run < 5; ++run)
    times.push_back(timeOf([] {
      DocumentoWord(u"30"_s, u"c:\\zarim\\documentos\\orca.doc"_s, u"c:\\zarim\\documentos\\orca.pdf"_s);
    }));
  record("quote as Word and PDF", 100, median(times), {});
  char line[120];
  std::snprintf(line, sizeof line, "peak memory with the Word and PDF files: %.1f MB more, from %.1f MB",
                peakMegabytes() - before, before);
  addLine(line);
}

}  // namespace

void documents() {
  wordAndPdf();  // first: the peak of the memory is that of the whole process
  for (const int lines : {10, 100, 1000}) htmlOf(lines);
}

}  // namespace bench
