#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QLayout>
#include <algorithm>

#include "platform/forms/form_private.h"

// Frames that open over the form.
namespace forms {

namespace {
constexpr int kShade = 18;
}

void Form::addOverFrame(QWidget* frame, int left, int top, QAbstractButton* closeButton) {
  frame->setParent(this);
  frame->hide();
  frame->setAutoFillBackground(true);
  frame->setProperty("overFrame", true);
  if (auto* plain = qobject_cast<QFrame*>(frame)) plain->setFrameStyle(QFrame::Box | QFrame::Plain);
  auto* shade = new QGraphicsDropShadowEffect(frame);
  shade->setBlurRadius(kShade);
  shade->setOffset(0, kShade / 4.0);
  shade->setColor(QColor(0, 0, 0, 120));
  frame->setGraphicsEffect(shade);
  d_->overFrames.push_back({frame, left, top, closeButton, nullptr});
}

Form::Private::OverFrame* Form::Private::overFrame(const QWidget* frame) {
  const auto at =
      std::ranges::find_if(overFrames, [frame](const OverFrame& over) { return over.frame == frame; });
  return at == overFrames.end() ? nullptr : &*at;
}

Form::Private::OverFrame* Form::Private::openFrame() {
  OverFrame* found = nullptr;
  for (OverFrame& over : overFrames) {
    if (!over.frame->isVisible()) continue;
    const QWidget* focused = form.focusWidget();
    if (found == nullptr || (focused != nullptr && over.frame->isAncestorOf(focused))) found = &over;
  }
  return found;
}

void Form::Private::placeOverFrame(const OverFrame& over) {
  if (over.frame->layout() != nullptr) over.frame->layout()->activate();
  const QSize size = over.frame->sizeHint().expandedTo(over.frame->minimumSize()).boundedTo(form.size());
  const int left = std::clamp(pixels(over.left), 0, std::max(0, form.width() - size.width()));
  const int top = std::clamp(pixels(over.top), 0, std::max(0, form.height() - size.height()));
  over.frame->setGeometry(left, top, size.width(), size.height());
}

void Form::openOverFrame(QWidget* frame, QWidget* focusControl) {
  Private::OverFrame* over = d_->overFrame(frame);
  if (over == nullptr) return;
  if (!frame->isVisible()) over->before = focusWidget();
  frame->ensurePolished();
  d_->placeOverFrame(*over);
  frame->raise();
  frame->show();
  focus(focusControl);
}

void Form::closeOverFrame(QWidget* frame) {
  Private::OverFrame* over = d_->overFrame(frame);
  if (over == nullptr || frame->isHidden()) return;
  const QWidget* focused = focusWidget();
  // The focus goes back before the frame is gone, so that it visits nothing in between.
  if (focused == nullptr || frame->isAncestorOf(focused)) focus(over->before);
  over->before = nullptr;
  frame->hide();
}

void Form::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  for (const Private::OverFrame& over : d_->overFrames) {
    if (over.frame->isVisible()) d_->placeOverFrame(over);
  }
}

}  // namespace forms
