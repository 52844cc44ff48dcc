#pragma once

#include <QLineEdit>

namespace forms {

/// A box for dates: "__/__/____", or "__/__/____ __:__" with the property withTime. Its text always has the
/// prompt characters; promoted in Designer files (header platform/forms/masked_box.h).
class MaskedBox : public QLineEdit {
  Q_OBJECT
  Q_PROPERTY(QString boxText READ boxText WRITE setBoxText)
  Q_PROPERTY(bool withTime READ withTime WRITE setWithTime)

 public:
  explicit MaskedBox(QWidget* parent = nullptr);

  [[nodiscard]] bool withTime() const { return withTime_; }
  void setWithTime(bool withTime);

  /// What the box shows, prompt characters included: "15/__/____".
  [[nodiscard]] QString boxText() const { return displayText(); }
  /// Takes a date text or an empty mask; an empty text restores the mask.
  void setBoxText(const QString& text);
  /// "__/__/____" or "__/__/____ __:__".
  [[nodiscard]] QString emptyMask() const;
  [[nodiscard]] bool isBlank() const { return boxText() == emptyMask(); }

  /// As wide as a whole date.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// A slash completes the day or month ("5/" is "05/"), a colon the hour, and goes on after it.
  void keyPressEvent(QKeyEvent* event) override;
  /// A click into an empty box sets the caret to its start.
  void mousePressEvent(QMouseEvent* event) override;

 private:
  bool withTime_ = false;
};

}  // namespace forms
