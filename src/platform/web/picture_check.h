#pragma once

#include <QList>
#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

namespace web {

/// Asks the web for pictures and reports within a few seconds which of them no server gives.
class PictureCheck : public QObject {
  Q_OBJECT

 public:
  PictureCheck(const QList<QUrl>& addresses, QObject* parent);

 Q_SIGNALS:
  /// Once, from the event loop.
  void done(const QList<QUrl>& missing);

 private:
  void finish();

  QNetworkAccessManager network_;
  QList<QUrl> missing_;
  qsizetype open_;
  bool finished_ = false;
};

}  // namespace web
