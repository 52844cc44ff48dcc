#include "draft/screen_fields.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "shared/messages.h"

using namespace Qt::StringLiterals;

// A new quote that begins over one on the screen is a copy of it.

/// What is true of the one on the screen alone is not copied: its dates, its order, what was approved in it.
void frmPropCmrcTL::fazCopia() {
  for (const auto& campo : cabecalho::campos())
    if (!campo.digitado() && campo.controle != u"txtRowId") cabecalho::limpa(campo, *this);
  forms::GridModel& itens = Flex->grid();
  for (int linha = 1; linha < itens.rows(); ++linha) itens.setText(linha, grades::item::DtAprov, {});
  CalculaTotais();
  copiado_ = rascunho::resumoDoLido();
}

void frmPropCmrcTL::cmdComecarEmBranco_Click() {
  if (rascunho::resumoDoLido() != copiado_ &&
      !pergunta(u"A cópia já foi alterada.\rDeseja começar em branco mesmo assim?"_s))
    return;
  LimpaTela();
  cmdINCLUIR_Click();
}
