#include "search/callers.h"

#include "platform/forms/form.h"

using namespace Qt::StringLiterals;

namespace search {

void deliver(std::span<const Delivery> table, const QString& caller, const forms::GridModel& grid) {
  for (const auto& row : table) {
    if (caller != QStringView(row.caller)) continue;
    const QString cell = grid.text(grid.row(), row.column);
    forms::writeControl(caller, QString::fromUtf16(row.control), row.reading ? row.reading(cell) : cell);
  }
}

QString countText(int count, const QString& one, const QString& many) {
  return QString::number(count) + u' ' + (count == 1 ? one : many);
}

}  // namespace search
