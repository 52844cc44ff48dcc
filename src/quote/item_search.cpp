#include "quote/frmPropCmrcTL.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"

/// The chosen id and code come back into the panel; the user presses "Pesquisar" once more.
void frmPropCmrcTL::abrePesquisaItem() {
  if (opPROD->isChecked()) return forms::form<frmBROWSE_PRODUTO>().showModal();
  auto& tela = forms::form<frmBROWSE_Prototipo>();
  tela.chkSomenteSemProd->setChecked(true);
  tela.showModal();
}
