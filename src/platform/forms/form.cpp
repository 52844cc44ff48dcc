#include "platform/forms/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QThread>
#include <QToolButton>
#include <QWindow>

#include "platform/forms/boxes.h"
#include "platform/forms/form_private.h"
#include "platform/forms/process.h"

using namespace Qt::StringLiterals;

namespace forms {

Form::Form() : d_(std::make_unique<Private>(*this)) {
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { d_->noteFocus(now); });
}

Form::~Form() {
  disconnect(qApp, nullptr, this, nullptr);  // what is left of it loses the focus when it hides
  registry::noteHidden(this);
}

void Form::ensureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  d_->prepareControls();
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
  d_->mainWindow = true;
  d_->present();
}

void Form::showModal() {
  const QList<Form*> before = registry::shown();
  const QPointer<Form> caller = before.isEmpty() ? nullptr : before.last();
  ensureLoaded();
  if (!loaded_ || isVisible()) return;  // its load handler may have unloaded it

  setWindowModality(Qt::ApplicationModal);
  winId();
  if (!caller.isNull()) windowHandle()->setTransientParent(caller->windowHandle());
  QEventLoop loop;
  d_->loop = &loop;
  const QPointer<Form> self(this);
  const auto opening = [this, &self] {
    d_->present();
    flushFocusEvents();
    if (self.isNull() || !isVisible()) return false;
    observeModal(*this);
    return !self.isNull() && isVisible();
  };
  const auto closed = [&] {
    if (!self.isNull()) d_->loop = nullptr;
    if (!caller.isNull() && caller->isVisible()) caller->activateWindow();
  };
  try {
    modal::run(loop, opening);
  } catch (const Ended&) {
    if (!self.isNull()) hide();
    closed();
    throw;
  }
  closed();
}

void Form::unload() {
  std::unique_ptr<Form> self = registry::take(this);
  loaded_ = false;
  d_->waiting.clear();
  hide();
  // The last window's end is the program's.
  if (d_->mainWindow && QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(0);
  if (self) self.release()->deleteLater();
}

void Form::closeRequested() { unload(); }

void Form::removeCloseEntry() {
  d_->closable = false;
  // Window managers take a missing button seriously only when all of them are named.
  setWindowFlags(windowType() | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
}

void Form::escClicks(QAbstractButton* button) { d_->escButton = button; }

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  // Under another window or a box it stays, whatever a desktop asks: handlers of it are at work there.
  const QList<Form*> shown = registry::shown();
  if (d_->closable && !shown.isEmpty() && shown.last() == this && boxesWaiting() == 0) d_->close();
}

void Form::Private::close() {
  handle([this] { form.closeRequested(); }, name() + u"_QueryUnload"_s);
}

void Form::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (event->spontaneous()) return;
  d_->shown = false;
  d_->keepMeasures();
  // The next opening starts at the first control again.
  if (QWidget* focused = focusWidget(); focused != nullptr) focused->clearFocus();
  d_->current = nullptr;
  d_->waiting.clear();
  registry::noteHidden(this);
  if (d_->loop != nullptr) d_->loop->exit();
}

void Form::Private::present() {
  prepareControls();
  if (!form.isVisible()) {
    fitScreen();
    takeMeasures();
  }
  registry::noteShown(&form);
  shown = true;
  // The focus is marked whether a key or the program has moved it.
  form.setAttribute(Qt::WA_KeyboardFocusChange);
  form.show();
  form.raise();
  form.activateWindow();
  QWidget* first = form.focusWidget();
  const auto usable = [this](const QWidget* widget) {
    return widget != nullptr && widget != &form && widget->isVisible() && widget->isEnabled();
  };
  if (!usable(first)) {
    form.setFocus(Qt::OtherFocusReason);
    form.focusNextChild();
    first = form.focusWidget();
  }
  noteFocus(first);
}

void Form::Private::prepareControls() {
  form.installEventFilter(&form);
  for (QWidget* control : form.findChildren<QWidget*>()) {
    control->installEventFilter(&form);
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
