// The two-way discount, and how the screen starts from the totals of the quote.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

void frmConfirmaPropCmrcTL::Form_Load() {
  removeCloseEntry();
  contexto().TelaChamadora = u"frmPropCmrcTL"_s;
  CentralizaForm(*this);
  LimpaFechamento();
  aplicaTemaPadrao(*this);
  forms::setBackColor(txtObservacaoPedido, kCorJanela);
  forms::setBackColor(txtDescontoGeral, kCorJanela);
  forms::setBackColor(txtPercDesc, kCorJanela);
  RecalculaLiquido();
  if (mskDataBase->boxText() == mskDataBase->emptyMask())
    mskDataBase->setBoxText(values::formatDate(values::now(), u"dd/mm/yyyy"));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::RecalculaLiquido() {
  lblVrBrutoTOT->setText(emMoeda(forms::form<frmPropCmrcTL>().lblTotaAprov->text()));
  const double bruto = leNumero(lblVrBrutoTOT->text());
  // A percent in place rules: the money value follows it.
  if (txtPercDesc->text().size() >= 2 && lblVrBrutoTOT->text().size() >= 2)
    txtDescontoGeral->setText(emMoeda(leNumero(txtPercDesc->text()) * bruto / 100));
  lblVrLiqTOT->setText(emMoeda(bruto - leNumero(txtDescontoGeral->text())));
}

bool frmConfirmaPropCmrcTL::descontoPassaDoBruto() {
  if (leNumero(lblVrBrutoTOT->text()) >= leNumero(txtDescontoGeral->text())) return false;
  // Either box sends the user to the money value, which is the one that is compared.
  avisa(u"O desconto nao pode ser maior que o valor bruto!"_s, txtDescontoGeral);
  return true;
}

void frmConfirmaPropCmrcTL::txtDescontoGeral_LostFocus() {
  if (descontoPassaDoBruto()) return;
  txtDescontoGeral->setText(formataLido(txtDescontoGeral->text(), kMascaraMoeda));
  const double desconto = leNumero(txtDescontoGeral->text());
  const double bruto = leNumero(lblVrBrutoTOT->text());
  if (desconto > 0 && bruto > 0)
    txtPercDesc->setText(values::format(desconto / bruto * 100, kMascaraPercentual));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::txtPercDesc_LostFocus() {
  if (descontoPassaDoBruto()) return;
  txtPercDesc->setText(formataLido(txtPercDesc->text(), kMascaraPercentual));
  const double bruto = leNumero(lblVrBrutoTOT->text());
  // With no money value yet, RecalculaLiquido makes it.
  if (leNumero(txtDescontoGeral->text()) > 0 && bruto > 0)
    txtDescontoGeral->setText(emMoeda(bruto * leNumero(txtPercDesc->text()) / 100));
  RecalculaLiquido();
}
