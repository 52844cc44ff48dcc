#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// Closing a quote whose approved lines are firm, reopening it as long as no order was made of it.

namespace {

bool temItemAprovado(const forms::GridModel& itens) {
  for (int linha = 1; linha < itens.rows(); ++linha)
    if (!apara(itens.text(linha, grades::item::DtAprov)).isEmpty()) return true;
  return false;
}

}  // namespace

void frmPropCmrcTL::cmdFechar_Click() {
  if (recusa(situacao::Comando::Fechar)) return;
  if (!temItemAprovado(Flex->grid())) {
    avisaFalha(u"Impossibilidade de Executar o Comando!\rNão há itens aprovados!"_s);
    return LimpaTela();
  }
  // Without a value there are no instalments, and without them no way out of the confirmation.
  if (leNumero(lblTotaAprov->text()) <= 0)
    return avisa(u"O Valor Liquido Ainda está zerado. Impossível Processar!"_s);
  if (pergunta(u"Deseja realmente Fechar?"_s)) {
    passaTotaisParaConfirmacao();
    // However that screen is left, the closing goes on.
    forms::form<frmConfirmaPropCmrcTL>().showModal();
    CalculaTotais();
    marcaFechamento();
    if (avisaFechamento()) avisa(u"Orçamento Fechado com sucesso!\rOrçamento nr."_s + txtRowId->text());
    situacao::encerra();
  }
  BotoesNeutros();
  LimpaTela();
  focus(txtCodigo);
}

void frmPropCmrcTL::passaTotaisParaConfirmacao() {
  auto& tela = forms::form<frmConfirmaPropCmrcTL>();
  forms::setControlText(tela.lblVrBrutoTOT, lblTotaAprov->text());
  forms::setControlText(tela.txtDescontoGeral, lblDesconto->text());
  forms::setControlText(tela.txtPercDesc, lblPercDesconto->text());
  forms::setControlText(tela.lblVrLiqTOT, lblTotalLiquido->text());
}

void frmPropCmrcTL::marcaFechamento() {
  alteraOrcamento({u"UPDATE prop_cmrc SET user_fech='"_s + QString::number(contexto().IdUsuarioAtual) +
                   u"', data_fech='"_s + values::formatDate(values::now(), u"yyyymmdd hh:mm") + u"' "_s});
}

void frmPropCmrcTL::cmdReabrir_Click() {
  if (recusa(situacao::Comando::Reabrir)) return;
  if (const QString pedido = waitFor(NumeroPedidoDoOrcamento(txtRowId->text())); !pedido.isEmpty())
    return avisa(
        u"Já foi criado um pedido para este orçamento.\r"
        "A alteração somente poderá ser realizada no pedido.\rOrçamento:"_s +
        txtRowId->text() + u" - Pedido:"_s + numeroDocumento(pedido));
  if (pergunta(u"Deseja realmente abrir?"_s)) {
    alteraOrcamento({u"UPDATE prop_cmrc SET user_fech=null, data_fech=null "_s});
    avisa(u"Orçamento aberto com sucesso!\rOrçamento nr."_s + txtRowId->text() +
          u"\rPara realizar alterações, entre na opção [Alterar]"_s);
    situacao::encerra();
  }
  BotoesNeutros();
  LimpaTela();
  focus(txtCodigo);
}

/// A closed quote shows its terms for looking only; an open one its text of terms.
void frmPropCmrcTL::cmdCondPgto_Click() {
  if (!carregaEscolhido()) return;
  if (!situacaoDoRegistro().fechado) return openOverFrame(frameCondPgto, txtCondPagto);
  auto& tela = forms::form<frmConfirmaPropCmrcTL>();
  passaTotaisParaConfirmacao();
  for (QWidget* grupo : {tela.Frame1, tela.Frame7}) grupo->setEnabled(false);
  tela.FlagCondPgto = u"S"_s;
  tela.showModal();
  for (QWidget* grupo : {tela.Frame1, tela.Frame7}) grupo->setEnabled(true);
}
