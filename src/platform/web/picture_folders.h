#pragma once

#include <QStringList>
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

/// Whether an address is one of the web.
[[nodiscard]] bool isWeb(const QUrl& url);

/// What a document's text means by an address: a path with a drive letter, an address, or a path from the
/// document's folder.
[[nodiscard]] QUrl addressOf(const QString& text, const QString& folder);

/// Opens a link in the system's own programs, if it is one of the web, of mail without attachments, or a
/// picture of the picture folders.
void openLink(const QUrl& url, const PictureFolders& folders);

}  // namespace web
