#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "platform/forms/form_private.h"

namespace forms {

namespace {

/// Never destroyed: where the display goes away the process ends without its application being left.
std::vector<std::unique_ptr<Form>>& all() {
  static auto& forms = *new std::vector<std::unique_ptr<Form>>;
  return forms;
}

QList<Form*> shownForms;

std::function<void(Form&)> observer;

}  // namespace

namespace registry {

Form* find(const QString& name) {
  const auto at =
      std::ranges::find_if(all(), [&name](const auto& form) { return form->objectName() == name; });
  return at == all().end() ? nullptr : at->get();
}

Form& add(std::unique_ptr<Form> form) {
  // Widgets must be gone before the application is.
  static const bool cleared = (qAddPostRoutine(clear), true);
  Q_UNUSED(cleared)
  if (form->objectName().isEmpty()) form->setObjectName(QString::fromLatin1(form->metaObject()->className()));
  all().push_back(std::move(form));
  return *all().back();
}

void clear() {
  for (Form* form : QList<Form*>(shownForms)) form->hide();
  while (!all().empty()) {
    const std::unique_ptr<Form> last = std::move(all().back());
    all().pop_back();
  }
}

QList<Form*> shown() { return shownForms; }

std::unique_ptr<Form> take(Form* form) {
  const auto at = std::ranges::find_if(all(), [form](const auto& known) { return known.get() == form; });
  if (at == all().end()) return nullptr;
  std::unique_ptr<Form> taken = std::move(*at);
  all().erase(at);
  return taken;
}

void noteShown(Form* form) {
  shownForms.removeOne(form);
  shownForms.append(form);
}

void noteHidden(Form* form) { shownForms.removeOne(form); }

}  // namespace registry

QObject* findControl(const QString& formName, const QString& controlName) {
  const Form* form = registry::find(formName);
  return form == nullptr ? nullptr : form->findChild<QObject*>(controlName);
}

void writeControl(const QString& formName, const QString& controlName, const QString& text) {
  if (QObject* control = findControl(formName, controlName)) setControlText(control, text);
}

void setModalObserver(std::function<void(Form&)> observe) { observer = std::move(observe); }

void observeModal(Form& form) {
  if (observer) observer(form);
}

}  // namespace forms
