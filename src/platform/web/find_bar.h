#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;

namespace web {

/// The search line above a page. Enter goes to the next place, Shift+Enter to the one before, Esc closes it.
class FindBar : public QFrame {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent);

  void open();
  /// Says whether the text was found.
  void showResult(bool found);

 Q_SIGNALS:
  void searched(const QString& text, bool backward);
  void closed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void search(bool backward);
  void leave();

  QLineEdit* text_;
  QLabel* result_;
};

}  // namespace web
