#include "platform/web/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QNetworkReply>
#include <QPainter>
#include <QTextFormat>
#include <algorithm>
#include <memory>
#include <utility>

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 5'000;           // milliseconds for a picture of the web
constexpr qint64 kLargestFile = 16 << 20;  // bytes of a picture of the web
constexpr qsizetype kKept = 64 << 10;      // kilobytes of pictures as they are drawn
constexpr QSize kPlace(24, 24);            // of a picture that isn't there

}  // namespace

Pictures::Pictures(const QStringList& addresses, const QString& folder, PictureFolders folders,
                   QObject* parent)
    : QObject(parent), pictures_(addresses.size()), images_(kKept) {
  for (int number = 0; number < addresses.size(); ++number) {
    Picture& one = pictures_[number];
    const QUrl address = addressOf(addresses[number], folder);
    if (isWeb(address)) {
      one.web = address;
      ask(number);
    } else {
      one.file = folders.pictureOf(address);
      if (!one.file.isEmpty()) one.size = QImageReader(one.file).size();
    }
  }
}

void Pictures::ask(int number) {
  const QUrl address = pictures_[number].web;
  if (asked_.contains(address)) return;
  asked_.insert(address, number);
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
  connect(reply, &QNetworkReply::finished, this, [this, reply, number] {
    if (reply->error() == QNetworkReply::NoError) take(number, reply->readAll());
    reply->deleteLater();
    if (--open_ == 0) Q_EMIT complete();
  });
}

void Pictures::take(int number, const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  const QSize size = QImageReader(&buffer).size();
  for (Picture& one : pictures_)
    if (one.web == pictures_[number].web) {
      one.bytes = bytes;
      one.size = size;
    }
}

QStringList Pictures::missing() const {
  QStringList missing;
  for (const Picture& one : pictures_) {
    const QString address = one.web.toDisplayString();
    if (!address.isEmpty() && one.size.isEmpty() && !missing.contains(address)) missing << address;
  }
  return missing;
}

const Pictures::Picture* Pictures::pictureOf(const QTextFormat& format) const {
  const int number = format.toImageFormat().name().toInt();
  return number >= 0 && number < pictures_.size() ? &pictures_[number] : nullptr;
}

QImage Pictures::imageOf(const Picture& picture) {
  if (const QImage* kept = images_.object(&picture)) return *kept;
  QBuffer buffer;
  buffer.setData(picture.bytes);
  const auto reader = picture.file.isEmpty() ? std::make_unique<QImageReader>(&buffer)
                                             : std::make_unique<QImageReader>(picture.file);
  const QImage image = reader->read();
  images_.insert(&picture, new QImage(image), image.sizeInBytes() >> 10);
  return image;
}

QSizeF Pictures::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
  const Picture* picture = pictureOf(format);
  QSizeF size = picture == nullptr || picture->size.isEmpty() ? kPlace : picture->size;
  const QTextImageFormat written = format.toImageFormat();
  const double width = written.width(), height = written.height();
  if (width > 0 && height > 0) return {width, height};
  if (width > 0) return size * (width / size.width());
  return height > 0 ? size * (height / size.height()) : size;
}

void Pictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                          const QTextFormat& format) {
  const Picture* picture = pictureOf(format);
  const QImage image = picture == nullptr || picture->size.isEmpty() ? QImage() : imageOf(*picture);
  if (image.isNull()) {
    painter->setPen(Qt::lightGray);
    return painter->drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
  }
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->drawImage(place, image);
}

}  // namespace web
