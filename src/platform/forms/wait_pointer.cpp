#include "platform/forms/wait_pointer.h"

#include <QApplication>
#include <QEvent>
#include <memory>

namespace forms {

namespace {

int living = 0;

/// Takes the pointer back with the next key or click.
class Awakening : public QObject {
 public:
  Awakening() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (!over_ && (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress)) {
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
  // Deletes itself once it has done its work.
  static_cast<void>(std::make_unique<Awakening>().release());
}

bool WaitPointer::isWorking() { return living > 0; }

}  // namespace forms
