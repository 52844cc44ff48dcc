#include "platform/web/page.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <algorithm>
#include <utility>

#include "platform/web/page_files.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

Documents& documents() {
  static Documents* const handler = [] {
    QWebEngineProfile* profile = QWebEngineProfile::defaultProfile();
    new DriveFiles(profile);  // both are owned by the profile
    return new Documents(profile);
  }();
  return *handler;
}

/// What stands before the document's own text: the encoding that all documents have, what it may ask for, and
/// that no row is cut in two where a printed page ends.
QByteArray preface(const QString& folder) {
  QByteArray drives;
  for (char letter = kFirstDrive; letter <= kLastDrive; ++letter) drives += QByteArray(1, letter) + ": ";
  const QByteArray base = QUrl::fromLocalFile(folder + u'/').toEncoded().replace('\'', "%27");
  return "<meta charset='windows-1252'><base href='" + base +
         "'><meta http-equiv='Content-Security-Policy' content=\"default-src 'none'; style-src "
         "'unsafe-inline'; "
         "img-src " +
         drives +
         "file: http: https: data:; base-uri 'none'; form-action 'none'\">"
         "<style>@media print { tr, img { break-inside: avoid } }</style>";
}

/// The document with its preface, after the document type where there is one. In front of that may stand
/// plain comments alone: others the engine ends by rules of its own, and the policy would come too late.
QByteArray guarded(const QByteArray& html, const QString& folder) {
  static const QRegularExpression type(uR"(^[ \t\r\n]*(?:<!--[^<>!-]*-->[ \t\r\n]*)*<!DOCTYPE[^>]*>)"_s,
                                       QRegularExpression::CaseInsensitiveOption);
  constexpr qsizetype kHead = 2000;
  const qsizetype place =
      type.match(QString::fromLatin1(html.first(std::min(kHead, html.size())))).capturedEnd();
  return QByteArray(html).insert(std::max(qsizetype{0}, place), preface(folder));
}

/// Whether an address opens a mail without a file of this machine. Mail programs, and what starts them, read
/// an address in ways of their own, so the word for a file stands nowhere in it, however it is encoded.
bool isPlainMail(const QUrl& url) {
  QByteArray plain = url.toEncoded();
  for (QByteArray encoded; encoded != plain;)
    encoded = std::exchange(plain, QByteArray::fromPercentEncoding(plain));
  return url.scheme() == u"mailto" && !plain.toLower().contains("attach");
}

}  // namespace

Page::Page(const QByteArray& html, const QString& folder, const PictureFolders& folders,
           const QList<QUrl>& without, QObject* parent)
    : QWebEnginePage(QWebEngineProfile::defaultProfile(), parent),
      address_(documents().add(guarded(html, folder))),
      folders_(folders),
      filter_(new RequestFilter(address_, folders, without, this)) {
  setUrlRequestInterceptor(filter_);
  QWebEngineSettings* all = settings();
  for (const auto attribute :
       {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::PdfViewerEnabled, QWebEngineSettings::LocalStorageEnabled,
        QWebEngineSettings::HyperlinkAuditingEnabled, QWebEngineSettings::DnsPrefetchEnabled,
        QWebEngineSettings::AutoLoadIconsForPage, QWebEngineSettings::ErrorPageEnabled})
    all->setAttribute(attribute, false);
  connect(this, &QWebEnginePage::newWindowRequested, this,
          [this](const QWebEngineNewWindowRequest& request) { openLink(request.requestedUrl()); });
}

Page::~Page() { documents().drop(address_); }

void Page::show() { load(address_); }

bool Page::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
  if (type == NavigationTypeLinkClicked) {
    openLink(url);
  } else if (isMainFrame && url == address_ && !begun_) {
    begun_ = true;
    return true;
  }
  return false;
}

QStringList Page::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) { return {}; }

void Page::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) {}

void Page::openLink(const QUrl& url) const {
  const QString picture = folders_.pictureOf(url);
  if (!picture.isEmpty())
    QDesktopServices::openUrl(QUrl::fromLocalFile(picture));
  else if (isWeb(url) || isPlainMail(url))
    QDesktopServices::openUrl(url);
}

}  // namespace web
