#include <QByteArrayList>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QWebEngineUrlScheme>

#include "platform/web/page_files.h"
#include "platform/web/web_pane.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace web {

namespace {

void addEngineFlags() {
  QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
  const auto add = [&flags](const QByteArray& flag) {
    if (!flags.split(' ').contains(flag)) flags += (flags.isEmpty() ? "" : " ") + flag;
  };
  add("--disable-gpu");
  add("--lang=pt-BR");
#ifdef Q_OS_UNIX
  // The engine's sandbox refuses to start for root.
  if (geteuid() == 0) add("--no-sandbox");
#endif
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);
}

}  // namespace

void prepare() {
  static bool done = false;
  if (done) return;
  done = true;
  addEngineFlags();
  // That there is no graphics card is no news worth a page of text.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
  if (QCoreApplication::instance() != nullptr) return;  // too late for the rest
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  // "c:\pictures\x.jpg" reads as an address of scheme "c".
  for (char letter = kFirstDrive; letter <= kLastDrive; ++letter) {
    QWebEngineUrlScheme scheme(QByteArray(1, letter));
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
    scheme.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
  }
  QWebEngineUrlScheme document(kDocumentScheme);
  document.setSyntax(QWebEngineUrlScheme::Syntax::Path);
  document.setFlags(QWebEngineUrlScheme::LocalAccessAllowed);  // its pictures are files
  QWebEngineUrlScheme::registerScheme(document);
}

}  // namespace web
