#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <QNetworkAccessManager>
#include <QStringList>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QUrl>

namespace web {

/// Folders whose pictures a page may show and link to.
class PictureFolders {
 public:
  PictureFolders() = default;
  /// Paths as the program knows them; addresses of the web and empty texts count for nothing.
  explicit PictureFolders(const QStringList& paths);

  /// Path on this machine of the picture that an address names; empty for any other address, for a file
  /// elsewhere, links followed, and for one that is no picture by its name.
  [[nodiscard]] QString pictureOf(const QUrl& url) const;

 private:
  QStringList folders_;  // as they are on disk, each with its last slash
};

/// What a document's text means by an address: a path with a drive letter, an address, or a path from the
/// document's folder.
[[nodiscard]] QUrl addressOf(const QString& text, const QString& folder);

/// Opens a link in the system's own programs, if it is one of the web, of mail without attachments, or a
/// picture of the picture folders.
void openLink(const QUrl& url, const PictureFolders& folders);

/// The pictures of one document: the only thing of it that is read from anywhere. Those of the picture
/// folders are there at once, those of the web come within a time-out or not at all. One that isn't there
/// keeps its place.
class Pictures : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  /// Of a document that is to be filled: the web is asked as soon as it is, before it is laid out.
  Pictures(QTextDocument& document, const QString& folder, const PictureFolders& folders);

  /// Returns when no picture of the web is on its way. The user's keys and clicks, and the closing of a
  /// window, are kept for afterwards.
  void wait();
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
  void take(const QTextDocument& document, const QString& folder, const PictureFolders& folders);
  void ask(const QString& name, const QUrl& address);
  [[nodiscard]] QImage imageOf(const QString& name);

  QHash<QString, Picture> pictures_;  ///< by what the document calls them
  QCache<QString, QImage> images_;
  QNetworkAccessManager* network_ = nullptr;  ///< where the document has pictures of the web
  int open_ = 0;
};

}  // namespace web
