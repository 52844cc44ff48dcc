#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <array>

#include "platform/forms/boxes.h"
#include "platform/forms/form_private.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"

using namespace Qt::StringLiterals;

// Handlers of controls, and the mouse and the keyboard on their way to them.
namespace forms {

namespace {

/// By the order of Event.
constexpr std::array<QStringView, 7> kNames{u"Click",    u"DblClick", u"GotFocus", u"LostFocus",
                                            u"DropDown", u"PushUp",   u"PushDown"};

}  // namespace

void Form::Private::run(QWidget* control, Event event) {
  const Handlers known = handlers.value(control).value(event);
  if (known.empty()) return;
  const QString where =
      name() + u'.' + control->objectName() + u'_' + kNames[static_cast<std::size_t>(event)].toString();
  handle(
      [&known] {
        for (const auto& handler : known) handler();
      },
      where, event == Event::LostFocus ? control : nullptr);
}

void Form::Private::handle(const std::function<void()>& handler, const QString& where, QWidget* left) {
  Work work(left);
  if (guarded(handler, where)) work.done();
}

void Form::on(QWidget* control, Event event, std::function<void()> handler) {
  Private::Handlers& known = d_->handlers[control][event];
  known.push_back(std::move(handler));
  if (known.size() > 1) return;

  const auto raise = [this, control, event] { d_->run(control, event); };
  auto* grid = qobject_cast<FlexGrid*>(control);
  if (event == Event::DoubleClick && grid != nullptr) connect(grid, &FlexGrid::rowDoubleClicked, this, raise);
  if (event == Event::PushUp) connect(grid, &FlexGrid::pushedUp, this, raise);
  if (event == Event::PushDown) connect(grid, &FlexGrid::pushedDown, this, raise);
  if (event == Event::DropDown) connect(qobject_cast<Combo*>(control), &Combo::dropDown, this, raise);
  if (event != Event::Click) return;
  if (grid != nullptr) connect(grid, &FlexGrid::rowClicked, this, raise);
  if (auto* button = qobject_cast<QAbstractButton*>(control)) {
    connect(button, &QAbstractButton::clicked, this, raise);
  }
  if (auto* combo = qobject_cast<QComboBox*>(control)) connect(combo, &QComboBox::activated, this, raise);
  if (auto* tabs = qobject_cast<QTabWidget*>(control))
    connect(tabs, &QTabWidget::currentChanged, this, raise);
}

void Form::onKeyPress(QWidget* control, const std::function<char16_t(char16_t)>& handler) {
  d_->keyFilters.insert(control, handler);
}

void Form::enterMovesOn(std::initializer_list<QWidget*> controls) {
  for (QWidget* control : controls) d_->enterMoves.insert(control);
}

void Form::selectOnFocus(std::initializer_list<QWidget*> controls) {
  for (QWidget* control : controls) d_->selects.insert(control);
}

namespace {

bool isLeft(const QEvent* event) {
  return static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
}

}  // namespace

bool Form::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return d_->mousePressed(widget, static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      // Buttons and grids have signals of their own; this is for labels and the pictures they show.
      if (qobject_cast<QLabel*>(widget) != nullptr && isLeft(event)) d_->run(widget, Event::Click);
      return false;
    case QEvent::ContextMenu: {
      auto* line = qobject_cast<QLineEdit*>(widget);
      return line != nullptr && d_->pasteMenu(line, static_cast<QContextMenuEvent*>(event));
    }
    case QEvent::Wheel:
      if (qobject_cast<QTabBar*>(widget) == nullptr) return false;
      event->ignore();  // for the page that scrolls; the wheel turns no tabs
      return true;
    case QEvent::KeyPress:
      return d_->keyPressed(widget, static_cast<QKeyEvent*>(event));
    case QEvent::Shortcut: {
      auto* button = qobject_cast<QAbstractButton*>(widget);
      const bool clear = !static_cast<QShortcutEvent*>(event)->isAmbiguous();
      if (button != nullptr && clear) clickByKey(button);
      return button != nullptr && clear;
    }
    default:
      return false;
  }
}

namespace {

/// Grows with each box and each modal form: what swallows the click or key that caused it.
int interruptions() { return boxesShown() + modal::runs(); }

bool isMultiLine(const QWidget* control) { return control->inherits("QPlainTextEdit"); }

}  // namespace

bool Form::Private::mousePressed(QWidget* watched, QMouseEvent* event) {
  // The title of a grid is part of it: a click there is a change of control as well.
  auto* grid = qobject_cast<FlexGrid*>(controlOf(watched));
  if (grid != nullptr && !grid->hasFocus() && grid->isEnabled()) grid->setFocus(Qt::MouseFocusReason);
  const bool arrived = hasJustGotFocus(controlOf(watched));
  const int before = interruptions();
  form.flushFocusEvents();
  if (interruptions() != before || !form.isVisible() || !watched->isEnabled()) return true;

  if (event->type() == QEvent::MouseButtonDblClick && isLeft(event) &&
      handlers.value(watched).contains(Event::DoubleClick)) {
    run(watched, Event::DoubleClick);
    return true;
  }
  // The click that brings the focus leaves the text selected.
  QWidget* control = controlOf(watched);
  const bool text = qobject_cast<QLineEdit*>(watched) != nullptr || isMultiLine(control);
  return arrived && text && selects.contains(control);
}

bool Form::Private::keyPressed(QWidget* watched, QKeyEvent* event) {
  if (resending) return false;
  const int before = interruptions();
  form.flushFocusEvents();
  if (interruptions() != before || !form.isVisible()) return true;
  if (resultKeyPressed(watched, event)) return true;
  if (event->matches(QKeySequence::Paste) && pasteLines(watched)) return true;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return enterPressed(watched, event);
  return characterTyped(watched, event);
}

bool Form::Private::enterPressed(QWidget* control, QKeyEvent* event) {
  if (isMultiLine(control) && (event->modifiers() & Qt::ControlModifier) != 0) {
    if (!isLocked(control)) QMetaObject::invokeMethod(control, "insertPlainText", Q_ARG(QString, u"\n"_s));
    return true;
  }
  if (enterMoves.contains(control) || isMultiLine(control)) {
    form.moveOn();
    return true;
  }
  const bool clicks =
      qobject_cast<QPushButton*>(control) != nullptr || qobject_cast<QToolButton*>(control) != nullptr;
  if (clicks && !event->isAutoRepeat()) qobject_cast<QAbstractButton*>(control)->click();
  return clicks;
}

bool Form::Private::characterTyped(QWidget* watched, QKeyEvent* event) {
  const auto filter = keyFilters.constFind(watched);
  const QString typed = event->text();
  // Alt and a letter that no control owns types nothing.
  const auto held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (held == Qt::AltModifier && typed.size() == 1 && typed.at(0).isPrint()) return true;
  // Ctrl+A and its like are no characters, whatever text some platforms give them; Ctrl+Alt is AltGr.
  const bool shortcut = held == Qt::ControlModifier;
  if (filter == keyFilters.cend() || shortcut || typed.size() != 1 || !typed.at(0).isPrint()) return false;
  char16_t taken = 0;
  guarded([&] { taken = (*filter)(typed.at(0).unicode()); },
          name() + u'.' + watched->objectName() + u"_KeyPress"_s);
  if (taken == typed.at(0)) return false;
  if (taken != 0) {
    resending = true;
    QKeyEvent other(QEvent::KeyPress, event->key(), event->modifiers(), QString(QChar(taken)));
    QCoreApplication::sendEvent(watched, &other);
    resending = false;
  }
  return true;
}

void Form::clickByKey(QAbstractButton* button) {
  if (!button->isVisible() || !button->isEnabled()) return;
  const int before = interruptions();
  if (button->focusPolicy() != Qt::NoFocus) {
    button->setFocus(Qt::ShortcutFocusReason);
    d_->noteFocus(button);
  }
  flushFocusEvents();
  if (interruptions() == before && isVisible()) button->click();
}

void Form::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return event->ignore();
  if (const Private::OverFrame* open = d_->openFrame(); open != nullptr && open->closeButton != nullptr) {
    open->closeButton->click();
  } else if (!d_->escButton.isNull()) {
    d_->escButton->click();
  } else if (d_->closable) {
    d_->close();
  }
}

}  // namespace forms
