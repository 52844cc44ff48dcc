#include "platform/web/drive_scheme.h"

#include <QFile>
#include <QMimeDatabase>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestJob>

#include "platform/files/paths.h"

namespace web {

bool isDrivePath(const QUrl& url) {
  const QString scheme = url.scheme();
  return scheme.size() == 1 && scheme[0] >= QLatin1Char(kFirstDrive) &&
         scheme[0] <= QLatin1Char(kLastDrive) && !drivePath(url).contains(QChar(u'\0'));
}

QString drivePath(const QUrl& url) {
  return QString::fromUtf8(QByteArray::fromPercentEncoding(url.toEncoded()));
}

DriveFiles::DriveFiles(QWebEngineProfile* profile) : QWebEngineUrlSchemeHandler(profile) {
  for (char letter = kFirstDrive; letter <= kLastDrive; ++letter)
    profile->installUrlSchemeHandler(QByteArray(1, letter), this);
}

void DriveFiles::requestStarted(QWebEngineUrlRequestJob* job) {
  if (!isDrivePath(job->requestUrl())) return job->fail(QWebEngineUrlRequestJob::UrlInvalid);
  const QString path = files::resolve(drivePath(job->requestUrl()));
  auto* file = new QFile(path, job);
  if (!file->open(QIODevice::ReadOnly)) {
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    return;
  }
  job->reply(QMimeDatabase().mimeTypeForFile(path).name().toUtf8(), file);
}

}  // namespace web
