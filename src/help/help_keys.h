#pragma once

#include <QObject>

/// F1 on a screen opens its page of the manual, Shift+F1 shows what support asks for. Heard before the
/// controls, so that it works wherever the focus is; while a box is up the keys do nothing.
class TeclasDeAjuda : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
