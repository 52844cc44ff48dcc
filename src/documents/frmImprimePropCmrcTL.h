#pragma once

#include "platform/forms/form.h"
#include "ui_frmImprimePropCmrcTL.h"

/// Asks which quote is to be printed and for whom its pictures are addressed, and shows the document.
class frmImprimePropCmrcTL : public forms::Form, public Ui::frmImprimePropCmrcTL {
  Q_OBJECT

 public:
  frmImprimePropCmrcTL();

 protected:
  void Form_Load() override;  // printing_quote.cpp, as all below

 private:
  void cmdImprimirPedido_Click();
};
