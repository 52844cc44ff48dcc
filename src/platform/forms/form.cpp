#include "platform/forms/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>
#include <QToolButton>
#include <QWindow>

#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

std::function<void(Form&)> modalObserver;
int modalLoops = 0;

}  // namespace

void setModalObserver(std::function<void(Form&)> observer) { modalObserver = std::move(observer); }

int modalDepth() { return modalLoops; }

Form::Form() {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { noteFocus(now); });
}

Form::~Form() {
  disconnect(qApp, nullptr, this, nullptr);  // what is left of it loses the focus when it hides
  registry::noteHidden(this);
}

void Form::ensureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  prepareControls();
  try {
    Form_Load();
  } catch (const values::Cancelled&) {
    unload();
    throw;
  }
}

void Form::showForm() {
  ensureLoaded();
  if (!isVisible()) setWindowFlags(Qt::Window);
  mainWindow_ = true;
  present();
}

void Form::showModal() {
  const QList<Form*> shown = registry::shown();
  const QPointer<Form> caller = shown.isEmpty() ? nullptr : shown.last();
  ensureLoaded();
  if (!loaded_ || isVisible()) return;  // its load handler may have unloaded it

  setWindowModality(Qt::ApplicationModal);
  winId();
  if (!caller.isNull()) windowHandle()->setTransientParent(caller->windowHandle());
  QEventLoop loop;
  loop_ = &loop;
  ++modalLoops;
  ++interruptions();
  const int before = ends();
  const QPointer<Form> self(this);
  const auto isOpen = [this, &self] { return !self.isNull() && isVisible(); };
  const auto closed = qScopeGuard([this, &self, &caller] {
    --modalLoops;
    if (!self.isNull()) {
      loop_ = nullptr;
      hide();
    }
    if (!caller.isNull() && caller->isVisible()) caller->activateWindow();
  });
  present();
  flushFocusEvents();
  if (isOpen() && modalObserver) modalObserver(*this);
  if (isOpen()) loop.exec();
  if (ends() != before) throw Ended{1};
}

void Form::unload() {
  std::unique_ptr<Form> self = registry::take(*this);
  loaded_ = false;
  waiting_.clear();
  hide();
  // The last window's end is the program's.
  if (mainWindow_ && QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(0);
  if (self) self.release()->deleteLater();
}

void Form::closeRequested() { unload(); }

void Form::removeCloseEntry() {
  closable_ = false;
  // Window managers take a missing button seriously only when all of them are named.
  setWindowFlags(windowType() | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
}

void Form::escClicks(QAbstractButton* button) { escButton_ = button; }

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  // Under another window or a box it stays, whatever a desktop asks: handlers of it are at work there.
  const QList<Form*> shown = registry::shown();
  if (closable_ && !shown.isEmpty() && shown.last() == this && boxesWaiting() == 0) userCloses();
}

void Form::userCloses() {
  handle([this] { closeRequested(); }, objectName() + u"_QueryUnload"_s);
}

void Form::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (event->spontaneous()) return;
  keepMeasures();
  // The next opening starts at the first control again.
  if (QWidget* focused = focusWidget(); focused != nullptr) focused->clearFocus();
  current_ = nullptr;
  waiting_.clear();
  registry::noteHidden(this);
  if (loop_ != nullptr) loop_->exit();
}

void Form::present() {
  prepareControls();
  if (!isVisible()) {
    fitScreen();
    takeMeasures();
  }
  registry::noteShown(this);
  // The focus is marked whether a key or the program has moved it.
  setAttribute(Qt::WA_KeyboardFocusChange);
  show();
  raise();
  activateWindow();
  QWidget* first = focusWidget();
  const auto usable = [this](const QWidget* widget) {
    return widget != nullptr && widget != this && widget->isVisible() && widget->isEnabled();
  };
  if (!usable(first)) {
    setFocus(Qt::OtherFocusReason);
    focusNextChild();
    first = focusWidget();
  }
  noteFocus(first);
}

void Form::prepareControls() {
  installEventFilter(this);
  for (QWidget* control : findChildren<QWidget*>()) {
    control->installEventFilter(this);
    if (auto* push = qobject_cast<QPushButton*>(control)) push->setAutoDefault(false);
    if (auto* label = qobject_cast<QLabel*>(control)) label->setTextFormat(Qt::PlainText);
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
      plain->setTabChangesFocus(true);
      markHiddenLines(plain);
    }
    // The wheel scrolls; it takes no focus and so runs no check.
    if (control->focusPolicy() == Qt::WheelFocus) control->setFocusPolicy(Qt::StrongFocus);
    if (control->focusPolicy() == Qt::ClickFocus) control->setProperty(kOffChain, true);
    // A click on these is a change of control as well.
    if (qobject_cast<QToolButton*>(control) != nullptr && control->focusPolicy() == Qt::TabFocus) {
      control->setFocusPolicy(Qt::StrongFocus);
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(control)) tabs->tabBar()->setFocusPolicy(Qt::StrongFocus);
  }
}

}  // namespace forms
