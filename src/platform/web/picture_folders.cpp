#include "platform/web/picture_folders.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMimeDatabase>
#include <algorithm>
#include <utility>

#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

/// A drive's letter stands where an address has its scheme.
bool isDrive(const QString& scheme) { return scheme.size() == 1; }

/// Path of the file on this machine that an address names, a drive's or a "file:" one, as it is on disk with
/// all links followed. Empty for any other address, and where there is no regular file.
QString localFile(const QUrl& url) {
  const QString path = isDrive(url.scheme())
                           ? QString::fromUtf8(QByteArray::fromPercentEncoding(url.toEncoded()))
                           : url.toLocalFile();
  if (path.isEmpty()) return {};
  try {
    const QFileInfo info(files::resolve(path));
    return info.isFile() ? info.canonicalFilePath() : QString();
  } catch (const values::RuntimeError&) {
    return {};  // a name that no file can have
  }
}

/// Whether an address opens a mail without a file of this machine. Mail programs, and what starts them, read
/// an address in ways of their own, so the word for a file stands nowhere in it, however it is encoded.
bool isPlainMail(const QUrl& url) {
  QByteArray plain = url.toEncoded();
  for (QByteArray encoded; encoded != plain;)
    encoded = std::exchange(plain, QByteArray::fromPercentEncoding(plain));
  return url.scheme() == u"mailto" && !plain.toLower().contains("attach");
}

}  // namespace

bool isWeb(const QUrl& url) { return url.scheme() == u"http" || url.scheme() == u"https"; }

QUrl addressOf(const QString& text, const QString& folder) {
  const QUrl url(text);
  if (isDrive(url.scheme())) return url;
  // A share's name has no scheme in front.
  const QUrl address(QString(text).replace(u'\\', u'/'));
  return QUrl::fromLocalFile(folder + u'/').resolved(address);
}

PictureFolders::PictureFolders(const QStringList& paths) {
  for (const QString& path : paths) {
    if (path.isEmpty() || isWeb(QUrl(path))) continue;
    const QString folder = QFileInfo(files::resolve(path)).canonicalFilePath();
    if (!folder.isEmpty()) folders_ << (folder.endsWith(u'/') ? folder : folder + u'/');
  }
}

QString PictureFolders::pictureOf(const QUrl& url) const {
  // Asking for a file of another machine would already give it the user's name.
  const auto onHost = [&url](const QString& folder) {
    return folder.startsWith(u"//"_s + url.host() + u'/');
  };
  if (!url.host().isEmpty() && std::none_of(folders_.begin(), folders_.end(), onHost)) return {};
  const QString file = localFile(url);
  const auto holds = [&file](const QString& folder) { return file.startsWith(folder); };
  if (file.isEmpty() || std::none_of(folders_.begin(), folders_.end(), holds)) return {};
  const QString kind = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name();
  return kind.startsWith(u"image/"_s) ? file : QString();
}

void openLink(const QUrl& url, const PictureFolders& folders) {
  const QString picture = folders.pictureOf(url);
  if (!picture.isEmpty())
    QDesktopServices::openUrl(QUrl::fromLocalFile(picture));
  else if (isWeb(url) || isPlainMail(url))
    QDesktopServices::openUrl(url);
}

}  // namespace web
