#include "platform/forms/wait_pointer.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QList>
#include <QLocale>
#include <QPointer>
#include <memory>

#include "platform/data/walk.h"

using namespace Qt::StringLiterals;

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
    if (!acts.contains(event->type())) return false;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    deleteLater();
    return false;
  }
};

QPointer<QLabel> sign;

/// A sign in the middle of the window that says how far the work is. It is painted at once: no event is
/// handled, so that no key or click reaches a screen in the middle of an action.
void showHowFar(qsizetype done, qsizetype of) {
  QWidget* window = QApplication::activeWindow();
  if (of == 0 || !window || (sign && sign->window() != window)) delete sign;
  if (of == 0 || !window) return;
  if (!sign) {
    sign = std::make_unique<QLabel>(window).release();  // the window's
    sign->setFrameShape(QFrame::Box);
    sign->setMargin(16);
    sign->setAutoFillBackground(true);
    sign->setBackgroundRole(QPalette::ToolTipBase);
    sign->setForegroundRole(QPalette::ToolTipText);
  }
  const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
  sign->setText(u"Processando: %1 de %2"_s.arg(brazil.toString(done), brazil.toString(of)));
  sign->adjustSize();
  sign->move(window->rect().center() - sign->rect().center());
  sign->show();
  sign->raise();
  sign->repaint();
}

}  // namespace

WaitPointer::WaitPointer() {
  if (++living == 1) data::Walk::setWatcher(showHowFar);
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer() {
  if (--living == 0) {
    data::Walk::setWatcher(nullptr);
    delete sign;
  }
  if (!stays_) QApplication::restoreOverrideCursor();
}

void WaitPointer::stay() {
  if (stays_) return;
  stays_ = true;
  static_cast<void>(std::make_unique<Awakening>().release());
}

bool WaitPointer::isWorking() { return living > 0; }

}  // namespace forms
