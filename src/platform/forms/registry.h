#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <memory>

class QObject;

namespace forms {

class Form;

// The global instances, by name.
namespace registry {
[[nodiscard]] Form* find(const QString& name);
/// Takes ownership and makes it findable by name.
Form& add(std::unique_ptr<Form> form);
/// Drops all forms: the end of a test.
void clear();
/// Forms now shown, the one on top last.
[[nodiscard]] QList<Form*> shown();
}  // namespace registry

/// A control of a form that is there now, found by the two names; nullptr if there is none. Finds grids
/// without a widget too.
[[nodiscard]] QObject* findControl(const QString& formName, const QString& controlName);

/// Writes a control found so (controlText's kinds); nothing happens when it is not there.
void writeControl(const QString& formName, const QString& controlName, const QString& text);

/// Seam for tests and roads: called when a modal form has been shown and had its first focus.
void setModalObserver(std::function<void(Form&)> observer);

}  // namespace forms
