#include "platform/forms/measures.h"

#include <QFileInfo>
#include <QSettings>
#include <memory>

using namespace Qt::StringLiterals;

namespace forms::measures {

namespace {

std::unique_ptr<QSettings> settings;

}  // namespace

void keepIn(const QString& file) {
  const QFileInfo info(file);
  const bool usable = info.isFile() || (!file.isEmpty() && !info.exists());  // a pipe would be waited for
  settings = usable ? std::make_unique<QSettings>(file, QSettings::IniFormat) : nullptr;
}

std::optional<Window> window(const QString& form) {
  if (!settings) return std::nullopt;
  const QSize size = settings->value(form + u"/size"_s).toSize();
  if (!size.isValid() || size.isEmpty()) return std::nullopt;
  return Window{size, settings->value(form + u"/maximised"_s).toBool()};
}

void keep(const QString& form, const Window& window) {
  if (!settings) return;
  settings->setValue(form + u"/size"_s, window.size);
  settings->setValue(form + u"/maximised"_s, window.maximised);
  settings->sync();
}

QHash<int, int> columns(const QString& form, const QString& grid) {
  QHash<int, int> widths;
  if (!settings) return widths;
  settings->beginGroup(form + u'/' + grid);
  for (const QString& key : settings->childKeys()) {
    const int width = settings->value(key).toInt();
    if (width > 0) widths.insert(key.toInt(), width);
  }
  settings->endGroup();
  return widths;
}

void keepColumn(const QString& form, const QString& grid, int column, int width) {
  if (settings) settings->setValue(form + u'/' + grid + u'/' + QString::number(column), width);
}

}  // namespace forms::measures
