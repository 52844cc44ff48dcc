#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmPropCmrcTL::LimpaTela() {
  lblDataFechamento->clear();
  for (QLineEdit* caixa : {txtRowId, txtDesc}) caixa->clear();
  idCarregado_.clear();
  for (QLabel* valor : {lblDesconto, lblPercDesconto, lblTotalLiquido}) valor->setText(u"0"_s);
  for (QWidget* campo : std::initializer_list<QWidget*>{
           cboCliente, txtFoneExtra, txtEmailExtra, cboClienteContato, txtFoneExtraContato,
           txtEmailExtraContato, cboVendedor, cboRespAtendimento, cboLocalVenda, cboTipoMktg, cboTipoEven,
           cboTipoServ, txtNumePess, txtObserva, txtObservacao, txtCondPagto})
    forms::setControlText(campo, {});
  for (forms::MaskedBox* caixa : {mskDtPropCmrc, mskDataEven, mskDtValidade, mskDtEntrega})
    RestauraMascara(caixa);
  esvaziaItem();
  lblUnidadeMedida->clear();
  txtNomeHomg->clear();
  for (QLabel* soma : {lblTotaGeral, lblTotaAprov, lblTotaNaoAprov}) soma->setText(emMoeda(0));
  for (QWidget* painel : {frameHomenageados, frameMassa, frameCondPgto, frameAprova}) closeOverFrame(painel);
  for (QLabel* valor : {lblDTDesativa, lblNumePedido}) valor->clear();
  MontaGridItens();
  MontaGridHomenageados();
  MontaGridMontagem();
  forms::form<frmConfirmaPropCmrcTL>().PreparaGradeParcelas();
  mostraSituacao();
}
