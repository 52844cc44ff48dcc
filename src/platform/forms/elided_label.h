#pragma once

#include <QLabel>

namespace forms {

/// A line of text that gives way where there is no room: what doesn't fit is left out in its middle. Promoted
/// in Designer files (header platform/forms/elided_label.h).
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace forms
