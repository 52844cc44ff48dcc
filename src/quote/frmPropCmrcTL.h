#pragma once

#include <vector>

#include "draft/draft_text.h"
#include "platform/data/asked.h"
#include "platform/data/recordset.h"
#include "platform/forms/form.h"
#include "quote/grids.h"
#include "quote/header_fields.h"
#include "quote/situation.h"
#include "ui_frmPropCmrcTL.h"

/// The quote screen: header, items, totals and the commands of a quote. Its grids Flex (items), FlexMonta
/// (materials of the assembled items) and FlexHomg (honorees) are the working copy of a quote between loading
/// and saving; layouts in quote/grids.h.
class frmPropCmrcTL : public forms::Form, public Ui::frmPropCmrcTL {
  Q_OBJECT

 public:
  frmPropCmrcTL();

  /// Materials of all items, tied to them by their row number in Flex; never shown.
  forms::GridModel FlexMonta{QStringLiteral("FlexMonta"), this};
  /// The line that has gone to the assembly screen to be changed, as it was; never shown.
  forms::GridModel ItemNaMontagem{QStringLiteral("ItemNaMontagem"), this};

  /// Empties the fields and lays out the grids, that of the instalments too; txtCodigo stays (clearing.cpp).
  void LimpaTela();
  /// The item grid empty, with its titles.
  void MontaGridItens();
  /// Adds the items up into the total labels (item_grid.cpp).
  void CalculaTotais();

 protected:
  void Form_Load() override;  // starting.cpp
  /// The window's X does what cmdSAIR does (modes.cpp).
  void closeRequested() override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Modes (modes.cpp)
  /// Buttons as they are while nothing is edited.
  void BotoesNeutros();
  /// Locked: only the number can be typed.
  void TravaCampos();
  void DestravaCampos();
  /// Shows by colour and word whether the quote is being looked at, edited, closed or deactivated.
  void mostraSituacao();
  /// What the idle screen says of folders that are missing; found at the start.
  QString aviso_;

  void MontaGridMontagem();
  void MontaGridHomenageados();
  static void MontaGridParcelas();
  static void MontaGridMontagemProduto();

  /// Fills the screen with the quote whose number is in txtCodigo (loading.cpp).
  void CarregaOrcamento();

  void LimitaCampos();
  void ligaTeclado();
  void ligaAtalhos();
  void ligaCampos();
  void ligaComandos();
  void ligaItens();
  void alinhaTotais();
  void cmdExpandirObservacao_Click();
  void ajustaObserva();
  void fitToText() override;

  // Commands of the modes (modes.cpp)
  void botoesEditando();
  void travaOuDestrava(bool trava);
  /// Back to looking only.
  void encerraEdicao();
  void cmdINCLUIR_Click();
  void fazCopia();  // copying.cpp, as the next
  void cmdComecarEmBranco_Click();
  void cmdALTERAR_Click();
  void cmdSAIR_Click();

  // Fields (fields.cpp)
  void ligaListas();
  void ligaDatas();
  [[nodiscard]] bool confirmaDatas();
  void txtCodigo_LostFocus();
  void cboCliente_DropDown();
  void cboCliente_LostFocus();
  void soltaContatoDeOutro();
  void cboClienteContato_DropDown();
  void cboClienteContato_LostFocus();
  void confirmaSemCadastro(const QString& aviso);

  // Loading (finding.cpp, loading.cpp)
  void cmdPesquisar_PropCmrc_Click();
  void cmdAnteriores_Click();
  /// How many quotes a customer has, as their search counts them.
  [[nodiscard]] static data::Asked<QString> pedeAnteriores(const QString& cliente);
  void mostraAnteriores(const QString& quantos);
  void carregaNumero();
  /// Whether txtRowId holds a choice of the search that is not the quote on the screen.
  [[nodiscard]] bool faltaCarregar() const;
  /// Whether Nr. holds a number that is not txtRowId's.
  [[nodiscard]] bool digitouOutro() const;
  /// Loads a choice as cmdPesquisar_PropCmrc does; false when it is gone.
  [[nodiscard]] bool carregaEscolhido();
  /// Terms of the quote into the confirmation screen (loading_terms.cpp).
  struct Termos {
    data::Asked<QString> transportadora, parcelas, prazos;
  };
  [[nodiscard]] static Termos pedeTermosDaConfirmacao(const data::Recordset& rs);
  static void carregaConfirmacao(const data::Recordset& rs, Termos& termos);

  // Saving (saving.cpp, save_header.cpp, save_rows.cpp)
  void cmdSALVAR_Click();
  void gravaNovo();
  void gravaAlteracao();
  enum class Caixa { Maiuscula, ComoDigitada };
  /// A digest of the quote as it is stored, where its draft wants one.
  [[nodiscard]] QString gravaLinhas(const QString& idOrcamento, Caixa caixa);
  [[nodiscard]] QStringList gravaItens(const QString& idOrcamento, Caixa caixa);
  [[nodiscard]] QString MontaInsertOrcamento() const;
  [[nodiscard]] QString MontaUpdateOrcamento() const;
  [[nodiscard]] QString MontaInsertDetalhe(const QString& idOrcamento, int linha) const;
  [[nodiscard]] QString montaInsertMontagem(const QString& idOrcamento, const QString& idDetalhe,
                                            int linha) const;
  [[nodiscard]] QString MontaInsertHomenageado(const QString& idOrcamento, int linha) const;

  // What was not saved (recovering.cpp)
  /// The line under the title, while nothing is edited.
  void mostraOferta();
  void cmdRecuperar_Click();
  void cmdDescartar_Click();
  [[nodiscard]] static bool aindaFalta(const rascunho::Rascunho& rascunho, bool numeroOcupado);
  [[nodiscard]] bool carregaAntesDeRecuperar(const rascunho::Rascunho& rascunho);
  void recupera(const rascunho::Rascunho& rascunho);
  void reabreMontagem(const QString& retrato);

  // Items (item_grid.cpp, item_assembly.cpp)
  void excluiOuAltera(const QString& sugestao);
  void excluiItem();
  /// The current line changes places with the one so many rows on (moving_lines.cpp).
  void moveLinha(int passo);
  void soltaMateriais(int linha, int coluna);
  void tiraLinha(int linha, int coluna);
  void alteraItem();
  void passaParaMontagem(int linha);
  void cmdIncluirItem_Click();
  void mostraMontagem();

  // Item panel (item_panel.cpp, item_panel_line.cpp, item_search.cpp)
  void esvaziaItem();
  void LimpaCamposItem();
  void recusaDesativado(const QString& texto);
  [[nodiscard]] QString tipoDoPainel() const;
  [[nodiscard]] bool recusaRepetido();
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
  void fechaAprova();

  // Prototypes in mass (mass_inclusion.cpp)
  void cmdIncluirMassa_Click();
  void cmdConfirmaMassaClie_Click();
  void cmdConfirmarMassa_Click();
  [[nodiscard]] bool confirmaMassa();
  void incluiPrototipos(const QString& sql);

  // Honorees (honorees.cpp)
  void cmdMultiHomenagem_Click();
  void cmdIncluirHomg_Click();
  void FlexHomg_DblClick();

  // States of a quote (activation.cpp, closing.cpp, closing_notices.cpp, printing.cpp)
  [[nodiscard]] situacao::Situacao situacaoDoRegistro() const;
  /// Whether a command is refused: without a quote, or by what the quote is.
  [[nodiscard]] bool recusa(situacao::Comando comando);
  void alteraOrcamento(const QStringList& comandos);
  void cmdEXCLUIR_Click();
  void cmdReativar_Click();
  void cmdFechar_Click();
  void cmdReabrir_Click();
  void cmdCondPgto_Click();
  void passaTotaisParaConfirmacao();
  void marcaFechamento();
  [[nodiscard]] bool avisaFechamento();
  void cmdImprimir_Click();

  QString idCarregado_;   ///< the quote on the screen; txtRowId may hold a choice of the search already
  QString copiado_;       ///< digest of a copy as it began
  QString clienteAntes_;  ///< the customer as cboCliente was entered, in capitals
  std::vector<cabecalho::Original> originais_;  ///< of the quote on the screen
};
