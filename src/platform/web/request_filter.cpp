#include "platform/web/request_filter.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestInfo>
#include <algorithm>
#include <utility>

#include "platform/files/paths.h"
#include "platform/web/page_files.h"

namespace web {

using namespace Qt::StringLiterals;

bool isWeb(const QUrl& url) { return url.scheme() == u"http" || url.scheme() == u"https"; }

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

RequestFilter::RequestFilter(QUrl document, PictureFolders folders, QList<QUrl> without, QObject* parent)
    : QWebEngineUrlRequestInterceptor(parent),
      document_(std::move(document)),
      folders_(std::move(folders)),
      without_(std::move(without)) {}

bool RequestFilter::allows(const QWebEngineUrlRequestInfo& info) {
  const QUrl url = info.requestUrl();
  if (info.requestMethod() != "GET") return false;
  if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) return url == document_;
  if (info.resourceType() != QWebEngineUrlRequestInfo::ResourceTypeImage) return false;
  if (isWeb(url)) {
    if (!webPictures_.contains(url)) webPictures_ << url;
    return !without_.contains(url);
  }
  return url.scheme() == u"data" || !folders_.pictureOf(url).isEmpty();
}

void RequestFilter::interceptRequest(QWebEngineUrlRequestInfo& info) {
  if (!allows(info)) info.block(true);
}

}  // namespace web
