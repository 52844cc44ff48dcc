#include "sample_form.h"

using namespace Qt::StringLiterals;

frmSample::frmSample() : Form(QString::fromUtf16(Name)) {
  static constexpr forms::GridColumn kColumns[] = {
      {u"ID", 0}, {u"Nome", 2000}, {u"Valor", 1000, forms::kRight}};
  Flex->grid().layOut(kColumns);
  on(Flex, forms::Event::DoubleClick, [this] { note(u"Flex!!"_s); });

  auto* inner = new QVBoxLayout(frameOver);
  inner->addWidget(txtOver);
  inner->addWidget(cmdClose);
  on(cmdClose, forms::Event::Click, [this] { closeOverFrame(frameOver); });
  addOverFrame(frameOver, 2160, 0, cmdClose);

  enterMovesOn({txtA, txtB, cboC, cmdTwo});
  selectOnFocus({txtA, cboC});
}
