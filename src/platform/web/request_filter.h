#pragma once

#include <QStringList>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

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

/// Lets one page ask for itself and for pictures, of the picture folders and of the web; nothing else goes
/// out.
class RequestFilter : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  RequestFilter(QUrl document, PictureFolders folders, QList<QUrl> without, QObject* parent);
  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

  /// Pictures of the web that the page has asked for.
  [[nodiscard]] const QList<QUrl>& webPictures() const { return webPictures_; }

 private:
  [[nodiscard]] bool allows(const QWebEngineUrlRequestInfo& info);

  QUrl document_;
  PictureFolders folders_;
  QList<QUrl> without_;
  QList<QUrl> webPictures_;
};

/// Whether an address is one of the web.
[[nodiscard]] bool isWeb(const QUrl& url);

}  // namespace web
