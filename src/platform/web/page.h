#pragma once

#include <QWebEnginePage>

#include "platform/web/request_filter.h"

namespace web {

/// The page of one document: it shows that document and goes nowhere else. No script ever runs in it; it asks
/// for pictures alone; a link opens in the system's own programs, if it is one of the web, of mail without
/// attachments, or a picture of the picture folders.
class Page : public QWebEnginePage {
  Q_OBJECT

 public:
  /// A page for a document's bytes, of which `folder` is the place (pictures without a place of their own are
  /// looked for there), without some pictures of the web. Call show() to load it.
  Page(const QByteArray& html, const QString& folder, const PictureFolders& folders,
       const QList<QUrl>& without, QObject* parent);
  ~Page() override;

  void show();
  [[nodiscard]] const RequestFilter& requests() const { return *filter_; }

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
  QStringList chooseFiles(FileSelectionMode mode, const QStringList& oldFiles,
                          const QStringList& acceptedMimeTypes) override;
  /// What the engine refuses goes to no terminal.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                const QString& source) override;

 private:
  void openLink(const QUrl& url) const;

  QUrl address_;
  PictureFolders folders_;
  RequestFilter* filter_;
  bool begun_ = false;
};

}  // namespace web
