#include "platform/web/page_files.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestJob>

#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

bool isDrive(const QString& scheme) {
  return scheme.size() == 1 && scheme[0] >= QLatin1Char(kFirstDrive) && scheme[0] <= QLatin1Char(kLastDrive);
}

/// The path that an address stands for, as the page wrote it.
QString pathOf(const QUrl& url) {
  if (isDrive(url.scheme())) return QString::fromUtf8(QByteArray::fromPercentEncoding(url.toEncoded()));
  return url.toLocalFile();
}

}  // namespace

QString localFile(const QUrl& url) {
  const QString path = pathOf(url);
  if (path.isEmpty()) return {};
  try {
    const QFileInfo info(files::resolve(path));
    return info.isFile() ? info.canonicalFilePath() : QString();
  } catch (const values::RuntimeError&) {
    return {};  // a name that no file can have
  }
}

DriveFiles::DriveFiles(QWebEngineProfile* profile) : QWebEngineUrlSchemeHandler(profile) {
  for (char letter = kFirstDrive; letter <= kLastDrive; ++letter)
    profile->installUrlSchemeHandler(QByteArray(1, letter), this);
}

void DriveFiles::requestStarted(QWebEngineUrlRequestJob* job) {
  const QString path = localFile(job->requestUrl());
  auto* file = new QFile(path, job);
  if (path.isEmpty() || !file->open(QIODevice::ReadOnly))
    return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
  job->reply(QMimeDatabase().mimeTypeForFile(path).name().toUtf8(), file);
}

Documents::Documents(QWebEngineProfile* profile) : QWebEngineUrlSchemeHandler(profile) {
  profile->installUrlSchemeHandler(kDocumentScheme, this);
}

QUrl Documents::add(const QByteArray& html) {
  const QUrl address(QString::fromLatin1(kDocumentScheme) + u':' + QString::number(++last_));
  known_.insert(address, html);
  return address;
}

void Documents::drop(const QUrl& address) { known_.remove(address); }

void Documents::requestStarted(QWebEngineUrlRequestJob* job) {
  const auto found = known_.constFind(job->requestUrl());
  if (found == known_.constEnd()) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
  auto* bytes = new QBuffer(job);
  bytes->setData(*found);
  bytes->open(QIODevice::ReadOnly);
  job->reply("text/html", bytes);
}

}  // namespace web
