#pragma once

#include "platform/forms/form.h"
#include "ui_frmComposicaoProduto.h"

/// Shows the kit of the product in CodProdutoComposicao.
class frmComposicaoProduto : public forms::Form, public Ui::frmComposicaoProduto {
  Q_OBJECT

 public:
  frmComposicaoProduto();

  void PreparaGradeComposicao();

 protected:
  void Form_Load() override;

 private:
  void cmdPesquisa_Click();
};
