#include "platform/web/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include "platform/web/web_pane.h"

namespace web {

using namespace Qt::StringLiterals;

FindBar::FindBar(WebPane& pane) : QFrame(&pane), pane_(pane) {
  setFrameShape(StyledPanel);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 3, 6, 3);
  row->addWidget(new QLabel(u"Localizar:"_s, this));
  row->addWidget(&text_);
  const auto button = [&](const QString& text, const QString& tip, auto click) {
    auto* made = new QToolButton(this);
    made->setText(text);
    made->setToolTip(tip);
    made->setAutoRaise(true);
    row->addWidget(made);
    connect(made, &QToolButton::clicked, this, click);
  };
  button(u"▲"_s, u"Anterior (Shift+Enter)"_s, [this] { search(true); });
  button(u"▼"_s, u"Próxima (Enter)"_s, [this] { search(false); });
  row->addWidget(&result_);
  row->addStretch();
  button(u"✕"_s, u"Fechar a busca (Esc)"_s, [this] { leave(); });
  text_.setMaximumWidth(320);
  text_.setMinimumWidth(180);
  connect(&text_, &QLineEdit::textChanged, this, [this] { search(false); });
  hide();
}

void FindBar::open() {
  show();
  text_.setFocus(Qt::ShortcutFocusReason);
  text_.selectAll();
}

void FindBar::search(bool backward) {
  const bool found = pane_.find(text_.text(), backward);
  result_.setText(found || text_.text().isEmpty() ? QString() : u"Não encontrado"_s);
}

void FindBar::leave() {
  hide();
  pane_.find({});
  pane_.setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    search(event->modifiers().testFlag(Qt::ShiftModifier));
  else if (event->key() == Qt::Key_Escape)
    leave();
  else
    QFrame::keyPressEvent(event);
}

}  // namespace web
