#include "platform/web/waiting.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace web {

namespace {

/// Holds back what would close a window; its pane would go away from under the waiting routine.
class ClosesLater : public QObject {
 public:
  ClosesLater() { qApp->installEventFilter(this); }
  ~ClosesLater() override {
    qApp->removeEventFilter(this);
    for (const QPointer<QWindow>& window : std::as_const(asked_))
      if (!window.isNull()) QTimer::singleShot(0, window, [window] { closeOnTop(window); });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Close) return false;
    auto* window = qobject_cast<QWindow*>(watched);
    if (window == nullptr) return false;
    if (!asked_.contains(window)) asked_.append(window);
    event->ignore();
    return true;
  }

 private:
  /// Not under a box that has come up meanwhile.
  static void closeOnTop(QWindow* window) {
    const QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr || top->windowHandle() == window) window->close();
  }

  QList<QPointer<QWindow>> asked_;
};

}  // namespace

void waitIn(QEventLoop& loop, int milliseconds) {
  const ClosesLater closes;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace web
