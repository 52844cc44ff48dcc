#include "closing/frmConfirmaPropCmrcTL.h"

#include "platform/values/numbers.h"
#include "quote/grids.h"
#include "shared/lists.h"
#include "shared/text.h"
#include "text/trim.h"

frmConfirmaPropCmrcTL::frmConfirmaPropCmrcTL() {
  setupUi(this);
  PreparaGradeParcelas();
  fitToText();

  using forms::Event;
  using Tela = frmConfirmaPropCmrcTL;
  on(txtDescontoGeral, Event::LostFocus, &Tela::txtDescontoGeral_LostFocus);
  on(txtPercDesc, Event::LostFocus, &Tela::txtPercDesc_LostFocus);
  on(txtValorSinal, Event::LostFocus, &Tela::txtValorSinal_LostFocus);
  on(cboTransportadora, Event::DropDown, &Tela::cboTransportadora_DropDown);
  on(cmdPesquisa_CondPg, Event::Click, &Tela::cmdPesquisa_CondPg_Click);
  on(mskDataBase, Event::LostFocus, &Tela::mskDataBase_LostFocus);
  on(cmdConfirmaCondPg, Event::Click, &Tela::cmdConfirmaCondPg_Click);
  on(cmdDesfazer, Event::Click, &Tela::cmdDesfazer_Click);
  on(cmdConfirmar, Event::Click, &Tela::cmdConfirmar_Click);
  // Another number is another condition until it has been looked up.
  connect(txtIdCondPg, &QLineEdit::textEdited, this, &Tela::esqueceCondicao);
  forms::limitText(txtObservacaoPedido, 250);
  forms::limitToDigits(txtIdCondPg, 10);

  onKeyPress(txtDescontoGeral, filtraTeclaDecimal);
  onKeyPress(txtPercDesc, filtraTeclaDecimal);
  selectOnFocus({txtDescontoGeral, txtPercDesc, cboTransportadora, txtObservacaoPedido, txtIdCondPg,
                 mskDataBase, txtValorSinal});
  enterMovesOn({txtDescontoGeral, txtPercDesc, cboTransportadora, txtObservacaoPedido, txtIdCondPg,
                cmdPesquisa_CondPg, mskDataBase, txtValorSinal, cmdConfirmaCondPg, cmdDesfazer,
                cmdConfirmar});
}

/// What follows the size of the text.
void frmConfirmaPropCmrcTL::fitToText() {
  constexpr double kDestaque = 1.3;
  constexpr int kLetrasDaGrade = 41;
  const int letra = fontMetrics().averageCharWidth();
  for (QWidget* caixa : {txtIdCondPg, txtValorSinal}) caixa->setFixedWidth(12 * letra);
  lblVrLiqTOT->setMinimumWidth(16 * letra);
  Flex2->setMinimumWidth(kLetrasDaGrade * letra);

  QFont fonte = font();
  fonte.setBold(true);
  rotuloLiquido->setFont(fonte);
  fonte.setPointSizeF(fonte.pointSizeF() * kDestaque);
  lblVrLiqTOT->setFont(fonte);
}

void frmConfirmaPropCmrcTL::LimpaFechamento() {
  txtDescontoGeral->setText(emMoeda(0.0));
  txtPercDesc->setText(values::format(0.0, kMascaraPercentual));
  lblVrBrutoTOT->setText(emMoeda(0.0));
  lblVrLiqTOT->setText(emMoeda(0.0));
  txtIdCondPg->clear();
  esqueceCondicao();
  RestauraMascara(mskDataBase);
  PreparaGradeParcelas();
}

void frmConfirmaPropCmrcTL::PreparaGradeParcelas() { Flex2->grid().layOut(grades::parcela::kLayout); }

void frmConfirmaPropCmrcTL::cboTransportadora_DropDown() {
  CarregaTransportadoras(*this, apara(cboTransportadora->text()));
}

void frmConfirmaPropCmrcTL::mskDataBase_LostFocus() {
  mskDataBase->setBoxText(ValidaDataMascara(mskDataBase->boxText()));
}
