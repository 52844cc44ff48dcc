#include <QLayout>

#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "text/trim.h"

// An article becomes a line of the assembly.

using namespace Qt::StringLiterals;
using grades::material::Column;

namespace {

/// Whether a data row of the assembly has that text in a column.
bool montagemTem(Column coluna, QStringView texto) {
  const auto& grade = forms::form<frmMontarProduto>().Flex->grid();
  for (int linha = 1; linha < grade.rows(); ++linha)
    if (grade.text(linha, coluna) == texto) return true;
  return false;
}

}  // namespace

void frmConfirmaItem::Form_Load() {
  removeCloseEntry();
  // A long description takes a second line.
  resize(width(), layout()->totalHeightForWidth(width()));
  CentralizaForm(*this);
  txtQuantidade->setText(u"1"_s);
  forms::limitText(txtObservacoes, maximoDaObservacao());
  forms::setLocked(txtObservacoes, lblTipo->text() == kTipoProduto);
  aplicaTemaPadrao(*this);
  forms::setBackColor(txtQuantidade, kCorEntrada);
  forms::setBackColor(txtObservacoes, kCorEntrada);
  (forms::form<frmPropCmrcTL>().opPV->isChecked() ? opPV : opShowRoom)->setChecked(true);
}

void frmConfirmaItem::cmdConfirmar_Click() {
  // The keys let "12%" through, which is no number.
  if (!quantidadeValida(txtQuantidade->text(), windowTitle())) return focus(txtQuantidade);
  if (recusaArtigo()) return unload();
  if (opShowRoom->isChecked()) aplicaShowRoom();
  incluiLinha();
  for (auto* rotulo :
       {lblId, lblCod, lblDesc, lblUnidadeMedida, lblQtUnidadeMedida, lblValor, lblTipo, lblOrdem})
    rotulo->clear();
  unload();
}

bool frmConfirmaItem::recusaArtigo() {
  if (lblTipo->text() == kTipoProduto && montagemTem(Column::Tipo, kTipoProduto)) {
    recusa(u"Cada montagem somente poderá comportar um produto!"_s,
           u"Finalize esta montagem e solicite uma nova!"_s);
    return true;
  }
  if (montagemTem(Column::Codigo, lblCod->text())) {
    recusa(u"Item já foi inserido!"_s, u"O mesmo não poderá ser duplicado!"_s);
    return true;
  }
  return false;
}

void frmConfirmaItem::recusa(const QString& motivo, const QString& conselho) {
  avisa(u"Item: "_s + lblCod->text() + u"\r"_s + motivo + u"\r"_s + conselho);
}

void frmConfirmaItem::aplicaShowRoom() {
  // A multiplier, though its name says percent.
  const QString percentual = waitFor(ParametroEmpresa(u"PERCENTUAL_SHOWROOM"_s));
  double fator = percentual.isEmpty() ? 1 : values::toNumber(percentual);
  if (fator == 0) fator = 1;
  lblValor->setText(values::toText(values::toNumber(lblValor->text()) * fator));
  lblValor->setText(emMoeda(lblValor->text()));
}

void frmConfirmaItem::incluiLinha() {
  auto& montagem = forms::form<frmMontarProduto>();
  const double total = values::toNumber(txtQuantidade->text()) * values::toNumber(lblValor->text());
  auto& grade = montagem.Flex->grid();
  grade.addRow({{Column::Id, lblId->text()},
                {Column::Codigo, lblCod->text()},
                {Column::Descricao, lblDesc->text()},
                {Column::Quantidade, txtQuantidade->text()},
                {Column::Unidade, lblUnidadeMedida->text()},
                {Column::QtUnidade, lblQtUnidadeMedida->text()},
                {Column::ValorUnitario, lblValor->text()},
                {Column::Total, emMoeda(total)},
                {Column::Tipo, lblTipo->text()},
                {Column::Observacao, apara(txtObservacoes->text())},
                {Column::Ordem, lblOrdem->text()}});
  montagem.marcaLinha(grade.rows() - 1);
  grade.sortAscending(Column::Ordem);
  montagem.RecalculaTotalProduto();
}
