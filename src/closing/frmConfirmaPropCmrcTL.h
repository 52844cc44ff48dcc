#pragma once

#include "platform/forms/form.h"
#include "ui_frmConfirmaPropCmrcTL.h"

/// Mask of the percentages of a discount.
inline constexpr QStringView kMascaraPercentual = u"###0.0000";

/// The confirmation of a quote: discount, carrier, observation for the order, payment condition and
/// instalments. The quote screen fills it while it is hidden and shows it modally; it hides on leaving and
/// keeps what it holds.
class frmConfirmaPropCmrcTL : public forms::Form, public Ui::frmConfirmaPropCmrcTL {
  Q_OBJECT

 public:
  frmConfirmaPropCmrcTL();

  /// "S" when it is shown to look only: cmdConfirmar then checks and writes nothing.
  QString FlagCondPgto;

  /// The quote that the screen serves from here on: for another than before it begins without terms,
  /// instalments and down payment, its inputs free (instalments.cpp).
  void comecaOrcamento(const QString& id);
  /// All fields to their empty state, the list of instalments empty.
  void LimpaFechamento();
  /// Lays the list of instalments out, empty.
  void PreparaGradeParcelas();
  /// Gross from the quote screen, discount from the percent where there is one, net from the two
  /// (discount.cpp).
  void RecalculaLiquido();

 protected:
  void Form_Load() override;  // discount.cpp

 private:
  void cboTransportadora_DropDown();
  void mskDataBase_LostFocus();
  void fitToText() override;

  // Discount (discount.cpp)
  void txtDescontoGeral_LostFocus();
  void txtPercDesc_LostFocus();
  void txtValorSinal_LostFocus();
  bool descontoPassaDoBruto();

  // Condition and instalments (choosing_condition.cpp, instalments.cpp)
  void cmdPesquisa_CondPg_Click();
  void cmdConfirmaCondPg_Click();
  void cmdDesfazer_Click();
  bool podeProcessar();
  [[nodiscard]] bool datasCabem() const;
  void esqueceCondicao();
  void congelaCondicao(bool congelada);
  void montaParcelas(double liquido);
  void incluiParcelas(double liquido);
  void acertaResto(double liquido);
  void refazParcelas();

  // Leaving (confirming.cpp)
  void cmdConfirmar_Click();
  bool podeConfirmar();
  void passaDescontoParaOrcamento();
  [[nodiscard]] QString montaUpdateCondicao() const;
  void gravaCondicao();
  void gravaParcelas();

  QString idServido_;  ///< the quote that it was last filled for
};
