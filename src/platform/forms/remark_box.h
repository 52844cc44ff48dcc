#pragma once

class QPlainTextEdit;

// Boxes of several lines.
namespace forms {

/// Scrolls to the first line and takes the selection off: how a box stands while nobody types in it.
void showFirstLine(QPlainTextEdit* box);

/// Shows a sign in the box's corner while lines below are out of sight and no scroll bar says so. Once is
/// enough; again does nothing.
void markHiddenLines(QPlainTextEdit* box);

}  // namespace forms
