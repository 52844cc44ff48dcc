#include "platform/forms/boxes.h"
#include "platform/forms/controls.h"
#include "platform/values/dates.h"
#include "quote/default_terms.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "run/configuration.h"
#include "run/program_title.h"
#include "shared/messages.h"
#include "shared/validity.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// Idle, new, altering: what can be typed and pressed, and how the screen shows it.

namespace {

struct Rotulo {
  QString texto;
  forms::ColorNumber fundo;
};
// Dark enough for white letters on any theme.
const Rotulo kNovo{u"Novo orçamento"_s, 0x2F6B1E};
const Rotulo kCopia{u"Cópia do nr. %2"_s, kNovo.fundo};
const Rotulo kAlterando{u"Em alteração"_s, 0x0050B4};
const Rotulo kDesativado{u"Desativado"_s, 0x2020B0};
const Rotulo kFechado{u"Fechado"_s, 0x8C4A1B};
const Rotulo kNaoCarregado{u"Nr. %1 não carregado"_s, 0x702870};
const Rotulo kDigitado{u"Nr. %1 não carregado · na tela: %2"_s, kNaoCarregado.fundo};
const Rotulo kAberto{u"Aberto"_s, 0x606060};
const Rotulo kVence{u"Aberto · %2"_s, 0x00529A};
const Rotulo kVencido{u"Aberto · %2"_s, 0x2020B0};
// Of the idle screen.
const Rotulo kAmostra{u"Empresa de amostra"_s, 0x606060};
const Rotulo kAviso{u"%2"_s, 0x2020B0};
constexpr forms::ColorNumber kBranco = 0xFFFFFF;

/// While a quote is edited a search would load another one over it.
void permitePesquisa(QWidget* botao, bool permite) {
  botao->setEnabled(permite);
  botao->setToolTip(permite ? u"Pesquisar"_s : u"Salve ou abandone este orçamento para pesquisar outro"_s);
}

}  // namespace

void frmPropCmrcTL::mostraSituacao() {
  mostraOferta();
  const auto [desativado, fechado] = situacaoDoRegistro();
  const Prazo prazo = prazoDaValidade(mskDtValidade->boxText(), values::today());
  const Rotulo* rotulo = nullptr;
  if (cmdSALVAR->isEnabled())
    rotulo = !situacao::incluindo() ? &kAlterando : idCarregado_.isEmpty() ? &kNovo : &kCopia;
  else if (faltaCarregar())
    rotulo = &kNaoCarregado;
  else if (digitouOutro() && !idCarregado_.isEmpty())
    rotulo = &kDigitado;
  else if (desativado)
    rotulo = &kDesativado;
  else if (fechado)
    rotulo = &kFechado;
  else if (!txtRowId->text().isEmpty())
    rotulo = prazo.estado == Prazo::Vencido ? &kVencido : prazo.estado == Prazo::Vence ? &kVence : &kAberto;
  else if (!aviso_.isEmpty())
    rotulo = &kAviso;
  else if (ehAmostra())
    rotulo = &kAmostra;

  lblSituacao->setVisible(rotulo != nullptr);
  cmdComecarEmBranco->setVisible(rotulo == &kCopia);
  if (rotulo == nullptr) return;
  const QString primeiro = rotulo == &kDigitado ? apara(txtCodigo->text()) : txtRowId->text();
  const bool comPrazo = rotulo == &kVence || rotulo == &kVencido;
  const QString& segundo = rotulo == &kAviso ? aviso_ : comPrazo ? prazo.texto : idCarregado_;
  lblSituacao->setText(QString(rotulo->texto).replace(u"%1"_s, primeiro).replace(u"%2"_s, segundo));
  lblSituacao->setToolTip(rotulo == &kAviso ? forms::asTip(aviso_) : QString());
  forms::setBackColor(lblSituacao, rotulo->fundo);
  forms::setForeColor(lblSituacao, kBranco);
}

void frmPropCmrcTL::BotoesNeutros() {
  for (QWidget* botao :
       {cmdINCLUIR, cmdALTERAR, cmdEXCLUIR, cmdReativar, cmdImprimir, cmdSAIR, cmdFechar, cmdReabrir})
    botao->setEnabled(true);
  cmdSALVAR->setEnabled(false);
  permitePesquisa(cmdPesquisar_PropCmrc, true);
  mostraSituacao();
}

void frmPropCmrcTL::botoesEditando() {
  // A change of state under a quote that is being typed would drop it and act on the stored one.
  for (QWidget* botao : {cmdINCLUIR, cmdALTERAR, cmdEXCLUIR, cmdReativar, cmdImprimir, cmdFechar, cmdReabrir})
    botao->setEnabled(false);
  for (QWidget* botao : {cmdSALVAR, cmdSAIR}) botao->setEnabled(true);
  permitePesquisa(cmdPesquisar_PropCmrc, false);
  mostraSituacao();
}

void frmPropCmrcTL::travaOuDestrava(bool trava) {
  for (QWidget* botao :
       {cmdPesquisar_ProdProt, cmdIncluir_ProdProt, cmdIncluirMassa, cmdAbreAprova, cmdIncluirItem})
    botao->setEnabled(!trava);
  for (const auto& campo : cabecalho::campos())
    if (campo.digitado() && campo.trava)
      for (QWidget* um : cabecalho::controles(campo, *this)) forms::setLocked(um, trava);
  for (QWidget* campo :
       std::initializer_list<QWidget*>{txtCodProduto, txtQuantidade, txtDesconto, txtObseDetaItem,
                                       txtNomeHomg, cboItemPropCmrc, mskDataAprv})
    forms::setLocked(campo, trava);
  forms::setLocked(txtCodigo, !trava);
}

void frmPropCmrcTL::TravaCampos() { travaOuDestrava(true); }
void frmPropCmrcTL::DestravaCampos() { travaOuDestrava(false); }

void frmPropCmrcTL::encerraEdicao() {
  situacao::encerra();
  mostraSituacao();
}

void frmPropCmrcTL::cmdINCLUIR_Click() {
  situacao::entra(u"I"_s, u"I"_s);
  botoesEditando();
  DestravaCampos();
  txtCodigo->clear();
  mskDtPropCmrc->setBoxText(values::formatDate(values::now(), u"dd/mm/yyyy"));
  forms::setControlText(txtCondPagto, kCondPagtoPadrao.toString());
  // Over a quote on the screen it is a copy of it; without one it starts as any other.
  if (idCarregado_.isEmpty())
    opPV->setChecked(true);
  else
    fazCopia();
  focus(mskDtPropCmrc);
}

void frmPropCmrcTL::cmdALTERAR_Click() {
  if (recusa(situacao::Comando::Alterar)) return;
  situacao::entra(u"A"_s, u"A"_s);
  botoesEditando();
  DestravaCampos();
  // Another number may have been typed meanwhile; the box is locked from here on.
  txtCodigo->setText(txtRowId->text());
  focus(mskDtPropCmrc);
}

void frmPropCmrcTL::cmdSAIR_Click() {
  if (!situacao::editando()) return unload();
  const auto resposta = forms::msgBox({.text = u"Existe operação não concluída!!!\r<Sim> Sair sem Concluir\r"
                                               "<Não> Retornar para a Operação Atual\r"
                                               "<Cancela> Retornar e Abortar a Operação Atual"_s,
                                       .title = kTitulo,
                                       .buttons = forms::Buttons::YesNoCancel});
  if (resposta == forms::Answer::Yes) return unload();
  if (resposta != forms::Answer::Cancel) return;
  BotoesNeutros();
  TravaCampos();
  LimpaTela();
  encerraEdicao();
  focus(txtCodigo);
}

void frmPropCmrcTL::closeRequested() { cmdSAIR_Click(); }
