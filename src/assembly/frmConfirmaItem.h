#pragma once

#include "platform/forms/form.h"
#include "ui_frmConfirmaItem.h"

/// What values are multiplied by where the sale is made in the show room (including_item.cpp).
[[nodiscard]] double fatorShowRoom();

/// Asks quantity and observation of an article before it becomes a line of the assembly. The caller fills the
/// labels, the load handler looks at them: so it loads when it is shown.
class frmConfirmaItem : public forms::Form, public Ui::frmConfirmaItem {
  Q_OBJECT

 public:
  static constexpr bool kLoadsWhenShown = true;

  frmConfirmaItem();

 protected:
  void Form_Load() override;  // including_item.cpp, as all below

 private:
  void cmdConfirmar_Click();
};
