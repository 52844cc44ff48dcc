#pragma once

#include "platform/forms/form.h"
#include "ui_frmBROWSE_CONDPG.h"

/// Lists the payment conditions; a double click writes the id to the screen that wants it and closes.
class frmBROWSE_CONDPG : public forms::Form, public Ui::frmBROWSE_CONDPG {
  Q_OBJECT

 public:
  frmBROWSE_CONDPG();

 protected:
  void Form_Load() override;

 private:
  void cmdPesquisa_Click();
  void Flex_DblClick();

  void PreparaGradeCondPg();
  [[nodiscard]] QString montaConsulta() const;
};
