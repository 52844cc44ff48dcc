#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "support/printing.h"

// Scripted answers for boxes, what to do when a modal form opens, the end of the process, and real key and
// mouse events.
namespace support {

/// While one lives, boxes are answered from it; a box that nobody expects fails the test.
class Script {
 public:
  Script();
  ~Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  /// Queues the answer for the next box; its text must be the given one (lines joined by "\n" whatever the
  /// box uses).
  Script& box(const QString& text, forms::Answer answer = forms::Answer::Ok);
  /// Queues what is typed into the next input box; nullopt cancels.
  Script& input(const std::optional<QString>& typed);
  /// Queues what to do when the next modal form is shown; it must leave the form closed or hidden.
  Script& modal(std::function<void(forms::Form&)> act);
  /// Expects the process to end with a status; where it would end, the handler stops.
  Script& expectEnd(int status);

  /// The last box shown.
  [[nodiscard]] const forms::Box& lastBox() const { return lastBox_; }
  [[nodiscard]] const forms::Input& lastInput() const { return lastInput_; }

 private:
  forms::Answer answer(const forms::Box& box);
  QString type(const forms::Input& input);
  void act(forms::Form& form);

  std::deque<std::pair<QString, forms::Answer>> boxes_;
  std::deque<std::optional<QString>> inputs_;
  std::deque<std::function<void(forms::Form&)>> modals_;
  std::optional<int> end_;
  bool ended_ = false;
  forms::Box lastBox_;
  forms::Input lastInput_;
};

void click(QWidget* control);
/// Replaces the text of a box with real key events.
void type(QWidget* control, const QString& text);
void key(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Double click on a data row, or row 0, the title.
void doubleClick(forms::FlexGrid* grid, int row, int column = 0);
void clickRow(forms::FlexGrid* grid, int row, int column = 0);
/// Moves the focus as a user does, and lets the focus handlers run.
void focus(QWidget* control);
/// Lets everything that is queued run.
void settle();

}  // namespace support
