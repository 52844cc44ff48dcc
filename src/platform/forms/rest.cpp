#include "platform/forms/rest.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <utility>

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"

namespace forms {

namespace {

/// Longest time that a user's input waits for the observer, in milliseconds.
constexpr int kInputRest = 500;

int handlersAtWork = 0;

QPointer<QWidget> beingLeft;

/// Each handler that waits for a modal form waits in its loop as long as the form is shown.
int modalFormsShown() {
  const QList<Form*> shown = registry::shown();
  return static_cast<int>(std::ranges::count_if(shown, [](const Form* form) { return form->isModal(); }));
}

const QList<QEvent::Type> kInput{QEvent::KeyPress, QEvent::MouseButtonRelease, QEvent::InputMethod,
                                 QEvent::Drop};

/// Sees the input of all windows, lists that drop down and menus among them.
class Watch : public QObject {
 public:
  explicit Watch(std::function<void()> observer) : observer_(std::move(observer)) {
    timer_.setSingleShot(true);
    timer_.setInterval(kInputRest);
    timer_.callOnTimeout(this, [this] { observe(); });
    qApp->installEventFilter(this);
  }

  void observe() {
    if (handlersAtWork > modalFormsShown() || boxesWaiting() > 0) return;
    timer_.stop();
    observer_();
  }
  void observeInput() {
    if (timer_.isActive()) observe();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (kInput.contains(event->type()) && !timer_.isActive()) timer_.start();
    return false;
  }

 private:
  std::function<void()> observer_;
  QTimer timer_;
};

std::unique_ptr<Watch> watch;

}  // namespace

void setRestObserver(std::function<void()> observer) {
  watch = observer ? std::make_unique<Watch>(std::move(observer)) : nullptr;
}

void handle(const std::function<void()>& handler, const QString& where, QWidget* left) {
  const QPointer<QWidget> before = std::exchange(beingLeft, left);
  // What was typed before a handler that fails is not lost with it.
  if (watch) watch->observeInput();
  ++handlersAtWork;
  const bool done = guarded(handler, where);
  --handlersAtWork;
  beingLeft = before;
  if (done && watch) watch->observe();
}

QWidget* controlBeingLeft() { return beingLeft; }

}  // namespace forms
