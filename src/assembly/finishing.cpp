#include "assembly/frmMontarProduto.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

// Leaving the assembly: the composite goes to the quote as one item and its materials, or what was there
// before goes back.

using namespace Qt::StringLiterals;
using grids::material::Column;

namespace {

constexpr int kLinhaProduto = 1;  // the grid is kept sorted by class, the product first

/// What an item of the quote takes from its assembly.
struct ItemMontado {
  const forms::GridModel& origem;  ///< gives id, code and description
  QString unitario, quantidade, total, unidade, observacao;
};

/// Adds the item as the last of the quote, and its materials tied to it.
void entregaItem(const ItemMontado& item) {
  auto& orcamento = forms::form<frmPropCmrcTL>();
  forms::RowBuilder linha;
  linha << item.origem.text(kLinhaProduto, Column::Id) << QString::fromUtf16(grids::kProduto)
        << item.origem.text(kLinhaProduto, Column::Codigo)
        << item.origem.text(kLinhaProduto, Column::Descricao) << item.unitario << Moeda(0.0) << item.unitario
        << item.quantidade << item.total << QString() << item.unidade << item.observacao;
  orcamento.Flex->grid().addItem(linha.text());

  const QString vinculo = QString::number(orcamento.Flex->grid().rows() - 1);
  for (int material = 1; material < item.origem.rows(); ++material) {
    forms::RowBuilder campos;
    for (int coluna = 0; coluna < grids::material::kAssemblyColumns; ++coluna)
      campos << item.origem.text(material, coluna);
    campos << vinculo;
    orcamento.FlexMonta.addItem(campos.text());
  }
}

}  // namespace

bool frmMontarProduto::temProduto() const {
  const auto& grade = Flex->grid();
  for (int linha = 1; linha < grade.rows(); ++linha)
    if (grade.text(linha, Column::Tipo) == kTipoProduto) return true;
  return false;
}

QString frmMontarProduto::totalDoItem() const {
  // The unit of the prototype of that number gives the decimals; without one the quantity counts as whole.
  const QString mascara = MascaraUnidade(UnidadePrototipo(Flex->grid().text(kLinhaProduto, Column::Id)));
  return Moeda(LeNumero(values::format(txtQuantidade->text(), mascara)) *
               LeNumero(Moeda(lblTotalUnitarioProduto->text())));
}

void frmMontarProduto::cmdConfirmar_Click() {
  if (!temProduto())
    return Aviso(u"Não é possível finalizar, pois falta item do tipo PRODUTO"_s, windowTitle());
  // Reading stops at a comma: "0,5" is none.
  if (values::leadingNumber(txtQuantidade->text()) <= 0)
    return Aviso(u"Quantidade Inválida!"_s, txtQuantidade);

  const auto& grade = Flex->grid();
  entregaItem({grade, Moeda(lblTotalUnitarioProduto->text()), txtQuantidade->text(), totalDoItem(),
               grade.text(kLinhaProduto, Column::Unidade),
               Apara(grade.text(kLinhaProduto, Column::Observacao))});
  PreparaGradeMontagem();
  preparaGradesPesquisa();
  unload();
}

void frmMontarProduto::cmdCancelar_Click() {
  if (!Pergunta(u"Tem certeza que deseja cancelar a operação? (S/N)"_s, windowTitle())) return;
  if (FlexSombra.rows() > 1) {
    // The materials go back as they were; quantity, price, unit and observation stay as they stand now.
    const auto& grade = Flex->grid();
    const int atual = grade.row();
    const QString unitario = lblTotalUnitarioProduto->text();
    const bool produto = grade.text(atual, Column::Tipo) == kTipoProduto;
    entregaItem({FlexSombra, Moeda(unitario), txtQuantidade->text(),
                 Moeda(values::toNumber(txtQuantidade->text()) * values::toNumber(unitario)),
                 grade.text(atual, Column::Unidade),
                 Apara(produto ? txtObservacoes->text() : grade.text(atual, Column::Observacao))});
  }
  PreparaGradeMontagem();
  preparaGradesPesquisa();
  PreparaGradeSombra();
  unload();
}
