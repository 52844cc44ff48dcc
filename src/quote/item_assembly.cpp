#include "assembly/frmMontarProduto.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

// Items by the assembly screen: a new one, or one of the grid that goes back there to be changed.

void frmPropCmrcTL::cmdIncluirItem_Click() {
  contexto().ModoItem = u"I"_s;
  mostraMontagem();
}

void frmPropCmrcTL::mostraMontagem() {
  forms::GridModel& itens = Flex->grid();
  const int restantes = itens.rows();
  forms::form<frmMontarProduto>().showModal();
  // A cancel puts nothing back for a line without materials, or with those of another.
  if (itens.rows() == restantes && ItemNaMontagem.rows() > 1) itens.addRow(ItemNaMontagem.rowTexts(1));
  ItemNaMontagem.layOut(grades::item::kLayout);
  CalculaTotais();
}

/// The item leaves the grid before the assembly screen opens and comes back as its last row.
void frmPropCmrcTL::alteraItem() {
  forms::GridModel& itens = Flex->grid();
  const int linha = itens.row();
  if (linha == 0) return;
  ItemNaMontagem.layOut(grades::item::kLayout);
  ItemNaMontagem.addRow(itens.rowTexts(linha));
  passaParaMontagem(linha);
  soltaMateriais(linha, grades::material::VinculoComFlex);
  tiraLinha(linha, grades::material::VinculoComFlex);
  CalculaTotais();
  contexto().ModoItem = u"A"_s;
  mostraMontagem();
}

void frmPropCmrcTL::MontaGridMontagemProduto() { forms::form<frmMontarProduto>().PreparaGradeMontagem(); }

void frmPropCmrcTL::passaParaMontagem(int linha) {
  using namespace grades;
  auto& tela = forms::form<frmMontarProduto>();
  const auto celula = [this, linha](item::Column coluna) { return Flex->grid().text(linha, coluna); };
  MontaGridMontagemProduto();
  for (int i = 1; i < FlexMonta.rows(); ++i) {
    if (leNumero(FlexMonta.text(i, material::VinculoComFlex)) != linha) continue;
    // These two have no column for the link: it is left out.
    const forms::GridRow campos = FlexMonta.rowTexts(i);
    tela.Flex->grid().addRow(campos);
    tela.FlexSombra.addRow(campos);
  }

  tela.Flex->grid().setRow(linhaProduto(tela.Flex->grid()));
  tela.Flex->grid().setCol(material::Codigo);
  tela.txtObservacoes->setText(celula(item::Observacao));
  tela.txtObservacoesSombra->setText(celula(item::Observacao));
  tela.txtQuantidade->setText(celula(item::Quantidade));
  tela.txtQuantidadeSombra->setText(celula(item::Quantidade));
  tela.lblTotalUnitarioProduto->setText(emMoeda(celula(item::VrUnit)));
}
