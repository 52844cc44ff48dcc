#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

// Rows of cells in the two forms that spreadsheets take.
namespace values {

/// One row a line, its cells with tabs between them, as the clipboard takes them.
[[nodiscard]] QString tabSeparated(const QList<QStringList>& rows);

/// CSV as spreadsheets of a country with decimal commas open it by a double click: semicolons, CR LF, UTF-8
/// with its mark; a cell with a semicolon, a quote mark or a line end stands in quote marks (RFC 4180).
[[nodiscard]] QByteArray toCsv(const QList<QStringList>& rows);

}  // namespace values
