#include "sample/rows.h"

#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace sample {
namespace {

const QStringList kFiles{u"company"_s,   u"lists"_s,      u"parties"_s, u"products"_s,
                         u"materials"_s, u"prototypes"_s, u"quotes"_s,  u"orders"_s};

std::vector<Rows> read(const QString& file) {
  QFile source(u":/sample/rows/%1.txt"_s.arg(file));
  if (!source.open(QIODevice::ReadOnly)) throw std::logic_error("no such rows: " + file.toStdString());
  std::vector<Rows> found;
  for (const QString& line : QString::fromUtf8(source.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
    if (line.startsWith(u'[')) {
      found.push_back({line.sliced(1, line.size() - 2), {}, {}});
      continue;
    }
    Rows& table = found.back();
    const QStringList fields = line.split(u'|');
    if (table.columns.isEmpty()) {
      table.columns = fields;
    } else if (fields.size() == table.columns.size()) {
      table.rows.push_back(fields);
    } else {
      throw std::logic_error("fields do not match the columns: " + line.toStdString());
    }
  }
  return found;
}

}  // namespace

const QString& Rows::at(std::size_t row, QStringView column) const {
  const qsizetype place = columns.indexOf(column);
  if (place < 0) throw std::logic_error("no column " + column.toString().toStdString());
  return rows.at(row).at(place);
}

std::vector<Rows> tables() {
  std::vector<Rows> all;
  for (const QString& file : kFiles)
    for (Rows& table : read(file)) all.push_back(std::move(table));
  return all;
}

Rows pictures() { return read(u"pictures"_s).front(); }

}  // namespace sample
