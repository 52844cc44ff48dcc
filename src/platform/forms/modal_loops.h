#pragma once

#include <QEventLoop>
#include <functional>

// The event loops of modal forms, innermost last.
namespace forms::modal {

/// Runs the opening and, if that gives true, the loop until its exit is called. Throws Ended where the
/// process has ended meanwhile.
void run(QEventLoop& loop, const std::function<bool()>& opening);

/// Leaves all of them: each throws Ended on its way out.
void leaveAll();

/// How many loops run now.
[[nodiscard]] int depth();

/// How many modal forms have been opened so far.
[[nodiscard]] int runs();

/// Counts the ends so far, so that a routine can find out whether one happened in a handler it ran.
[[nodiscard]] int ends();

}  // namespace forms::modal
