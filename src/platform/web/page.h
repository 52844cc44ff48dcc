#pragma once

#include <QWebEnginePage>

namespace web {

/// A page whose links open in the system's own programs, never in the pane.
class Page : public QWebEnginePage {
  Q_OBJECT

 public:
  explicit Page(QObject* parent);

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
};

}  // namespace web
