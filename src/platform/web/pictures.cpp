#include "platform/web/pictures.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>
#include <QNetworkReply>
#include <QPainter>
#include <QTextFormat>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 5'000;           // milliseconds for a picture of the web
constexpr qint64 kLargestFile = 16 << 20;  // bytes of a picture of the web
constexpr qsizetype kKept = 64 << 10;      // kilobytes of pictures as they are drawn
constexpr QSize kPlace(24, 24);            // of a picture that isn't there

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

bool isWeb(const QUrl& url) { return url.scheme() == u"http" || url.scheme() == u"https"; }

}  // namespace

QUrl addressOf(const QString& text, const QString& folder) {
  QUrl url(text);
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

Pictures::Pictures(QTextDocument& document, const QString& folder, const PictureFolders& folders)
    : QObject(&document), images_(kKept) {
  document.documentLayout()->registerHandler(QTextFormat::ImageObject, this);
  connect(&document, &QTextDocument::contentsChange, this,
          [this, &document, folder, folders] { take(document, folder, folders); });
}

void Pictures::take(const QTextDocument& document, const QString& folder, const PictureFolders& folders) {
  for (const QTextFormat& format : document.allFormats()) {
    const QString name = format.toImageFormat().name();
    if (!format.isImageFormat() || pictures_.contains(name)) continue;
    Picture& one = pictures_[name];
    const QUrl address = addressOf(name, folder);
    if (isWeb(address)) {
      one.web = address;
      ask(name, address);
    } else {
      one.file = folders.pictureOf(address);
      if (!one.file.isEmpty()) one.size = QImageReader(one.file).size();
    }
  }
}

void Pictures::ask(const QString& name, const QUrl& address) {
  if (network_ == nullptr) network_ = new QNetworkAccessManager(this);
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  QNetworkReply* reply = network_->get(request);
  ++open_;
  QTimer::singleShot(kPatience, reply, &QNetworkReply::abort);
  connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received) {
    if (received > kLargestFile) reply->abort();
  });
  connect(reply, &QNetworkReply::finished, this, [this, reply, name] {
    if (reply->error() == QNetworkReply::NoError) {
      Picture& one = pictures_[name];
      one.bytes = reply->readAll();
      QBuffer buffer(&one.bytes);
      one.size = QImageReader(&buffer).size();
    }
    reply->deleteLater();
    if (--open_ == 0) Q_EMIT complete();
  });
}

void Pictures::wait() {
  if (open_ == 0) return;
  QEventLoop loop;
  connect(this, &Pictures::complete, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

QStringList Pictures::missing() const {
  QStringList missing;
  for (const Picture& one : pictures_)
    if (!one.web.isEmpty() && one.size.isEmpty()) missing << one.web.toDisplayString();
  missing.sort();
  return missing;
}

QImage Pictures::imageOf(const QString& name) {
  if (const QImage* kept = images_.object(name)) return *kept;
  Picture& picture = pictures_[name];
  if (picture.size.isEmpty()) return {};
  QBuffer buffer(&picture.bytes);
  QImage image = picture.file.isEmpty() ? QImageReader(&buffer).read() : QImageReader(picture.file).read();
  images_.insert(name, new QImage(image), image.sizeInBytes() >> 10);
  return image;
}

QSizeF Pictures::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
  const QTextImageFormat written = format.toImageFormat();
  QSizeF size = pictures_.value(written.name()).size;
  if (size.isEmpty()) size = kPlace;
  const double width = written.width(), height = written.height();
  if (width > 0 && height > 0) return {width, height};
  if (width > 0) return size * (width / size.width());
  return height > 0 ? size * (height / size.height()) : size;
}

void Pictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                          const QTextFormat& format) {
  const QImage image = imageOf(format.toImageFormat().name());
  if (image.isNull()) {
    painter->setPen(Qt::lightGray);
    return painter->drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
  }
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->drawImage(place, image);
}

}  // namespace web
