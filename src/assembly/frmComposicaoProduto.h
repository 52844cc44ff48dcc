#pragma once

#include "platform/forms/form.h"
#include "ui_frmComposicaoProduto.h"

/// Shows the kit of the product in CodProdutoComposicao.
class frmComposicaoProduto : public forms::Form, public Ui::frmComposicaoProduto {
  Q_OBJECT

 public:
  static constexpr char16_t Name[] = u"frmComposicaoProduto";

  frmComposicaoProduto();

  void PreparaGradeComposicao();

 protected:
  void Form_Load() override;

 private:
  void cmdPesquisa_Click();
};
