#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"

// Losing and getting the focus as events between the controls of one form.
namespace forms {

QWidget* Form::controlOf(QWidget* widget) const {
  // Parts of a compound control have no name, or one that the toolkit gave.
  QWidget* control = widget;
  while (control != nullptr && control != this &&
         (control->objectName().isEmpty() || control->objectName().startsWith(u"qt_")) &&
         control->parentWidget() != nullptr && control->parentWidget() != this) {
    control = control->parentWidget();
  }
  return control;
}

void Form::noteFocus(QWidget* now) {
  // Another window, a popup, or none: no change between the form's own controls.
  if (!isVisible() || now == nullptr || now == this || now->window() != this) return;
  QWidget* control = controlOf(now);
  // An option that gets the focus takes its place in the chain of Tab, asked or not.
  if (control->property(kOffChain).toBool()) control->setFocusPolicy(Qt::ClickFocus);
  if (control == current_) return;
  // Where a handler sends the focus back, the control that it had gone to never got the event that it had it.
  const auto untold = std::ranges::find_if(waiting_, [this](const FocusEvent& event) {
    return flushing_ && event.event == Event::GotFocus && event.control == current_;
  });
  if (untold != waiting_.end()) {
    waiting_.erase(untold);
  } else if (!current_.isNull()) {
    waiting_.push_back({current_, Event::LostFocus});
  }
  waiting_.push_back({control, Event::GotFocus});
  current_ = control;
  QMetaObject::invokeMethod(this, &Form::flushFocusEvents, Qt::QueuedConnection);
}

namespace {

/// The whole control, not the caret alone; where it is larger than the area, its top left.
void bringIntoSight(const QWidget& control, QScrollArea& area) {
  if (area.widget() == nullptr || !area.widget()->isAncestorOf(&control)) return;
  const QRect place(control.mapTo(area.widget(), QPoint(0, 0)), control.size());
  area.ensureVisible(place.right(), place.bottom(), 0, 0);
  area.ensureVisible(place.left(), place.top(), 0, 0);
}

/// A text that is longer than its box shows its beginning, not the end that was typed last.
void showBeginning(QWidget& control) {
  auto* combo = qobject_cast<Combo*>(&control);
  auto* line = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(&control);
  if (line != nullptr && !line->hasFocus()) line->setCursorPosition(0);
}

}  // namespace

void Form::gotFocus(QWidget* control) {
  if (selects_.contains(control)) selectText(control);
  for (QWidget* over = control->parentWidget(); over != nullptr; over = over->parentWidget())
    if (auto* area = qobject_cast<QScrollArea*>(over)) bringIntoSight(*control, *area);
}

void Form::flushFocusEvents() {
  if (flushing_) return;
  const QScopedValueRollback flushing(flushing_, true);
  const int before = ends();
  while (!waiting_.empty()) {
    const FocusEvent next = waiting_.front();
    waiting_.pop_front();
    if (next.control.isNull()) continue;
    if (next.event == Event::GotFocus) gotFocus(next.control);
    auto* remark = qobject_cast<QPlainTextEdit*>(next.control);
    if (next.event == Event::LostFocus && remark != nullptr) showFirstLine(remark);
    run(next.control, next.event);
    if (next.event == Event::LostFocus && !next.control.isNull()) showBeginning(*next.control);
    if (ends() != before) waiting_.clear();
  }
}

void Form::focus(QWidget* control) {
  if (control == nullptr || !control->isVisible() || !control->isEnabled()) return;
  if (control->focusPolicy() == Qt::NoFocus) return;
  control->setFocus(Qt::OtherFocusReason);
  // The window is not active yet when a box has just closed; the focus has moved all the same.
  auto* form = qobject_cast<Form*>(control->window());
  const QList<Form*> shown = registry::shown();
  if (form != nullptr && !shown.isEmpty() && shown.last() == form) form->noteFocus(control);
}

void Form::moveOn() {
  setAttribute(Qt::WA_KeyboardFocusChange);  // a button that Enter leads to shows its ring, as after Tab
  focusNextPrevChild(true);
  noteFocus(focusWidget());
}

bool Form::focusNextPrevChild(bool next) {
  const OverFrame* open = openFrame();
  QWidget* from = focusWidget();
  if (open == nullptr || from == nullptr || !open->frame->isAncestorOf(from)) {
    return QDialog::focusNextPrevChild(next);
  }
  QWidget* to = from;
  do {
    to = next ? to->nextInFocusChain() : to->previousInFocusChain();
    const bool takes = (to->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && to->focusProxy() == nullptr;
    if (takes && open->frame->isAncestorOf(to) && to->isVisible() && to->isEnabled()) {
      to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
  } while (to != from);
  return true;
}

}  // namespace forms
