#include <QLayout>
#include <optional>
#include <utility>

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

QString frmMontarProduto::recusaDoArtigo(QStringView tipo, QStringView codigo) const {
  const auto tem = [&grade = Flex->grid()](Column coluna, QStringView texto) {
    for (int linha = 1; linha < grade.rows(); ++linha)
      if (grade.text(linha, coluna) == texto) return true;
    return false;
  };
  if (tipo == kTipoProduto && tem(Column::Tipo, kTipoProduto))
    return u"Cada montagem somente poderá comportar um produto!\rFinalize esta montagem e solicite uma nova!"_s;
  if (tem(Column::Codigo, codigo)) return u"Item já foi inserido!\rO mesmo não poderá ser duplicado!"_s;
  return {};
}

void frmMontarProduto::incluiArtigo(forms::GridRow artigo, std::optional<double> fator) {
  QString valor = artigo.text(Column::ValorUnitario);
  if (fator) valor = emMoeda(values::toText(values::toNumber(valor) * *fator));
  artigo.set(Column::ValorUnitario, valor);
  artigo.set(Column::Total,
             emMoeda(values::toNumber(artigo.text(Column::Quantidade)) * values::toNumber(valor)));
  auto& grade = Flex->grid();
  grade.addRow(std::move(artigo));
  grade.setRow(grade.rows() - 1);
  grade.setCol(Column::Codigo);
}

void frmMontarProduto::arrumaLinhas() {
  Flex->grid().sortAscending(Column::Ordem);
  RecalculaTotalProduto();
}

double fatorShowRoom() {
  // A multiplier, though its name says percent.
  const QString percentual = waitFor(ParametroEmpresa(u"PERCENTUAL_SHOWROOM"_s));
  const double fator = percentual.isEmpty() ? 1 : values::toNumber(percentual);
  return fator == 0 ? 1 : fator;
}

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
  auto& montagem = forms::form<frmMontarProduto>();
  const QString recusa = montagem.recusaDoArtigo(lblTipo->text(), lblCod->text());
  if (!recusa.isEmpty()) {
    avisa(u"Item: "_s + lblCod->text() + u"\r"_s + recusa);
    return unload();
  }
  montagem.incluiArtigo({{Column::Id, lblId->text()},
                         {Column::Codigo, lblCod->text()},
                         {Column::Descricao, lblDesc->text()},
                         {Column::Quantidade, txtQuantidade->text()},
                         {Column::Unidade, lblUnidadeMedida->text()},
                         {Column::QtUnidade, lblQtUnidadeMedida->text()},
                         {Column::ValorUnitario, lblValor->text()},
                         {Column::Tipo, lblTipo->text()},
                         {Column::Observacao, apara(txtObservacoes->text())},
                         {Column::Ordem, lblOrdem->text()}},
                        opShowRoom->isChecked() ? std::optional(fatorShowRoom()) : std::nullopt);
  montagem.arrumaLinhas();
  for (auto* rotulo :
       {lblId, lblCod, lblDesc, lblUnidadeMedida, lblQtUnidadeMedida, lblValor, lblTipo, lblOrdem})
    rotulo->clear();
  unload();
}
