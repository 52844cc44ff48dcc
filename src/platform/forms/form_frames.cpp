#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QLayout>
#include <algorithm>

#include "platform/forms/form.h"

// Frames that open over the form.
namespace forms {

void Form::addOverFrame(QWidget* frame, int left, int top, QAbstractButton* closeButton) {
  frame->setParent(this);
  frame->hide();
  frame->setAutoFillBackground(true);
  frame->setProperty("overFrame", true);
  if (auto* plain = qobject_cast<QFrame*>(frame)) plain->setFrameStyle(QFrame::Box | QFrame::Plain);
  constexpr int kShade = 18;
  auto* shade = new QGraphicsDropShadowEffect(frame);
  shade->setBlurRadius(kShade);
  shade->setOffset(0, kShade / 4.0);
  shade->setColor(QColor(0, 0, 0, 120));
  frame->setGraphicsEffect(shade);
  overFrames_.push_back({frame, left, top, closeButton, nullptr});
}

Form::OverFrame* Form::overFrame(const QWidget* frame) {
  const auto at =
      std::ranges::find_if(overFrames_, [frame](const OverFrame& over) { return over.frame == frame; });
  return at == overFrames_.end() ? nullptr : &*at;
}

Form::OverFrame* Form::openFrame() {
  OverFrame* found = nullptr;
  for (OverFrame& over : overFrames_) {
    if (!over.frame->isVisible()) continue;
    const QWidget* focused = focusWidget();
    if (found == nullptr || (focused != nullptr && over.frame->isAncestorOf(focused))) found = &over;
  }
  return found;
}

void Form::placeOverFrame(const OverFrame& over) {
  if (over.frame->layout() != nullptr) over.frame->layout()->activate();
  const QSize size = over.frame->sizeHint().expandedTo(over.frame->minimumSize()).boundedTo(this->size());
  const int left = std::clamp(pixels(over.left), 0, std::max(0, width() - size.width()));
  const int top = std::clamp(pixels(over.top), 0, std::max(0, height() - size.height()));
  over.frame->setGeometry(left, top, size.width(), size.height());
}

void Form::openOverFrame(QWidget* frame, QWidget* focusControl) {
  OverFrame* over = overFrame(frame);
  if (over == nullptr) return;
  if (!frame->isVisible()) over->before = focusWidget();
  frame->ensurePolished();
  placeOverFrame(*over);
  frame->raise();
  frame->show();
  focus(focusControl);
}

void Form::closeOverFrame(QWidget* frame) {
  OverFrame* over = overFrame(frame);
  if (over == nullptr || frame->isHidden()) return;
  const QWidget* focused = focusWidget();
  // The focus goes back before the frame is gone, so that it visits nothing in between.
  if (focused == nullptr || frame->isAncestorOf(focused)) focus(over->before);
  over->before = nullptr;
  frame->hide();
}

void Form::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  for (const OverFrame& over : overFrames_) {
    if (over.frame->isVisible()) placeOverFrame(over);
  }
}

}  // namespace forms
