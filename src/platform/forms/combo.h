#pragma once

#include <QComboBox>

namespace forms {

/// An editable combo whose list is filled when it drops down, by Down, F4 or the mouse. Typed text is
/// rewritten by completing alone: filling the list keeps it, Enter inserts nothing. A text longer than the
/// box shows its beginning. Promoted in Designer files (header platform/forms/combo.h).
class Combo : public QComboBox {
  Q_OBJECT
  Q_PROPERTY(QString boxText READ text WRITE setText)
  Q_PROPERTY(bool readOnly READ isLocked WRITE setLocked)

 public:
  explicit Combo(QWidget* parent = nullptr);

  [[nodiscard]] QString text() const { return currentText(); }
  void setText(const QString& text);

  /// Fills the list anew; the text stays.
  void setEntries(const QStringList& entries);

  /// Locked: shows its text, can be copied from, can't be typed in or dropped down.
  void setLocked(bool locked);
  [[nodiscard]] bool isLocked() const;

  /// A typed beginning that fits one entry alone becomes that entry, what was added selected; a list that is
  /// still empty is filled first. For lists whose entries are all there are.
  void setCompleting(bool completing) { completing_ = completing; }

  void showPopup() override;

 Q_SIGNALS:
  /// About to drop down: the moment to fill the list.
  void dropDown();

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void complete(const QString& typed);

  bool completing_ = false;
  bool deleting_ = false;
};

}  // namespace forms
