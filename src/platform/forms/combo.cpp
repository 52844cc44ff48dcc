#include "platform/forms/combo.h"

#include <QAbstractItemView>
#include <QFontMetricsF>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <QtMath>
#include <algorithm>

namespace forms {

namespace {

/// Width of the widest entry. Each letter is measured once: a list of 20,000 names is ready at once.
int widestEntry(const QComboBox& list) {
  const QFontMetricsF metrics(list.view()->font());
  QHash<QChar, qreal> widths;
  qreal widest = 0;
  for (int entry = 0; entry < list.count(); ++entry) {
    qreal width = 0;
    for (const QChar letter : list.itemText(entry)) {
      qreal& known = widths[letter];
      if (known == 0) known = metrics.horizontalAdvance(letter);
      width += known;
    }
    widest = std::max(widest, width);
  }
  return qCeil(widest);
}

}  // namespace

Combo::Combo(QWidget* parent) : QComboBox(parent) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);
  setDuplicatesEnabled(true);
  setMaxVisibleItems(14);
  // A long entry must not widen the screen.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(8);
  setFocusPolicy(Qt::StrongFocus);
  connect(lineEdit(), &QLineEdit::textEdited, this, &Combo::complete);
  connect(this, &QComboBox::activated, this, [this] { lineEdit()->setCursorPosition(0); });
  if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
}

void Combo::complete(const QString& typed) {
  if (!completing_ || deleting_ || typed.isEmpty() || lineEdit()->cursorPosition() != typed.size()) return;
  if (count() == 0) Q_EMIT dropDown();
  QString entry;
  for (int i = 0; i < count(); ++i) {
    const QString candidate = itemText(i);
    if (!candidate.startsWith(typed, Qt::CaseInsensitive) || candidate == entry) continue;
    if (!entry.isEmpty()) return;
    entry = candidate;
  }
  if (entry.isEmpty()) return;
  setText(entry);
  const auto length = static_cast<int>(entry.size());
  // From the end backwards: the next letter goes on after what was typed.
  lineEdit()->setSelection(length, static_cast<int>(typed.size()) - length);
}

void Combo::setText(const QString& text) {
  const QSignalBlocker quiet(this);
  setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
  if (currentText() != text) setEditText(text);
  lineEdit()->setCursorPosition(0);
}

void Combo::setEntries(const QStringList& entries) {
  const QSignalBlocker quiet(this);
  const QString typed = currentText();
  clear();
  addItems(entries);
  // The first entry of an empty list selects itself.
  setCurrentIndex(-1);
  setEditText(typed);
}

void Combo::setLocked(bool locked) {
  lineEdit()->setReadOnly(locked);
  update();
}

bool Combo::isLocked() const { return lineEdit()->isReadOnly(); }

void Combo::showPopup() {
  if (isLocked()) return;
  Q_EMIT dropDown();
  if (isLocked() || !isEnabled() || count() == 0) return;
  setText(currentText());
  // Entries are read whole, however narrow the field is.
  view()->setMinimumWidth(widestEntry(*this) + 3 * view()->verticalScrollBar()->sizeHint().width());
  QComboBox::showPopup();
}

void Combo::wheelEvent(QWheelEvent* event) { event->ignore(); }

void Combo::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool chooses = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
                       key == Qt::Key_PageDown || key == Qt::Key_F4;
  if (isLocked() && chooses) {
    event->ignore();
  } else if (key == Qt::Key_Down) {
    showPopup();
  } else {
    deleting_ = key == Qt::Key_Backspace || key == Qt::Key_Delete || event->matches(QKeySequence::Cut) ||
                event->matches(QKeySequence::Undo);
    QComboBox::keyPressEvent(event);
    deleting_ = false;
  }
}

}  // namespace forms
