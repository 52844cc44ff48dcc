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
#include <algorithm>
#include <array>

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"

using namespace Qt::StringLiterals;

// Handlers of controls, and the mouse and the keyboard on their way to them.
namespace forms {

namespace {

/// By the order of Event.
constexpr std::array<QStringView, 5> kNames{u"Click", u"DblClick", u"GotFocus", u"LostFocus", u"DropDown"};

bool isLeft(const QEvent* event) {
  return static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
}

bool isMultiLine(const QWidget* control) { return control->inherits("QPlainTextEdit"); }

}  // namespace

void Form::run(QWidget* control, Event event) {
  const auto at = handlers_.find({control, event});
  if (at == handlers_.end()) return;
  const auto all = [known = at->second] {
    for (const auto& handler : known) handler();
  };
  const QString name = kNames[static_cast<std::size_t>(event)].toString();
  handle(all, objectName() + u'.' + control->objectName() + u'_' + name,
         event == Event::LostFocus ? control : nullptr);
}

void Form::on(QWidget* control, Event event, std::function<void()> handler) {
  auto& known = handlers_[{control, event}];
  known.push_back(std::move(handler));
  if (known.size() > 1) return;

  const auto raise = [this, control, event] { run(control, event); };
  auto* grid = qobject_cast<FlexGrid*>(control);
  if (event == Event::DoubleClick && grid != nullptr) connect(grid, &FlexGrid::rowDoubleClicked, this, raise);
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
  keyFilters_.insert(control, handler);
}

void Form::enterMovesOn(std::initializer_list<QWidget*> controls) {
  for (QWidget* control : controls) enterMoves_.insert(control);
}

void Form::selectOnFocus(std::initializer_list<QWidget*> controls) {
  for (QWidget* control : controls) selects_.insert(control);
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return mousePressed(widget, static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      // Buttons and grids have signals of their own; this is for labels and the pictures they show.
      if (qobject_cast<QLabel*>(widget) != nullptr && isLeft(event)) run(widget, Event::Click);
      return false;
    case QEvent::ContextMenu: {
      auto* line = qobject_cast<QLineEdit*>(widget);
      return line != nullptr && pasteMenu(line, static_cast<QContextMenuEvent*>(event));
    }
    case QEvent::Wheel:
      if (qobject_cast<QTabBar*>(widget) == nullptr) return false;
      event->ignore();  // for the page that scrolls; the wheel turns no tabs
      return true;
    case QEvent::KeyPress:
      return keyPressed(widget, static_cast<QKeyEvent*>(event));
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

bool Form::mousePressed(QWidget* watched, QMouseEvent* event) {
  // The title of a grid is part of it: a click there is a change of control as well.
  auto* grid = qobject_cast<FlexGrid*>(controlOf(watched));
  if (grid != nullptr && !grid->hasFocus() && grid->isEnabled()) grid->setFocus(Qt::MouseFocusReason);
  const bool arrived = std::ranges::any_of(waiting_, [control = controlOf(watched)](const FocusEvent& next) {
    return next.event == Event::GotFocus && next.control == control;
  });
  const int before = interruptions();
  flushFocusEvents();
  if (interruptions() != before || !isVisible() || !watched->isEnabled()) return true;

  if (event->type() == QEvent::MouseButtonDblClick && isLeft(event) &&
      handlers_.contains({watched, Event::DoubleClick})) {
    run(watched, Event::DoubleClick);
    return true;
  }
  // The click that brings the focus leaves the text selected.
  QWidget* control = controlOf(watched);
  const bool text = qobject_cast<QLineEdit*>(watched) != nullptr || isMultiLine(control);
  return arrived && text && selects_.contains(control);
}

bool Form::keyPressed(QWidget* watched, QKeyEvent* event) {
  if (resending_) return false;
  const int before = interruptions();
  flushFocusEvents();
  if (interruptions() != before || !isVisible()) return true;
  if (resultKeyPressed(watched, event)) return true;
  if (event->matches(QKeySequence::Paste) && pasteLines(watched)) return true;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return enterPressed(watched, event);
  return characterTyped(watched, event);
}

bool Form::enterPressed(QWidget* control, QKeyEvent* event) {
  if (isMultiLine(control) && (event->modifiers() & Qt::ControlModifier) != 0) {
    if (!isLocked(control)) QMetaObject::invokeMethod(control, "insertPlainText", Q_ARG(QString, u"\n"_s));
    return true;
  }
  if (enterMoves_.contains(control) || isMultiLine(control)) {
    moveOn();
    return true;
  }
  const bool clicks =
      qobject_cast<QPushButton*>(control) != nullptr || qobject_cast<QToolButton*>(control) != nullptr;
  if (clicks && !event->isAutoRepeat()) qobject_cast<QAbstractButton*>(control)->click();
  return clicks;
}

bool Form::characterTyped(QWidget* watched, QKeyEvent* event) {
  const auto filter = keyFilters_.constFind(watched);
  const QString typed = event->text();
  // Alt and a letter that no control owns types nothing.
  const auto held = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (held == Qt::AltModifier && typed.size() == 1 && typed.at(0).isPrint()) return true;
  // Ctrl+A and its like are no characters, whatever text some platforms give them; Ctrl+Alt is AltGr.
  const bool shortcut = held == Qt::ControlModifier;
  if (filter == keyFilters_.cend() || shortcut || typed.size() != 1 || !typed.at(0).isPrint()) return false;
  char16_t taken = 0;
  guarded([&] { taken = (*filter)(typed.at(0).unicode()); },
          objectName() + u'.' + watched->objectName() + u"_KeyPress"_s);
  if (taken == typed.at(0)) return false;
  if (taken != 0) {
    resending_ = true;
    QKeyEvent other(QEvent::KeyPress, event->key(), event->modifiers(), QString(QChar(taken)));
    QCoreApplication::sendEvent(watched, &other);
    resending_ = false;
  }
  return true;
}

void Form::clickByKey(QAbstractButton* button) {
  if (!button->isVisible() || !button->isEnabled()) return;
  const int before = interruptions();
  if (button->focusPolicy() != Qt::NoFocus) {
    button->setFocus(Qt::ShortcutFocusReason);
    noteFocus(button);
  }
  flushFocusEvents();
  if (interruptions() == before && isVisible()) button->click();
}

void Form::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return event->ignore();
  if (const OverFrame* open = openFrame(); open != nullptr && open->closeButton != nullptr) {
    open->closeButton->click();
  } else if (!escButton_.isNull()) {
    escButton_->click();
  } else if (closable_) {
    userCloses();
  }
}

}  // namespace forms
