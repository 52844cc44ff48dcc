#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <QNetworkAccessManager>
#include <QTextObjectInterface>
#include <QTimer>

#include "platform/web/picture_folders.h"

class QIODevice;

namespace web {

/// The pictures of one document: the only thing of it that is read from anywhere. Those of the picture
/// folders are there at once, those of the web come within a time-out or not at all. One that isn't there
/// keeps its place.
class Pictures : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  /// Addresses as the document writes them; a format's name is the number of one. The web is asked at once.
  Pictures(const QStringList& addresses, const QString& folder, PictureFolders folders, QObject* parent);

  [[nodiscard]] bool isComplete() const { return open_ == 0; }
  /// Addresses of the web whose pictures have not come.
  [[nodiscard]] QStringList missing() const;

  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 Q_SIGNALS:
  /// All have come that will.
  void complete();

 private:
  struct Picture {
    QUrl web;          ///< where it was asked for
    QString file;      ///< where it lies, of a picture folder
    QByteArray bytes;  ///< of the web
    QSize size;        ///< empty where there is no picture
  };
  void ask(int number);
  void take(int number, const QByteArray& bytes);
  [[nodiscard]] const Picture* pictureOf(const QTextFormat& format) const;
  [[nodiscard]] QImage imageOf(const Picture& picture);

  QList<Picture> pictures_;
  QHash<QUrl, int> asked_;  ///< the first picture of an address
  QCache<const Picture*, QImage> images_;
  QNetworkAccessManager* network_ = nullptr;
  qsizetype open_ = 0;
};

}  // namespace web
