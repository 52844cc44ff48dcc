#include "platform/forms/combo.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace forms {

Combo::Combo(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);
  setDuplicatesEnabled(true);
  setMaxVisibleItems(14);
  // A long entry must not widen the screen.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(8);
}

void Combo::setText(const QString& text) {
  const QSignalBlocker quiet(this);
  setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
  setEditText(text);
  lineEdit()->setCursorPosition(0);
}

void Combo::clearList() {
  const QSignalBlocker quiet(this);
  const QString typed = currentText();
  clear();
  setEditText(typed);
}

void Combo::addEntry(const QString& entry) {
  const QSignalBlocker quiet(this);
  const QString typed = currentText();
  addItem(entry);
  if (count() > 1) return;
  // The first entry of an empty list selects itself.
  setCurrentIndex(-1);
  setEditText(typed);
}

void Combo::setLocked(bool locked) {
  locked_ = locked;
  lineEdit()->setReadOnly(locked);
  update();
}

void Combo::showPopup() {
  if (locked_) return;
  Q_EMIT dropDown();
  if (locked_ || !isEnabled() || count() == 0) return;
  setText(currentText());
  // Entries are read whole, however narrow the field is.
  view()->setMinimumWidth(view()->sizeHintForColumn(modelColumn()) +
                          2 * view()->verticalScrollBar()->sizeHint().width());
  QComboBox::showPopup();
}

void Combo::wheelEvent(QWheelEvent* event) { event->ignore(); }

void Combo::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_F4:
      if (locked_) {
        event->ignore();
        return;
      }
      break;
    default:
      break;
  }
  QComboBox::keyPressEvent(event);
}

}  // namespace forms
