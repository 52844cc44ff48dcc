#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The names of those honoured or invited.

void frmPropCmrcTL::cmdMultiHomenagem_Click() { openOverFrame(frameHomenageados, txtNomeHomg); }

void frmPropCmrcTL::cmdIncluirHomg_Click() {
  const QString nome = apara(txtNomeHomg->text());
  if (!nome.isEmpty()) {
    forms::GridModel& lista = FlexHomg->grid();
    lista.addRow({{grades::homenageado::Nome, maiusculas(nome)}});
    txtNomeHomg->clear();
    FlexHomg->setTopRow(lista.rows() - 1);
  }
  focus(txtNomeHomg);
}

/// Takes a name out of the list and back into its box, to be mended and added again.
void frmPropCmrcTL::FlexHomg_DblClick() {
  if (!situacao::editando()) return;
  forms::GridModel& lista = FlexHomg->grid();
  const int linha = lista.row();
  if (linha == 0) return;
  // The name's column is chosen on the item grid; the text is the cell chosen in the list.
  Flex->grid().setCol(grades::homenageado::Nome);
  txtNomeHomg->setText(lista.text(linha, lista.col()));
  if (lista.rows() == 2)
    MontaGridHomenageados();
  else
    lista.removeItem(linha);
}
