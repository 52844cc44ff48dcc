#pragma once

#include <QString>
#include <QWidget>
#include <functional>

// When the program is at rest: no handler is at work, except those that wait for a visible modal form.
namespace forms {

/// Called at rest: when a handler has come to its end, before one that follows on input which was not
/// observed yet, and half a second after the first key or click since the last call. Never under a box, nor
/// after an error. An empty function ends it.
void setRestObserver(std::function<void()> observer);

/// Runs a handler as guarded() does; it is at work meanwhile. `left` is the control that the focus has left,
/// where that is what the handler is for.
void handle(const std::function<void()>& handler, const QString& where, QWidget* left = nullptr);

/// The control that the focus has left while the handler for that has not come to its end; nullptr otherwise.
[[nodiscard]] QWidget* controlBeingLeft();

}  // namespace forms
