#pragma once

#include <QString>

#include "platform/web/web_pane.h"

namespace web {

/// Name of the system's default printer; empty where there is none.
[[nodiscard]] QString defaultPrinter();

/// Hands a PDF file to the printing system as a job of that name, without a dialog and without a word on the
/// terminal: by the command `lp` where there is one, as vectors, else drawn page by page.
[[nodiscard]] Printed printPdf(const QString& file, const QString& printer, const QString& job);

}  // namespace web
