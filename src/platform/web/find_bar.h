#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace web {

class WebPane;

/// The search line above a page. Enter goes to the next place, Shift+Enter to the one before, Esc closes it.
class FindBar : public QFrame {
 public:
  explicit FindBar(WebPane& pane);

  void open();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void search(bool backward);
  void leave();

  WebPane& pane_;
  QLineEdit text_;
  QLabel result_;
};

}  // namespace web
