#include "help/help_keys.h"

#include <QKeyEvent>

#include "help/about.h"
#include "help/manual.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"

using namespace Qt::StringLiterals;

bool TeclasDeAjuda::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* tecla = static_cast<QKeyEvent*>(event);
  const auto modificadores = tecla->modifiers() & ~Qt::KeypadModifier;
  if (tecla->key() != Qt::Key_F1 || (modificadores != Qt::NoModifier && modificadores != Qt::ShiftModifier))
    return false;
  if (tecla->isAutoRepeat()) return true;
  const auto* tela = qobject_cast<const forms::Form*>(static_cast<QWidget*>(watched)->window());
  if (tela == nullptr) return false;
  forms::guarded(
      [&] {
        if (modificadores == Qt::ShiftModifier)
          mostraSobre();
        else
          abreManual(tela->objectName());
      },
      tela->objectName() + u".F1"_s);
  return true;
}
