#pragma once

#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

class QWebEngineProfile;

namespace web {

// A and B are no fixed drives.
inline constexpr char kFirstDrive = 'c';
inline constexpr char kLastDrive = 'z';

/// Whether an address is a path with a drive letter; one with a NUL names no file and is none.
[[nodiscard]] bool isDrivePath(const QUrl& url);
/// The path that such an address stands for, as the page wrote it.
[[nodiscard]] QString drivePath(const QUrl& url);

/// Answers a page's requests for files named by a path with a drive letter.
class DriveFiles : public QWebEngineUrlSchemeHandler {
  Q_OBJECT

 public:
  explicit DriveFiles(QWebEngineProfile* profile);
  void requestStarted(QWebEngineUrlRequestJob* job) override;
};

}  // namespace web
