#include "assembly/frmConfirmaItem.h"

#include "shared/text.h"

frmConfirmaItem::frmConfirmaItem() {
  setupUi(this);
  on(cmdConfirmar, forms::Event::Click, &frmConfirmaItem::cmdConfirmar_Click);
  on(cmdCancelar, forms::Event::Click, [this] { unload(); });
  enterMovesOn({txtQuantidade, txtObservacoes, cmdConfirmar});
  selectOnFocus({txtQuantidade});
  onKeyPress(txtQuantidade, filtraTeclaDecimal);
  escClicks(cmdCancelar);
}
