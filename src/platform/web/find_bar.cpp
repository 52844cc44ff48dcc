#include "platform/web/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace web {

using namespace Qt::StringLiterals;

namespace {

QToolButton* button(QWidget* parent, const QString& text, const QString& tip) {
  auto* made = new QToolButton(parent);
  made->setText(text);
  made->setToolTip(tip);
  made->setAutoRaise(true);
  return made;
}

}  // namespace

FindBar::FindBar(QWidget* parent) : QFrame(parent), text_(new QLineEdit(this)), result_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  auto* previous = button(this, u"▲"_s, u"Anterior (Shift+Enter)"_s);
  auto* next = button(this, u"▼"_s, u"Próxima (Enter)"_s);
  auto* close = button(this, u"✕"_s, u"Fechar a busca (Esc)"_s);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 3, 6, 3);
  row->addWidget(new QLabel(u"Localizar:"_s, this));
  row->addWidget(text_);
  row->addWidget(previous);
  row->addWidget(next);
  row->addWidget(result_);
  row->addStretch();
  row->addWidget(close);
  text_->setMaximumWidth(320);
  text_->setMinimumWidth(180);
  text_->installEventFilter(this);
  connect(text_, &QLineEdit::textChanged, this, [this] { search(false); });
  connect(previous, &QToolButton::clicked, this, [this] { search(true); });
  connect(next, &QToolButton::clicked, this, [this] { search(false); });
  connect(close, &QToolButton::clicked, this, &FindBar::leave);
  hide();
}

void FindBar::open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::showResult(bool found) {
  result_->setText(found || text_->text().isEmpty() ? QString() : u"Não encontrado"_s);
}

void FindBar::search(bool backward) { Q_EMIT searched(text_->text(), backward); }

void FindBar::leave() {
  hide();
  Q_EMIT closed();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      search(key->modifiers().testFlag(Qt::ShiftModifier));
      return true;
    }
  }
  return QFrame::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    leave();
  else
    QFrame::keyPressEvent(event);
}

}  // namespace web
