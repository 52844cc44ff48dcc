#include "documents/frmImprimePropCmrcTL.h"

using forms::Event;

frmImprimePropCmrcTL::frmImprimePropCmrcTL() {
  setupUi(this);
  on(cmdImprimirPedido, Event::Click, &frmImprimePropCmrcTL::cmdImprimirPedido_Click);
  enterMovesOn({txtPedido, cmdImprimirPedido});
  selectOnFocus({txtPedido});
}
