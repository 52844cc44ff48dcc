#include "platform/web/page.h"

#include <QDesktopServices>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include "platform/files/paths.h"
#include "platform/web/drive_scheme.h"

namespace web {

namespace {

QWebEngineProfile* sharedProfile() {
  QWebEngineProfile* shared = QWebEngineProfile::defaultProfile();
  static const bool prepared = [shared] {
    new DriveFiles(shared);  // owned by the profile
    return true;
  }();
  Q_UNUSED(prepared)
  return shared;
}

void openOutside(const QUrl& url) {
  QDesktopServices::openUrl(isDrivePath(url) ? QUrl::fromLocalFile(files::resolve(drivePath(url))) : url);
}

}  // namespace

Page::Page(QObject* parent) : QWebEnginePage(sharedProfile(), parent) {
  QWebEngineSettings* all = settings();
  // Names and remarks go into the documents as they were typed.
  all->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  all->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
  all->setAttribute(QWebEngineSettings::PluginsEnabled, true);
  all->setAttribute(QWebEngineSettings::PdfViewerEnabled, true);
  connect(this, &QWebEnginePage::newWindowRequested, this,
          [](QWebEngineNewWindowRequest& request) { openOutside(request.requestedUrl()); });
}

bool Page::acceptNavigationRequest(const QUrl& url, NavigationType type, bool) {
  if (type != NavigationTypeLinkClicked) return true;
  openOutside(url);
  return false;
}

}  // namespace web
