// The two-way discount, and how the screen starts from the totals of the quote.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/comma_numbers.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "text/trim.h"

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
  const QString antes = lblVrLiqTOT->text();
  lblVrLiqTOT->setText(emMoeda(bruto - leNumero(txtDescontoGeral->text())));
  if (lblVrLiqTOT->text() != antes) refazParcelas();
}

namespace {

/// Whether a box was left with a text that is no amount: said, and the focus goes back.
bool recusaValor(QLineEdit* caixa, const QString& texto) {
  if (apara(texto).isEmpty() || ehNumeroComVirgula(texto)) return false;
  avisa(recusaDoNumero(u"Valor inválido!"_s, texto), caixa);
  return true;
}

/// "10%" is "10"; a sign without a number stays, which is none.
QString semPorcento(const QString& texto) {
  return texto.size() > 1 && texto.endsWith(u'%') ? texto.chopped(1) : texto;
}

}  // namespace

bool frmConfirmaPropCmrcTL::descontoPassaDoBruto() {
  if (leNumero(lblVrBrutoTOT->text()) >= leNumero(txtDescontoGeral->text())) return false;
  // Either box sends the user to the money value, which is the one that is compared.
  avisa(u"O desconto nao pode ser maior que o valor bruto!"_s, txtDescontoGeral);
  return true;
}

void frmConfirmaPropCmrcTL::txtDescontoGeral_LostFocus() {
  const QString digitado = txtDescontoGeral->text();
  const QString numero = semPorcento(digitado);
  if (recusaValor(txtDescontoGeral, numero)) return;
  const double bruto = leNumero(lblVrBrutoTOT->text());
  if (numero != digitado) {
    txtDescontoGeral->setText(emMoeda(bruto * leNumero(numero) / 100));
    txtPercDesc->setText(numero);
    return txtPercDesc_LostFocus();
  }
  if (descontoPassaDoBruto()) return;
  txtDescontoGeral->setText(formataLido(digitado, kMascaraMoeda));
  const double desconto = leNumero(txtDescontoGeral->text());
  if (desconto > 0 && bruto > 0)
    txtPercDesc->setText(values::format(desconto / bruto * 100, kMascaraPercentual));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::txtPercDesc_LostFocus() {
  if (recusaValor(txtPercDesc, semPorcento(txtPercDesc->text())) || descontoPassaDoBruto()) return;
  txtPercDesc->setText(formataLido(txtPercDesc->text(), kMascaraPercentual));
  const double bruto = leNumero(lblVrBrutoTOT->text());
  // With no money value yet, RecalculaLiquido makes it.
  if (leNumero(txtDescontoGeral->text()) > 0 && bruto > 0)
    txtDescontoGeral->setText(emMoeda(bruto * leNumero(txtPercDesc->text()) / 100));
  RecalculaLiquido();
}

void frmConfirmaPropCmrcTL::txtValorSinal_LostFocus() {
  const QString sinal = txtValorSinal->text();
  if (recusaValor(txtValorSinal, sinal)) return;
  if (leNumero(sinal) < 0) return avisa(u"Valor inválido!"_s, txtValorSinal);
  refazParcelas();
}
