#include "quote/frmPropCmrcTL.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_Prototipo.h"

/// The searches hand nothing to this screen: the user types the code seen there.
void frmPropCmrcTL::abrePesquisaItem() {
  if (opPROD->isChecked()) return forms::form<frmBROWSE_PRODUTO>().showModal();
  auto& tela = forms::form<frmBROWSE_Prototipo>();
  tela.chkSomenteSemProd->setChecked(true);
  tela.showModal();
}
