#include "sample_form.h"

using namespace Qt::StringLiterals;

frmSample::frmSample() : Form(QString::fromUtf16(Name)), layout_(new QVBoxLayout(this)) {
  static constexpr forms::GridColumn kColumns[] = {
      {u"ID", 0}, {u"Nome", 2000}, {u"Valor", 1000, forms::kRight}};
  txtA = add(new QLineEdit, u"txtA"_s);
  txtB = add(new QLineEdit, u"txtB"_s);
  cboC = add(new forms::Combo, u"cboC"_s);
  txtLines = add(new QPlainTextEdit, u"txtLines"_s);
  Flex = add(new forms::FlexGrid, u"Flex"_s);
  cmdOne = add(new QPushButton(u"&One"_s), u"cmdOne"_s);
  cmdTwo = add(new QPushButton(u"&Two"_s), u"cmdTwo"_s);
  Flex->grid().layOut(kColumns);
  on(Flex, forms::Event::DoubleClick, [this] { note(u"Flex!!"_s); });

  frameOver = new QFrame(this);
  auto* inner = new QVBoxLayout(frameOver);
  txtOver = new QLineEdit(frameOver);
  txtOver->setObjectName(u"txtOver"_s);
  cmdClose = new QPushButton(u"Fechar"_s, frameOver);
  cmdClose->setObjectName(u"cmdClose"_s);
  inner->addWidget(txtOver);
  inner->addWidget(cmdClose);
  on(cmdClose, forms::Event::Click, [this] { closeOverFrame(frameOver); });
  addOverFrame(frameOver, 2160, 0, cmdClose);

  enterMovesOn({txtA, txtB, cboC, cmdTwo});
  selectOnFocus({txtA, cboC});
}

frmOther::frmOther() : Form(QString::fromUtf16(Name)), cmdGo(new QPushButton(u"Go"_s, this)) {
  cmdGo->setObjectName(u"cmdGo"_s);
}
