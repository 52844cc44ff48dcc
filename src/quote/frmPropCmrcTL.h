#pragma once

#include "platform/data/recordset.h"
#include "platform/forms/form.h"
#include "quote/grids.h"
#include "ui_frmPropCmrcTL.h"

/// The quote screen: header, items, totals and the commands of a quote. Its grids Flex (items), FlexMonta
/// (materials of the assembled items) and FlexHomg (honorees) are the working copy of a quote between loading
/// and saving; layouts in quote/grids.h.
class frmPropCmrcTL : public forms::Form, public Ui::frmPropCmrcTL {
  Q_OBJECT

 public:
  static constexpr char16_t Name[] = u"frmPropCmrcTL";

  frmPropCmrcTL();

  /// Materials of all items, tied to them by their row number in Flex; never shown.
  forms::GridModel FlexMonta{QStringLiteral("FlexMonta"), this};

  // Modes (frmPropCmrcTL.cpp)
  void LimitaCampos();
  /// Buttons as they are while nothing is edited.
  void BotoesNeutros();
  /// Locked: only the number can be typed.
  void TravaCampos();
  void DestravaCampos();
  /// Shows by colour and word whether the quote is being looked at, edited, closed or deactivated.
  void MostraSituacao();

  // Empty grids with their titles (frmPropCmrcTL.cpp)
  void MontaGridItens();
  void MontaGridMontagem();
  void MontaGridHomenageados();

  /// Empties the fields and lays out the grids, that of the instalments too; txtCodigo stays (clearing.cpp).
  void LimpaTela();

  /// Fills the screen with the quote whose number is in txtCodigo (loading.cpp).
  void CarregaOrcamento();
  /// Adds the materials of one item to FlexMonta, tied to row linhaFlex.
  void CarregaMontagem(const QString& idOrcamento, const QString& idDetalhe, const QString& linhaFlex);

  /// Adds the items up into the total labels (item_grid.cpp).
  void CalculaTotais();

  /// Hands approved total, discount and net total to the confirmation screen (closing.cpp).
  void PassaTotaisParaConfirmacao();

 protected:
  void Form_Load() override;
  /// The window's X does what cmdSAIR does.
  void closeRequested() override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  enum class Trava { Travado, Livre };
  void ligaCampos();
  void ligaComandos();
  void ligaItens();
  void travaOuDestrava(Trava trava);
  void botoesEditando();
  void alinhaTotais();
  void ajustaObserva();

  // Commands of the modes (modes.cpp)
  void cmdINCLUIR_Click();
  void cmdALTERAR_Click();
  void cmdSAIR_Click();

  // Fields (fields.cpp)
  void txtCodigo_LostFocus();
  void cboCliente_DropDown();
  void cboCliente_LostFocus();
  void cboClienteContato_DropDown();
  void cboClienteContato_LostFocus();
  bool continuaSemCadastro(const QString& aviso);
  void validaLista(forms::Combo* combo, QString (*id)(const QString&), const QString& recusa);
  void cmdExpandirObservacao_Click();

  // Loading (loading.cpp)
  void cmdPesquisar_PropCmrc_Click();
  void carregaCabecalho(const data::Recordset& rs);
  void carregaItens();
  void carregaHomenageados();
  /// Terms of the quote into the confirmation screen (loading_terms.cpp).
  void carregaConfirmacao(const data::Recordset& rs);

  // Saving (saving.cpp, save_statements.cpp)
  void cmdSALVAR_Click();
  void gravaNovo();
  void gravaAlteracao();
  enum class Caixa { Maiuscula, ComoDigitada };
  void gravaItens(const QString& idOrcamento, Caixa caixa);
  void gravaHomenageados(const QString& idOrcamento, Caixa caixa);
  void MontaInsertOrcamento();
  void MontaUpdateOrcamento();
  void MontaDeleteDetalhes(const QString& idOrcamento);
  void MontaDeleteMontagem(const QString& idOrcamento);
  void MontaDeleteHomenageados(const QString& idOrcamento);
  void MontaInsertDetalhe(const QString& idOrcamento, int linha);
  void MontaInsertMontagem(const QString& idOrcamento, const QString& idDetalhe, int linha);
  void MontaInsertHomenageado(const QString& idOrcamento, int linha);
  void AprovaPrototipo(const QString& idProt, const QString& idOrcamento, const QString& dataAprovacao);

  // Items (item_grid.cpp, item_assembly.cpp)
  void Flex_DblClick();
  void excluiItem();
  void tiraLinha(int linha);
  void alteraItem();
  void cmdIncluirItem_Click();

  // Item panel (item_panel.cpp, item_search.cpp)
  void LimpaCamposItem();
  void cmdPesquisar_ProdProt_Click();
  void abrePesquisaItem();
  void pesquisaProduto();
  void pesquisaPrototipo();
  void mostraPrecoLiquido();
  void cmdIncluir_ProdProt_Click();
  void txtDesconto_GotFocus();
  void txtDesconto_LostFocus();

  // Approval (approval.cpp)
  void cmdAbreAprova_Click();
  void cmdConfirmaAprova_Click();
  void cmdCancelaAprova_Click();

  // Prototypes in mass (mass_inclusion.cpp)
  void cmdIncluirMassa_Click();
  void cmdConfirmaMassaClie_Click();
  void cmdConfirmarMassa_Click();
  void incluiPrototipos(const QString& sql);

  // Honorees (honorees.cpp)
  void cmdMultiHomenagem_Click();
  void cmdIncluirHomg_Click();
  void FlexHomg_DblClick();

  // States of a quote (activation.cpp, closing.cpp, closing_notices.cpp)
  bool recusaSemRegistro();
  void cmdEXCLUIR_Click();
  void cmdReativar_Click();
  void cmdFechar_Click();
  void cmdReabrir_Click();
  void cmdCondPgto_Click();
  void avisaFechamento();
  void cmdImprimir_Click();

  bool descontoAvisado_ = false;
};
