#pragma once

#include <optional>

#include "platform/forms/form.h"
#include "ui_frmBROWSE_PropCmrc.h"

/// Finds a quote by a filter and hands its number to the screen named by TelaChamadora.
class frmBROWSE_PropCmrc : public forms::Form, public Ui::frmBROWSE_PropCmrc {
  Q_OBJECT

 public:
  enum Coluna { Id, DtOrcamento, Descricao, Cliente, DtFechamento, Pessoas, DtEvento, DtValidade };

  frmBROWSE_PropCmrc();

  void PreparaGradePropCmrc();

 protected:
  void Form_Load() override;

 private:
  void cmdPesquisa_Click();
  /// The statement of the filter; nothing where the text should be a date and is none.
  [[nodiscard]] std::optional<QString> montaConsulta();
  void somenteUma(QCheckBox* marcada, QCheckBox* outra);
  void Flex_DblClick();
};
