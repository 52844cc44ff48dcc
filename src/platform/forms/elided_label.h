#pragma once

#include <QLabel>

namespace forms {

/// A line of text that gives way where there is no room: what does not fit is left out at its end, and the
/// whole is its tip, unless it has another. Promoted in Designer files (header
/// platform/forms/elided_label.h).
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace forms
