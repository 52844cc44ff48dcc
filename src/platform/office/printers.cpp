#include "platform/office/printers.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <optional>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace office {
namespace {

std::optional<QString> chosenDefault;
QList<std::pair<QString, QString>> writtenSettings;

[[noreturn]] void fail(const QString& detail) { values::raise(values::kPrinterError, detail); }

void printToFile(Document& document) {
  const QString output = pdfPrinterSetting(u"output"_s);
  if (output.isEmpty()) fail(u"a impressora de PDF não tem arquivo de saída (output)."_s);
  if (files::exists(output) &&
      pdfPrinterSetting(u"ConfirmOverwrite"_s).compare(u"no"_s, Qt::CaseInsensitive) != 0)
    fail(u"o arquivo já existe: "_s + output);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(document.title);
  if (!paint(document, writer)) fail(output);
  files::write(output, bytes);
}

void printToSystem(Document& document, const QString& deviceName) {
  const QPrinterInfo info = QPrinterInfo::printerInfo(deviceName);
  if (info.isNull()) fail(u"impressora não encontrada ("_s + deviceName + u")."_s);
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setDocName(document.title);
  printer.setFullPage(true);
  if (!paint(document, printer)) fail(deviceName);
}

}  // namespace

QStringList printers() { return QPrinterInfo::availablePrinterNames() << kPdfPrinter; }

QString defaultPrinter() { return chosenDefault ? *chosenDefault : QPrinterInfo::defaultPrinterName(); }

void setDefaultPrinter(const QString& deviceName) {
  chosenDefault = deviceName.isEmpty() ? std::nullopt : std::optional(deviceName);
}

void PdfPrinterSettings::writeSettings() { writtenSettings = values_; }

QString pdfPrinterSetting(const QString& name) {
  for (const auto& [known, value] : writtenSettings)
    if (known.compare(name, Qt::CaseInsensitive) == 0) return value;
  return {};
}

void print(Document& document, const QString& deviceName) {
  if (deviceName == kPdfPrinter)
    printToFile(document);
  else
    printToSystem(document, deviceName);
}

}  // namespace office
