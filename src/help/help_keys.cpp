#include "help/help_keys.h"

#include <QKeyEvent>

#include "help/about.h"
#include "help/manual.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"

bool TeclasDeAjuda::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const auto held = key->modifiers() & ~Qt::KeypadModifier;
  if (key->key() != Qt::Key_F1 || (held != Qt::NoModifier && held != Qt::ShiftModifier)) return false;
  if (key->isAutoRepeat()) return true;
  const auto* form = qobject_cast<const forms::Form*>(static_cast<QWidget*>(watched)->window());
  if (form == nullptr) return false;
  forms::guarded(
      [&] {
        if (held == Qt::ShiftModifier)
          mostraSobre();
        else
          abreManual(form->objectName());
      },
      form->objectName() + QStringLiteral(".F1"));
  return true;
}
