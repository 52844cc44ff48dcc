#include <QBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>
#include <algorithm>

#include "platform/forms/form_private.h"
#include "platform/forms/measures.h"

using namespace Qt::StringLiterals;

// Windows within the display: as large as it leaves room, and what doesn't fit scrolls.
namespace forms {

namespace {

/// What window managers put around a window, as long as it isn't known.
constexpr QMargins kFrame(4, 30, 4, 4);

bool holds(QLayoutItem* item, const char* className) {
  if (item->widget() != nullptr) return item->widget()->inherits(className);
  QLayout* row = item->layout();
  for (int i = 0; row != nullptr && i < row->count(); ++i)
    if (holds(row->itemAt(i), className)) return true;
  return false;
}

/// Rows of buttons stay where they are while the rest scrolls, as long as they fit themselves.
bool staysInReach(QLayoutItem* item, int width) {
  return holds(item, "QPushButton") && !holds(item, "QAbstractItemView") &&
         item->minimumSize().width() <= width;
}

void moveRow(QLayoutItem* item, QBoxLayout* to) {
  if (item->layout() != nullptr) {
    to->addLayout(item->layout());
  } else if (item->widget() != nullptr) {
    to->addWidget(item->widget());
    delete item;
  } else {
    to->addItem(item);
  }
}

}  // namespace

QRect Form::Private::room() const {
  const QScreen* screen = form.screen();
  if (screen == nullptr) return {};
  const QWindow* window = form.windowHandle();
  QMargins frame = window == nullptr ? QMargins() : window->frameMargins();
  if (frame.isNull()) frame = kFrame;
  const QRect all = screen->availableGeometry();
  return {all.topLeft(), all.size().shrunkBy(frame)};
}

void Form::Private::scrollContent() {
  auto* box = qobject_cast<QBoxLayout*>(form.layout());
  if (box == nullptr || box->direction() != QBoxLayout::TopToBottom) return;
  auto* content = new QWidget(&form);  // within the window from the start, so that the chain of Tab stays
  const QMargins margins = box->contentsMargins();
  const int width = room().width() - margins.left() - margins.right();
  content->setLayout(box);  // takes the controls along
  auto* outer = new QVBoxLayout(&form);
  outer->setContentsMargins(margins);
  while (box->count() > 1 && staysInReach(box->itemAt(0), width)) moveRow(box->takeAt(0), outer);
  auto* area = new QScrollArea(&form);
  area->setObjectName(u"qt_fit_area"_s);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  outer->addWidget(area, 1);
  int trailing = 0;
  for (int i = box->count() - 1; i > 0 && (staysInReach(box->itemAt(i), width) || box->itemAt(i)->isEmpty());
       --i)
    ++trailing;
  while (trailing-- > 0) moveRow(box->takeAt(box->count() - 1 - trailing), outer);
  box->setContentsMargins(0, 0, 0, 0);
  area->setWidget(content);
  content->show();
}

void Form::Private::fitScreen() {
  form.ensurePolished();
  const QRect all = room();
  if (form.layout() == nullptr || all.isEmpty()) return;
  form.layout()->activate();
  const QSize least = form.layout()->totalMinimumSize();
  if (least.width() > all.width() || least.height() > all.height()) {
    scrollContent();
    form.setMinimumSize(0, 0);
    form.layout()->activate();
  }
  form.resize(form.size().boundedTo(all.size()));
}

void Form::Private::takeMeasures() {
  if (const auto kept = remembers && openedSize.isEmpty() ? measures::window(name()) : std::nullopt) {
    const QSize before = form.size();
    form.resize(kept->size.expandedTo(form.minimumSizeHint()).boundedTo(room().size()));
    const QSize grown = (form.size() - before) / 2;
    form.move(std::max(0, form.x() - grown.width()),
              form.y() == 0 ? 0 : std::max(0, form.y() - grown.height()));
    if (kept->maximised) form.setWindowState(Qt::WindowMaximized);
  }
  openedSize = form.size();
}

void Form::Private::keepMeasures() {
  const bool maximised = form.isMaximized();
  const QSize size = maximised ? form.normalGeometry().size() : form.size();
  if (remembers && (maximised || size != openedSize)) measures::keep(name(), {size, maximised});
}

void Form::rememberMeasures() {
  d_->remembers = true;
  for (FlexGrid* grid : findChildren<FlexGrid*>()) grid->rememberWidths(d_->name());
}

void Form::fitToText(std::function<void()> fit) {
  fit();
  d_->fit = std::move(fit);
}

void Form::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::FontChange && loaded_ && d_->fit) d_->fit();
}

void Form::centre() {
  ensurePolished();
  if (layout() != nullptr) layout()->activate();
  resize(size().expandedTo(minimumSizeHint()));
  d_->fitScreen();
  resize(size().boundedTo(d_->room().size()));
  const QSize screen = screenSize();
  const QRect all = d_->room();
  move(
      std::clamp((screen.width() - width()) / 2, all.left(), std::max(all.left(), all.right() + 1 - width())),
      std::clamp((screen.height() - height()) / 2, all.top(),
                 std::max(all.top(), all.bottom() + 1 - height())));
}

}  // namespace forms
