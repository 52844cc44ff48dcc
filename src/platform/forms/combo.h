#pragma once

#include <QComboBox>

namespace forms {

/// An editable combo whose list is filled when it drops down. Typed text is never rewritten: filling the list
/// keeps it, no completion, Enter inserts nothing. Promoted in Designer files (header
/// platform/forms/combo.h).
class Combo : public QComboBox {
  Q_OBJECT

 public:
  explicit Combo(QWidget* parent = nullptr);

  [[nodiscard]] QString text() const { return currentText(); }
  void setText(const QString& text);

  /// Empties the list; the text stays.
  void clearList();
  void addEntry(const QString& entry);

  /// Locked: shows its text, can be copied from, can't be typed in or dropped down.
  void setLocked(bool locked);
  [[nodiscard]] bool isLocked() const { return locked_; }

  void showPopup() override;

 Q_SIGNALS:
  /// About to drop down: the moment to fill the list.
  void dropDown();

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool locked_ = false;
};

}  // namespace forms
