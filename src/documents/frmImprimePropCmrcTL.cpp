#include "documents/frmImprimePropCmrcTL.h"

using forms::Event;

frmImprimePropCmrcTL::frmImprimePropCmrcTL() : Form(QString::fromUtf16(Name)) {
  setupUi(this);
  on(cmdImprimirPedido, Event::Click, &frmImprimePropCmrcTL::cmdImprimirPedido_Click);
  enterMovesOn({txtPedido, cmdImprimirPedido});
  selectOnFocus({txtPedido});
}
