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

QVariant kept(const QString& name) { return settings ? settings->value(name) : QVariant(); }

void keep(const QString& name, const QVariant& value) {
  if (!settings) return;
  settings->setValue(name, value);
  settings->sync();
}

}  // namespace forms::measures
