#include <QBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>
#include <algorithm>

#include "platform/forms/form.h"
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

QRect Form::room() const {
  const QWindow* window = windowHandle();
  QMargins frame = window == nullptr ? QMargins() : window->frameMargins();
  if (frame.isNull()) frame = kFrame;
  const QRect all = screen()->availableGeometry();
  return {all.topLeft(), all.size().shrunkBy(frame)};
}

void Form::scrollContent() {
  auto* box = qobject_cast<QBoxLayout*>(layout());
  if (box == nullptr || box->direction() != QBoxLayout::TopToBottom) return;
  auto* content = new QWidget(this);  // within the window from the start, so that the chain of Tab stays
  const QMargins margins = box->contentsMargins();
  const int width = room().width() - margins.left() - margins.right();
  content->setLayout(box);  // takes the controls along
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(margins);
  while (box->count() > 1 && staysInReach(box->itemAt(0), width)) moveRow(box->takeAt(0), outer);
  auto* area = new QScrollArea(this);
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

void Form::fitScreen() {
  ensurePolished();
  const QRect all = room();
  if (layout() == nullptr || all.isEmpty()) return;
  layout()->activate();
  const QSize least = layout()->totalMinimumSize();
  if (least.width() > all.width() || least.height() > all.height()) {
    scrollContent();
    setMinimumSize(0, 0);
    layout()->activate();
  }
  resize(size().boundedTo(all.size()));
}

void Form::takeMeasures() {
  const QSize kept = measures::kept(objectName() + u"/size"_s).toSize();
  if (remembers_ && openedSize_.isEmpty() && !kept.isEmpty()) {
    const QSize before = size();
    resize(kept.expandedTo(minimumSizeHint()).boundedTo(room().size()));
    const QSize grown = (size() - before) / 2;
    move(std::max(0, x() - grown.width()), y() == 0 ? 0 : std::max(0, y() - grown.height()));
    if (measures::kept(objectName() + u"/maximised"_s).toBool()) setWindowState(Qt::WindowMaximized);
  }
  openedSize_ = size();
}

void Form::keepMeasures() {
  const QSize now = isMaximized() ? normalGeometry().size() : size();
  if (!remembers_ || (!isMaximized() && now == openedSize_)) return;
  measures::keep(objectName() + u"/size"_s, now);
  measures::keep(objectName() + u"/maximised"_s, isMaximized());
}

void Form::rememberMeasures() {
  remembers_ = true;
  for (FlexGrid* grid : findChildren<FlexGrid*>()) grid->rememberWidths(objectName());
}

void Form::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::FontChange && loaded_) fitToText();
}

void Form::centre() {
  ensurePolished();
  resize(size().expandedTo(minimumSizeHint()));
  fitScreen();
  const QSize left = (screenSize() - size()) / 2;
  const QRect all = room();
  const QPoint last = all.bottomRight() - rect().bottomRight();
  move(std::clamp(left.width(), all.left(), std::max(all.left(), last.x())),
       std::clamp(left.height(), all.top(), std::max(all.top(), last.y())));
}

}  // namespace forms
