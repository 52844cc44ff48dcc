#include "platform/values/spreadsheet.h"

using namespace Qt::StringLiterals;

namespace values {

namespace {

/// A cell that begins as a formula does gets an apostrophe in front, so that no spreadsheet runs it.
QString harmless(const QString& cell) {
  return !cell.isEmpty() && QStringView(u"=+-@").contains(cell.front()) ? u'\'' + cell : cell;
}

QString csvCell(const QString& cell) {
  const bool plain =
      !cell.contains(u';') && !cell.contains(u'"') && !cell.contains(u'\n') && !cell.contains(u'\r');
  return plain ? cell : u'"' + QString(cell).replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace

QString tabSeparated(const QList<QStringList>& rows) {
  QStringList lines;
  for (QStringList cells : rows) {
    for (QString& cell : cells) cell = harmless(cell);
    lines << cells.join(u'\t');
  }
  return lines.join(u'\n');
}

QByteArray toCsv(const QList<QStringList>& rows) {
  QByteArray text("\xEF\xBB\xBF");
  for (QStringList cells : rows) {
    for (QString& cell : cells) cell = csvCell(harmless(cell));
    text += cells.join(u';').toUtf8() + "\r\n";
  }
  return text;
}

}  // namespace values
