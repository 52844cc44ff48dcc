#pragma once

#include <QAbstractButton>
#include <QPoint>
#include <QString>

#include "platform/forms/form.h"

// What is on the screen, and the hand that works on it with real mouse and key events.
namespace road {

/// The form on top; raises Failure when there is none.
[[nodiscard]] forms::Form& topForm();
/// The box that waits for an answer; nullptr if there is none.
[[nodiscard]] QDialog* waitingBox();
/// The window that gets mouse and keys: the box, a drop-down list or the form on top.
[[nodiscard]] QWidget* topWindow();

/// A control of the form on top, or of any form by "FORM.CONTROL"; grids without a widget too. Raises Failure
/// when it isn't there.
[[nodiscard]] QObject& objectNamed(const QString& name);
[[nodiscard]] forms::GridModel& gridNamed(const QString& name);
template <class T>
[[nodiscard]] T& controlNamed(const QString& name);
/// A name for the control that has the focus.
[[nodiscard]] QString focusedName();

void wrongKind(const QString& name, const QObject& found);

template <class T>
T& controlNamed(const QString& name) {
  QObject& object = objectNamed(name);
  auto* control = qobject_cast<T*>(&object);
  if (control == nullptr) wrongKind(name, object);
  return *control;
}

/// Raises Failure when a user could not click there now: hidden, disabled, covered.
void requireReachable(QWidget& control, QPoint at);

void pressMouse(QWidget& control, QPoint at, bool twice = false);
/// A click where a user would aim at.
void clickOn(QWidget& control);
/// A key of the window on top, such as "Enter" or "Shift+Tab".
void pressKey(const QString& name);
/// Types a text into whatever has the focus.
void typeText(const QString& text);
/// Empties what has the focus.
void eraseText();

/// Saves what is on the screen.
void takePicture(const QString& file);

}  // namespace road
