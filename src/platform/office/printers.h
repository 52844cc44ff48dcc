#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/office/word_document.h"

// The printers of the workstation: the system's own and the silent PDF printer, which writes a file without a
// dialog.
namespace office {

inline const QString kPdfPrinter = QStringLiteral("Bullzip PDF Printer");

/// Device names: the system's printers, then the PDF printer.
[[nodiscard]] QStringList printers();

/// The printer that is the default for this program; at the start the system's, empty where there is none.
[[nodiscard]] QString defaultPrinter();
/// An empty name gives the choice back to the system.
void setDefaultPrinter(const QString& deviceName);

/// Settings of the PDF printer: named texts, in force once they are written. It heeds "output" (path of the
/// file) and "ConfirmOverwrite": anything but "no" refuses a file that is there; the others name dialogs that
/// it never has.
class PdfPrinterSettings {
 public:
  void setValue(const QString& name, const QString& value) { values_.append({name, value}); }
  void writeSettings();

 private:
  QList<std::pair<QString, QString>> values_;
};

/// A setting now in force, empty where there is none.
[[nodiscard]] QString pdfPrinterSetting(const QString& name);

/// Prints a document. Raises 482 (printer error) on a device name that is unknown, on a PDF printer without
/// "output", and where the job can't be written; a file that was begun is removed then.
void print(Document& document, const QString& deviceName);

}  // namespace office
