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
  /// Searches by a customer's name.
  void procuraCliente(const QString& nome);

 protected:
  void Form_Load() override;

 private:
  void cmdPesquisa_Click();
  /// The statement of the filter; nothing where the text should be a date and is none.
  [[nodiscard]] std::optional<QString> montaConsulta();
  /// Whether a text goes into the statement.
  [[nodiscard]] bool filtraTexto() const;
  /// Searches anew; a box that was ticked clears the one that says the opposite and ticks what it holds for.
  void caixaClicada(QCheckBox* clicada);
  [[nodiscard]] forms::GridLook aspectoDaValidade(int linha) const;
  void cmdExportar_Click();
  void Flex_DblClick();
};
