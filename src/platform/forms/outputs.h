#pragma once

namespace forms {

/// Makes the standard outputs safe to write to, once, before the program opens a file: a closed output leads
/// nowhere, and a pipe that nobody reads or a limit on files is an error of the write that meets it. Nothing
/// of it is known to Windows.
void keepOutputs();

/// For a program that shows nothing: before its application, where there may be no display. Windows always
/// has one.
void needNoDisplay();

}  // namespace forms
