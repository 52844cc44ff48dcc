#pragma once

#include <QHash>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

class QWebEngineProfile;

// What the engine may read: documents that were handed over to it, and files named by a drive letter.
namespace web {

// A and B are no fixed drives.
inline constexpr char kFirstDrive = 'c';
inline constexpr char kLastDrive = 'z';
/// Scheme of the addresses under which the engine gets documents.
inline constexpr char kDocumentScheme[] = "documento";

/// Path of the file on this machine that an address names, a drive's or a "file:" one, as it is on disk with
/// all links followed. Empty for any other address, and where there is no regular file.
[[nodiscard]] QString localFile(const QUrl& url);

/// Answers a page's requests for files named by a path with a drive letter.
class DriveFiles : public QWebEngineUrlSchemeHandler {
  Q_OBJECT

 public:
  explicit DriveFiles(QWebEngineProfile* profile);
  void requestStarted(QWebEngineUrlRequestJob* job) override;
};

/// Hands documents over to the engine, each under an address of its own.
class Documents : public QWebEngineUrlSchemeHandler {
  Q_OBJECT

 public:
  explicit Documents(QWebEngineProfile* profile);

  /// The address under which these bytes of HTML can be loaded until drop().
  [[nodiscard]] QUrl add(const QByteArray& html);
  void drop(const QUrl& address);

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  QHash<QUrl, QByteArray> known_;
  int last_ = 0;
};

}  // namespace web
