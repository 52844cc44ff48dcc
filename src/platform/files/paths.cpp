#include "platform/files/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <algorithm>

#include "platform/files/drives.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace files {

namespace {

/// The names in a folder by their folded form. A folder is read again when it has changed, so that a thousand
/// pictures that aren't there don't cost a thousand readings of their folder.
struct Listing {
  QHash<QString, QString> names;
  qint64 changed = 0;
  qint64 readAt = 0;
};

/// A change in the same instant as a reading leaves no trace in the folder's time: such a reading isn't kept.
constexpr qint64 kInstant = 100;  // ms

const QHash<QString, QString>& namesIn(const QString& folder) {
  static QHash<QString, Listing> known;
  const QFileInfo info(folder);
  const qint64 changed = info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0;
  Listing& listing = known[folder];
  if (listing.readAt == 0 || listing.changed != changed || listing.readAt - changed < kInstant) {
    listing.readAt = QDateTime::currentMSecsSinceEpoch();
    listing.changed = changed;
    listing.names.clear();
    const auto entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& entry : entries) listing.names.insert(entry.toCaseFolded(), entry);
  }
  return listing.names;
}

/// Goes down from an existing folder, each part as it is on disk.
QString descend(QString path, const QStringList& parts) {
  for (const QString& part : parts) {
    const QString asked = path + u'/' + part;
    path = QFileInfo::exists(asked) ? asked : path + u'/' + namesIn(path).value(part.toCaseFolded(), part);
  }
  return path;
}

/// The parts of a path below its drive. A ".." never leads above it, as on a drive itself.
QStringList partsBelowDrive(const QString& path) {
  QStringList parts = QDir::cleanPath(path.sliced(2).replace(u'\\', u'/')).split(u'/', Qt::SkipEmptyParts);
  parts.removeAll(u"."_s);
  while (!parts.isEmpty() && parts.first() == u".."_s) parts.removeFirst();
  return parts;
}

/// Whether a path stays in a folder when links are followed. Of a path that isn't there, the part that is; a
/// file can go at any moment, so each part is looked at once. A link to nowhere leads out.
bool staysIn(const QString& folder, const QString& path) {
  const QString home = QFileInfo(folder).canonicalFilePath();
  for (QFileInfo there(path);; there.setFile(there.path())) {
    const QString real = there.canonicalFilePath();
    if (there.filePath() == folder || !real.isEmpty())
      return real == home || real.startsWith(home.endsWith(u'/') ? home : home + u'/');
    if (there.isSymLink()) return false;
  }
}

bool hasDrive(const QString& path) {
  return path.size() >= 2 && path[1] == u':' &&
         ((path[0] >= u'a' && path[0] <= u'z') || (path[0] >= u'A' && path[0] <= u'Z'));
}

/// Whether a path already is one of this machine where these begin with a drive's letter themselves: in the
/// folder that stands for a drive, or among what the program keeps of its user's.
bool isPlaced(const QString& path, const QString& root) {
  if (!hasDrive(root)) return false;
  const auto plain = [](const QString& text) { return QDir::cleanPath(QDir::fromNativeSeparators(text)); };
  const QString asked = plain(path);
  const QStringList folders{plain(root), plain(profileFolder())};
  return std::ranges::any_of(folders, [&asked](const QString& folder) {
    return asked.compare(folder, Qt::CaseInsensitive) == 0 ||
           asked.startsWith(folder + u'/', Qt::CaseInsensitive);
  });
}

/// The folder that stands for a path's drive; empty where none does, or where the path is one of this
/// machine.
QString standInFor(const QString& path) {
  const QString root = hasDrive(path) ? driveFolder(path[0]) : QString();
  return isPlaced(path, root) ? QString() : root;
}

}  // namespace

QString resolve(const QString& path) {
  if (path.contains(QChar(u'\0'))) values::raise(values::kBadFileName);
  const QString root = standInFor(path);
  if (root.isEmpty()) return path;
  const QStringList parts = partsBelowDrive(path);
  const QString asked = parts.isEmpty() ? root : root + u'/' + parts.join(u'/');
  QString found = QFileInfo::exists(asked) ? asked : descend(root, parts);
  if (!staysIn(root, found)) values::raise(values::kPermissionDenied, path);
  return found;
}

QString ofThisMachine(const QString& path) { return standInFor(path).isEmpty() ? path : u"//?/"_s + path; }

bool exists(const QString& path) {
  try {
    const QString found = resolve(path);
    return !found.isEmpty() && QFileInfo(found).isFile();
  } catch (const values::RuntimeError&) {
    return false;
  }
}

}  // namespace files
