#include "assembly/frmMontarProduto.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/articles.h"
#include "shared/comma_numbers.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

// Leaving the assembly: the composite goes to the quote as one item and its materials, or what was there
// before goes back.

using namespace Qt::StringLiterals;
using grades::material::Column;

namespace {

/// What an item of the quote takes from its assembly.
struct ItemMontado {
  const forms::GridModel& origem;  ///< its product line gives id, code, description and unit
  QString unitario, quantidade, total, observacao;
};

/// Adds the item as the last of the quote, and its materials tied to it.
void entregaItem(const ItemMontado& montado) {
  auto& orcamento = forms::form<frmPropCmrcTL>();
  const int produto = linhaProduto(montado.origem);
  const auto celula = [&](Column coluna) { return montado.origem.text(produto, coluna); };
  using namespace grades;
  orcamento.Flex->grid().addRow({{item::Id, celula(Column::Id)},
                                 {item::Tipo, kProduto},
                                 {item::Codigo, celula(Column::Codigo)},
                                 {item::Descricao, celula(Column::Descricao)},
                                 {item::VrBruto, montado.unitario},
                                 {item::Desconto, emMoeda(0.0)},
                                 {item::VrUnit, montado.unitario},
                                 {item::Quantidade, montado.quantidade},
                                 {item::Total, montado.total},
                                 {item::Unidade, celula(Column::Unidade)},
                                 {item::Observacao, montado.observacao}});

  const QString vinculo = QString::number(orcamento.Flex->grid().rows() - 1);
  for (int linha = 1; linha < montado.origem.rows(); ++linha) {
    forms::GridRow campos = montado.origem.rowTexts(linha);
    campos.set(Column::VinculoComFlex, vinculo);
    orcamento.FlexMonta.addRow(campos);
  }
}

}  // namespace

int linhaProduto(const forms::GridModel& materiais) {
  for (int linha = 1; linha < materiais.rows(); ++linha)
    if (materiais.text(linha, Column::Tipo) == kTipoProduto) return linha;
  return 1;
}

QString frmMontarProduto::totalDoItem() const {
  const auto& grade = Flex->grid();
  // The unit of the prototype of that number gives the decimals; without one the quantity counts as whole.
  const QString mascara =
      waitFor(unidadeDeMedida(waitFor(UnidadePrototipo(grade.text(linhaProduto(grade), Column::Id)))))
          .mascara;
  return emMoeda(leNumero(values::format(txtQuantidade->text(), mascara)) *
                 leNumero(emMoeda(lblTotalUnitarioProduto->text())));
}

/// The box where it alone was changed, which then is the product line's remark too; else that of the product
/// line, but where it has none, or what its length left of the item's, the item keeps the one it had.
QString frmMontarProduto::observacaoDoItem() {
  auto& grade = Flex->grid();
  const int produto = linhaProduto(grade);
  const QString daLinha = apara(grade.text(produto, Column::Observacao));
  const bool mudouLinha =
      !daLinha.isEmpty() && daLinha != apara(FlexSombra.text(linhaProduto(FlexSombra), Column::Observacao));
  QString doItem = apara(txtObservacoes->text());
  QString antes = apara(txtObservacoesSombra->text());
  if (doItem != antes && !mudouLinha) {
    grade.setText(produto, Column::Observacao, apara(corta(doItem, maximoDaObservacao())));
    return doItem;
  }
  const bool fica = daLinha.isEmpty() || daLinha == apara(corta(antes, maximoDaObservacao()));
  return fica ? antes : daLinha;
}

/// Whether what was opened is the line that left the quote: after a removal its number can name the materials
/// of another.
bool frmMontarProduto::voltaOMesmoItem() const {
  const auto& aberto = forms::form<frmPropCmrcTL>().ItemNaMontagem;
  return aberto.rows() <= 1 ||
         (maiusculas(aberto.text(1, grades::item::Tipo)) == grades::kProduto &&
          aberto.text(1, grades::item::Id) == FlexSombra.text(linhaProduto(FlexSombra), Column::Id));
}

void frmMontarProduto::cmdConfirmar_Click() {
  const auto& grade = Flex->grid();
  const int produto = linhaProduto(grade);
  if (grade.text(produto, Column::Tipo) != kTipoProduto)
    return avisa(u"Não é possível finalizar, pois falta item do tipo PRODUTO"_s, windowTitle());
  // Reading stops at a comma: "0,5" is none. "1.500" is three numbers to three readers.
  const QString quantidade = txtQuantidade->text();
  if (values::leadingNumber(quantidade) <= 0 || quantidade.contains(u'.'))
    return avisa(recusaDoNumero(u"Quantidade Inválida!"_s, quantidade), txtQuantidade);

  const QString observacao = observacaoDoItem();
  entregaItem({grade, emMoeda(lblTotalUnitarioProduto->text()), quantidade, totalDoItem(), observacao});
  PreparaGradeMontagem();
  preparaGradesPesquisa();
  unload();
}

void frmMontarProduto::cmdCancelar_Click() {
  if (!pergunta(u"Tem certeza que deseja cancelar a operação? (S/N)"_s, windowTitle())) return;
  // Else the quote puts the line back as it was, without materials.
  if (FlexSombra.rows() > 1 && voltaOMesmoItem()) {
    // The materials go back as they were; quantity, price and observation stay as they stand now.
    const QString unitario = lblTotalUnitarioProduto->text();
    const int produto = linhaProduto(FlexSombra);
    const bool tem = FlexSombra.text(produto, Column::Tipo) == kTipoProduto;
    entregaItem({FlexSombra, emMoeda(unitario), txtQuantidade->text(),
                 emMoeda(leValor(txtQuantidade->text()) * leValor(unitario)),
                 apara(tem ? txtObservacoes->text() : FlexSombra.text(produto, Column::Observacao))});
  }
  PreparaGradeMontagem();
  preparaGradesPesquisa();
  PreparaGradeSombra();
  unload();
}
