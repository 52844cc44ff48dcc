#pragma once

#include <QIcon>

class QWidget;

namespace forms {

/// A magnifying glass in the text colour of a control, for buttons that search. Drawn here: the style's own
/// icons are picture files, and reading the first one costs a start more than all of its controls.
[[nodiscard]] QIcon searchIcon(const QWidget& control);

}  // namespace forms
