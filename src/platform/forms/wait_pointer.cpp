#include "platform/forms/wait_pointer.h"

#include <QApplication>
#include <QEvent>
#include <QList>
#include <memory>

namespace forms {

namespace {

int living = 0;

/// Takes the pointer back with the next key or click, and goes; the application's own until then.
class Awakening : public QObject {
 public:
  Awakening() : QObject(qApp) { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    // An access key shows as an override alone.
    static const QList<QEvent::Type> acts{QEvent::KeyPress, QEvent::ShortcutOverride,
                                          QEvent::MouseButtonPress};
    if (!over_ && acts.contains(event->type())) {
      over_ = true;
      QApplication::restoreOverrideCursor();
      deleteLater();
    }
    return false;
  }

 private:
  bool over_ = false;
};

}  // namespace

WaitPointer::WaitPointer() {
  ++living;
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer() {
  --living;
  if (!stays_) QApplication::restoreOverrideCursor();
}

void WaitPointer::stay() {
  if (stays_) return;
  stays_ = true;
  static_cast<void>(std::make_unique<Awakening>().release());
}

bool WaitPointer::isWorking() { return living > 0; }

}  // namespace forms
