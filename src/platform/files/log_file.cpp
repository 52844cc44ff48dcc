#include "platform/files/log_file.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include "platform/files/contents.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace files {

namespace {

constexpr qint64 kMost = 1'000'000;  // bytes

QString place;

}  // namespace

void logInto(const QString& path) {
  place = path;
  if (!path.isEmpty()) QDir().mkpath(QFileInfo(path).path());
}

QString logPath() { return place; }

void log(const QString& line) {
  if (place.isEmpty()) return;
  const QString dated = QDateTime::currentDateTime().toString(u"yyyy-MM-dd hh:mm:ss "_s) + u'[' +
                        QString::number(QCoreApplication::applicationPid()) + u"] "_s + line + u'\n';
  try {
    if (QFileInfo(place).size() + dated.toUtf8().size() > kMost) replace(place, place + u".1"_s);
    append(place, dated.toUtf8());
  } catch (const values::RuntimeError&) {
    // What can't be written down must not keep the user from the box.
  }
}

}  // namespace files
