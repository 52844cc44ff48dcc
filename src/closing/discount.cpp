// The two-way discount, and how the screen starts from the totals of the quote.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmConfirmaPropCmrcTL::Form_Load() {
  removeCloseEntry();
  contexto().TelaChamadora = u"frmPropCmrcTL"_s;
  CentralizaForm(*this);
  LimpaFechamento();
  AplicaTemaPadrao(*this);
  forms::setBackColor(txtObservacaoPedido, kCorJanela);
  forms::setBackColor(txtDescontoGeral, kCorJanela);
  forms::setBackColor(txtPercDesc, kCorJanela);
  RecalculaLiquido();
  if (mskDataBase->boxText() == mskDataBase->emptyMask())
    mskDataBase->setBoxText(values::formatDate(values::now(), u"dd/mm/yyyy"));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::RecalculaLiquido() {
  lblVrBrutoTOT->setText(Moeda(forms::form<frmPropCmrcTL>().lblTotaAprov->text()));
  const double bruto = LeNumero(lblVrBrutoTOT->text());
  // A percent in place rules: the money value follows it.
  if (txtPercDesc->text().size() >= 2 && lblVrBrutoTOT->text().size() >= 2)
    txtDescontoGeral->setText(Moeda(LeNumero(txtPercDesc->text()) * bruto / 100));
  lblVrLiqTOT->setText(Moeda(bruto - LeNumero(txtDescontoGeral->text())));
}

bool frmConfirmaPropCmrcTL::descontoPassaDoBruto() {
  if (LeNumero(lblVrBrutoTOT->text()) >= LeNumero(txtDescontoGeral->text())) return false;
  // Either box sends the user to the money value, which is the one that is compared.
  Aviso(u"O desconto nao pode ser maior que o valor bruto!"_s, txtDescontoGeral);
  return true;
}

void frmConfirmaPropCmrcTL::txtDescontoGeral_LostFocus() {
  if (descontoPassaDoBruto()) return;
  txtDescontoGeral->setText(FormataLido(txtDescontoGeral->text(), kMascaraMoeda));
  const double desconto = LeNumero(txtDescontoGeral->text());
  const double bruto = LeNumero(lblVrBrutoTOT->text());
  if (desconto > 0 && bruto > 0)
    txtPercDesc->setText(values::format(desconto / bruto * 100, kMascaraPercentual));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::txtPercDesc_LostFocus() {
  if (descontoPassaDoBruto()) return;
  txtPercDesc->setText(FormataLido(txtPercDesc->text(), kMascaraPercentual));
  const double bruto = LeNumero(lblVrBrutoTOT->text());
  // With no money value yet, RecalculaLiquido makes it.
  if (LeNumero(txtDescontoGeral->text()) > 0 && bruto > 0)
    txtDescontoGeral->setText(Moeda(bruto * LeNumero(txtPercDesc->text()) / 100));
  RecalculaLiquido();
}
