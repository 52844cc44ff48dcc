#include "platform/web/picture_check.h"

#include <QNetworkReply>
#include <QTimer>
#include <utility>

namespace web {

namespace {
constexpr qint64 kLargest = 16 << 20;  // bytes of a picture
constexpr int kPatience = 3'000;       // milliseconds for all of them
}  // namespace

PictureCheck::PictureCheck(const QList<QUrl>& addresses, QObject* parent)
    : QObject(parent), missing_(addresses), open_(addresses.size()) {
  for (const QUrl& address : addresses) {
    QNetworkReply* reply = network_.get(QNetworkRequest(address));
    reply->setReadBufferSize(kLargest);  // one without end never finishes
    connect(reply, &QNetworkReply::finished, this, [this, reply, address] {
      if (reply->error() == QNetworkReply::NoError && !finished_) missing_.removeOne(address);
      if (--open_ == 0) finish();
    });
  }
  QTimer::singleShot(addresses.isEmpty() ? 0 : kPatience, this, &PictureCheck::finish);
}

void PictureCheck::finish() {
  if (!std::exchange(finished_, true)) Q_EMIT done(missing_);
}

}  // namespace web
