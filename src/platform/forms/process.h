#pragma once

#include <QString>
#include <functional>

#include "platform/values/runtime_error.h"

// How the process ends, and the edge of the event loop.
namespace forms {

/// Thrown after a test's own end, so that the handler that ended the process goes no further.
struct Ended {
  int status;
};

/// Ends the process at once: no clean-up, no commit.
[[noreturn]] void end(int status);

/// From here on an error that nobody catches, or that comes up while its box is made, ends the process with a
/// line on its error output and status 1, without a crash; so does a display that isn't there; an output that
/// nobody reads, or that is closed, is no end. The first thing that a program does.
void endPlainly();

/// Its part of that for the standard outputs and a limit on files; nothing of it is known to Windows
/// (outputs_unix.cpp).
void keepOutputs();

/// For a program that shows nothing: before its application, where there may be no display
/// (outputs_unix.cpp). Windows always has one.
void needNoDisplay();

/// Ends the process; nothing is taken down, nothing written that waits in a buffer.
[[noreturn]] void endAtOnce(int status);

/// Puts another end in place (tests, guided roads); an empty function brings the real one back.
/// After the function has run, all modal forms are hidden and Ended is thrown.
void setEnd(std::function<void(int)> end);

/// A line on standard error and in the log (files::log), control characters of a text as blanks.
void report(QString line);

/// The same of an error: number, text, the statement that failed and the handler (`where`, which may be
/// empty). What support needs beside a user's memory of a box.
void reportRuntimeError(const values::RuntimeError& error, const QString& where);

/// The runtime's error box, with number and text of the error, and that line.
void showRuntimeError(const values::RuntimeError& error, const QString& where = {});

/// Runs a handler at the edge of the event loop, so that no exception crosses Qt: a values::RuntimeError, and
/// memory that runs out, show the runtime's error box with its number and text and end the process with
/// status 1. `where` names the handler in the line on standard error. values::Cancelled ends the handler
/// alone. Returns whether the handler came to its end.
bool guarded(const std::function<void()>& handler, const QString& where = {});

/// Called when the process is about to end by end(), for what must still reach the disk; an empty function
/// ends it.
void setEndObserver(std::function<void()> observer);

/// Counts the ends so far, so that a routine can find out whether one happened in a handler it ran.
[[nodiscard]] int ends();

/// Counts the boxes and modal forms so far: each swallows the click or key that caused it.
[[nodiscard]] int& interruptions();

}  // namespace forms
