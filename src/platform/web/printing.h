#pragma once

#include <QString>

#include "platform/web/document_view.h"
#include "platform/web/web_pane.h"

namespace web {

/// Name of the system's default printer; empty where there is none.
[[nodiscard]] QString defaultPrinter();

/// Hands a document to the printing system as a job of that name, without a dialog and without a word on the
/// terminal: as a PDF file by the command `lp` where there is one, else painted page by page.
[[nodiscard]] Printed print(DocumentView& view, const QString& printer, const QString& job);

}  // namespace web
