#pragma once

#include <QLabel>

/// A sum that can be selected and copied. Its place is measured by its letters: the toolkit's own measure
/// lays a selectable text out anew each time it is asked.
class SumLabel : public QLabel {
 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize sizeHint() const override {
    return {fontMetrics().horizontalAdvance(text()) + 2, fontMetrics().height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};
