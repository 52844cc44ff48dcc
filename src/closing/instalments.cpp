// The instalments of a quote from its payment condition.

#include <algorithm>
#include <utility>

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "quote/grids.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using namespace grades::parcela;

namespace {

constexpr forms::ColorNumber kBranco = 0xFFFFFF;

bool vazio(const QString& texto) { return apara(texto).isEmpty(); }

/// Days of the n-th instalment; one that the condition does not give falls on the base date.
qint32 diasDaParcela(const QString& prazos, int parcela) {
  return values::toInt32(leNumero(PegaCampoDelimitado(prazos, parcela, u'/')));
}

}  // namespace

void frmConfirmaPropCmrcTL::cmdConfirmaCondPg_Click() {
  if (!podeProcessar()) return;
  const double liquido = leNumero(lblVrLiqTOT->text());
  congelaCondicao(true);
  montaParcelas(liquido);
}

bool frmConfirmaPropCmrcTL::podeProcessar() {
  if (leNumero(lblVrLiqTOT->text()) <= 0) {
    avisa(u"O Valor Liquido Ainda está zerado. Impossível Processar!"_s);
    return false;
  }
  if (!values::isDate(mskDataBase->boxText()) || !datasCabem()) {
    avisa(u"Informe Data Base!"_s, mskDataBase);
    return false;
  }
  if (vazio(txtIdCondPg->text()) || vazio(lblParcelas->text()) || vazio(lblPrazos->text())) {
    avisa(u"Falta Definir Condições de Pagamento!"_s, txtIdCondPg);
    return false;
  }
  if (!podeSerId(txtIdCondPg->text())) {
    avisa(u"Condição de Pagamento não localizado!"_s, txtIdCondPg);
    return false;
  }
  return true;
}

/// Whether base date and due dates are of years that a server's column takes.
bool frmConfirmaPropCmrcTL::datasCabem() const {
  constexpr int kPrimeiroAno = 1753;
  constexpr int kUltimoAno = 9999;
  const QDate base = values::toDate(mskDataBase->boxText()).date();
  const QStringList prazos = lblPrazos->text().split(u'/') << QString();  // the base date itself
  return std::ranges::all_of(prazos, [base](const QString& dias) {
    const int ano = base.addDays(values::toInt32(leNumero(dias))).year();
    return kPrimeiroAno <= ano && ano <= kUltimoAno;
  });
}

void frmConfirmaPropCmrcTL::comecaOrcamento(const QString& id) {
  if (id == std::exchange(idServido_, id)) return;
  for (QLineEdit* caixa : {txtValorSinal, txtIdCondPg}) caixa->clear();
  esqueceCondicao();
  PreparaGradeParcelas();
  congelaCondicao(false);
}

void frmConfirmaPropCmrcTL::esqueceCondicao() {
  lblParcelas->clear();
  lblPrazos->clear();
}

void frmConfirmaPropCmrcTL::congelaCondicao(bool congelada) {
  cmdConfirmaCondPg->setEnabled(!congelada);
  cmdDesfazer->setEnabled(congelada);
  forms::setLocked(txtIdCondPg, congelada);
  mskDataBase->setEnabled(!congelada);
  const forms::ColorNumber fundo = congelada ? kCorCongelada : kBranco;
  forms::setBackColor(txtIdCondPg, fundo);
  forms::setBackColor(mskDataBase, fundo);
}

void frmConfirmaPropCmrcTL::montaParcelas(double liquido) {
  incluiParcelas(liquido);
  acertaResto(liquido);
}

/// A list that stands follows the net value and the down payment.
void frmConfirmaPropCmrcTL::refazParcelas() {
  if (Flex2->grid().rows() <= 1) return;
  PreparaGradeParcelas();
  const double liquido = leNumero(lblVrLiqTOT->text());
  if (liquido > 0)
    montaParcelas(liquido);
  else
    congelaCondicao(false);
}

void frmConfirmaPropCmrcTL::incluiParcelas(double liquido) {
  const int parcelas = values::toInt16(leNumero(lblParcelas->text()));
  const QString prazos = aparaDireita(lblPrazos->text());
  const double sinal = leNumero(txtValorSinal->text());
  const double saldo = liquido - sinal;
  const QDateTime base = values::toDate(mskDataBase->boxText());

  const auto incluiParcela = [&](int parcela, double valor) {
    const qint32 dias = diasDaParcela(prazos, parcela);
    Flex2->grid().addRow({{Parcela, QString::number(parcela)},
                          {Dias, QString::number(dias)},
                          {Valor, emMoeda(valor)},
                          {Vencimento, values::formatDate(base.addDays(dias), u"dd/mm/yyyy")}});
  };

  int primeira = 1;
  double valor = 0;
  if (sinal > 0) {
    // The down payment falls on the condition's first day count.
    if (parcelas > 1) valor = saldo / (parcelas - 1);
    incluiParcela(1, sinal);
    primeira = 2;
  } else {
    if (parcelas == 0) values::raise(values::kDivisionByZero);
    valor = saldo / parcelas;
  }
  for (int parcela = primeira; parcela <= parcelas && valor > 0; ++parcela) incluiParcela(parcela, valor);
}

void frmConfirmaPropCmrcTL::acertaResto(double liquido) {
  forms::GridModel& grade = Flex2->grid();
  const int ultima = grade.rows() - 1;
  if (ultima < 1) return;
  double soma = 0;
  for (int linha = 1; linha <= ultima; ++linha) soma += leNumero(grade.text(linha, Valor));
  grade.setText(ultima, Valor, emMoeda(leNumero(grade.text(ultima, Valor)) + (liquido - soma)));
}

void frmConfirmaPropCmrcTL::cmdDesfazer_Click() {
  if (!pergunta(u"Deseja Realmente Desfazer o Calculo de Condições de Pagamento?"_s)) return;
  PreparaGradeParcelas();
  congelaCondicao(false);
  focus(txtIdCondPg);
}
