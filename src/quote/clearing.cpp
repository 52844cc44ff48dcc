#include "closing/frmConfirmaPropCmrcTL.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmPropCmrcTL::LimpaTela() {
  for (const auto& campo : cabecalho::campos()) cabecalho::limpa(campo, *this);
  mostraAnteriores({});
  idCarregado_.clear();
  originais_.clear();
  lblTotalLiquido->setText(u"0"_s);
  esvaziaItem();
  lblUnidadeMedida->clear();
  txtNomeHomg->clear();
  for (QLabel* soma : {lblTotaGeral, lblTotaAprov, lblTotaNaoAprov}) soma->setText(emMoeda(0));
  for (QWidget* painel : {frameHomenageados, frameMassa, frameCondPgto, frameAprova}) closeOverFrame(painel);
  MontaGridItens();
  MontaGridHomenageados();
  MontaGridMontagem();
  MontaGridParcelas();
  mostraSituacao();
}

void frmPropCmrcTL::MontaGridParcelas() { forms::form<frmConfirmaPropCmrcTL>().PreparaGradeParcelas(); }
