#pragma once

#include <QPointer>
#include <QTest>
#include <functional>
#include <utility>
#include <vector>

#include "platform/forms/form.h"
#include "support/script.h"

namespace faults {

/// A new quote as a user enters it, key by key: header, two assembled items, one of them taken out, an
/// approval, an honoree, a date in half, the save. What a modal form waits for is done while it is open.
class Entry {
 public:
  Entry();
  ~Entry() { forms::setModalObserver({}); }
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;

  /// Does the steps from one on, to the last.
  void walk(int from) {
    for (next_ = finished_ = from; next_ < size();) step();
  }
  [[nodiscard]] int size() const { return static_cast<int>(steps_.size()); }
  /// The next step to be done.
  [[nodiscard]] int next() const { return next_; }
  /// Where an entry goes on that has come so far: a text is typed again from its beginning, what was found is
  /// looked for again.
  [[nodiscard]] int resumeAt(int done) const {
    return done < size() ? steps_[static_cast<std::size_t>(done)].resume : size();
  }

  std::function<void(int)> before = [](int) {};  ///< called with the number of the step that begins, from 1
  std::function<void(int)> after = [](int) {};   ///< so many steps are done, and the program is at rest
  std::function<int()> reopened;  ///< where to go on when a modal form opens that no step has opened

 private:
  struct Step {
    std::function<void()> act;
    int resume;
  };
  static QWidget* control(QStringView name) {
    const QString form = forms::registry::shown().last()->objectName();
    return qobject_cast<QWidget*>(forms::findControl(form, name.toString()));
  }

  void add(std::function<void()> act) { steps_.push_back({std::move(act), group_ < 0 ? size() : group_}); }
  void together(const std::function<void()>& steps) {
    const int outer = std::exchange(group_, group_ < 0 ? size() : group_);
    steps();
    group_ = outer;
  }
  // What a field does when it is left is a step of its own.
  void focus(QStringView name) {
    add([name] { support::focus(control(name)); });
  }
  void click(QStringView name) {
    together([&] {
      focus(name);
      // A frame that was open is not open again.
      add([name] {
        if (control(name)->isVisible()) support::click(control(name));
      });
    });
  }
  void doubleClick(QStringView name, int row) {
    const auto grid = [name] { return qobject_cast<forms::FlexGrid*>(control(name)); };
    together([&] {
      focus(name);
      add([grid, row] { support::clickRow(grid(), row); });
      add([grid, row] { support::doubleClick(grid(), row); });
    });
  }
  void type(QStringView name, const char* text) {
    together([&] {
      focus(name);
      add([name] { support::type(control(name), {}); });
      for (; *text != '\0'; ++text)
        add([name, letter = *text] {
          QTest::keyClick(control(name), letter);
          support::settle();
        });
    });
  }

  void step() {
    const QPointer<forms::Form> form(forms::registry::shown().last());
    const int number = next_++;
    before(next_);
    ++stepping_;
    steps_[static_cast<std::size_t>(number)].act();
    --stepping_;
    // The step that closes a modal form is done when the handler that waited for it is.
    if (!form.isNull() && form->isVisible()) finished(next_);
  }
  void finished(int number) {
    if (std::exchange(finished_, number) < number) after(number);
  }
  void opened(forms::Form& form) {
    form.setUpdatesEnabled(false);
    support::settle();
    if (stepping_ == 0) next_ = finished_ = reopened();
    finished(next_);
    const QPointer<forms::Form> open(&form);
    while (!open.isNull() && open->isVisible() && next_ < size()) step();
  }

  std::vector<Step> steps_;
  int group_ = -1;  ///< first step of those that belong together, while they are added
  int next_ = 0;
  int finished_ = 0;
  int stepping_ = 0;
};

inline Entry::Entry() {
  forms::setModalObserver([this](forms::Form& form) { opened(form); });
  click(u"cmdINCLUIR");
  type(u"mskDtEntrega", "28042024");
  type(u"cboCliente", "Clara Festas Ltda");
  type(u"cboRespAtendimento", "MARIA");
  type(u"txtDesc", "Bodas de prata");
  for (const char* quantity : {"8", "12"}) {
    click(u"cmdIncluirItem");
    together([this] {
      type(u"txtCOD", "caixa");
      click(u"cmdPesquisar");
      doubleClick(u"Flex1", 1);
      click(u"cmdConfirmar");
    });
    type(u"txtQuantidade", quantity);
    type(u"txtObservacoes", "sem fita");
    click(u"cmdConfirmar");
  }
  doubleClick(u"Flex", 1);
  together([this] {
    click(u"cmdAbreAprova");
    click(u"cmdConfirmaAprova");
  });
  together([this] {
    click(u"cmdMultiHomenagem");
    type(u"txtNomeHomg", "ana");
    click(u"cmdIncluirHomg");
  });
  click(u"cmdFecharListaHomenageados");
  type(u"mskDataEven", "0505");
  type(u"txtNumePess", "80");
  click(u"cmdSALVAR");
}

}  // namespace faults
