#include <QCoreApplication>
#include <map>
#include <utility>

#include "platform/forms/form.h"

namespace forms {

namespace {

/// Never destroyed: where the display goes away the process ends without its application being left.
std::map<QString, std::unique_ptr<Form>>& all() {
  static auto& forms = *new std::map<QString, std::unique_ptr<Form>>;
  return forms;
}

QList<Form*> shownForms;

}  // namespace

namespace registry {

Form* find(const QString& name) {
  const auto at = all().find(name);
  return at == all().end() ? nullptr : at->second.get();
}

Form& add(std::unique_ptr<Form> form) {
  // Widgets must be gone before the application is.
  [[maybe_unused]] static const bool cleared = (qAddPostRoutine(clear), true);
  if (form->objectName().isEmpty()) form->setObjectName(QString::fromLatin1(form->metaObject()->className()));
  const QString name = form->objectName();
  return *(all()[name] = std::move(form));
}

void clear() {
  for (Form* form : QList<Form*>(shownForms)) form->hide();
  while (!all().empty()) all().extract(all().begin());
}

std::unique_ptr<Form> take(const Form& form) {
  if (find(form.objectName()) != &form) return nullptr;
  return std::move(all().extract(form.objectName()).mapped());
}

QList<Form*> shown() { return shownForms; }

void noteShown(Form* form) {
  noteHidden(form);
  shownForms.append(form);
}

void noteHidden(Form* form) { shownForms.removeOne(form); }

}  // namespace registry

QObject* findControl(const QString& formName, const QString& controlName) {
  const Form* form = registry::find(formName);
  return form == nullptr ? nullptr : form->findChild<QObject*>(controlName);
}

}  // namespace forms
