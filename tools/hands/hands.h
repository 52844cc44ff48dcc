#pragma once

#include <QPoint>
#include <QString>
#include <QTest>

#include "platform/forms/form.h"

// What the roads and the tests share: how a text is typed, and where a row of a grid is clicked.
namespace hands {

/// A point of a widget.
struct Place {
  QWidget* widget;
  QPoint at;
};
/// Where a user clicks on a data row (from 1), scrolled into sight, or on a title (row 0). A hidden column
/// gives way to the next visible one.
[[nodiscard]] Place placeOf(forms::FlexGrid& grid, int row, int column);

/// The colour number that a control was given (kBackColor, kForeColor); that of a field's own ground without.
[[nodiscard]] inline forms::ColorNumber colourOf(const QWidget* control, const char* property) {
  const QVariant set = control->property(property);
  return set.isValid() ? set.toLongLong() : 0x80000005;
}

/// Types a text with real key events into a widget or into what has the focus of a window; "\n" is
/// Ctrl+Enter.
template <class Target>
void typeText(Target* target, const QString& text) {
  for (const QChar character : text) {
    if (character == u'\n') {
      QTest::keyClick(target, Qt::Key_Return, Qt::ControlModifier);
    } else if (character.unicode() < 128) {
      QTest::keyClick(target, character.toLatin1());
    } else {
      QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
  }
}

/// Selects all that stands in a box, and deletes it.
template <class Target>
void eraseText(Target* target) {
  QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(target, Qt::Key_Delete);
}

}  // namespace hands
