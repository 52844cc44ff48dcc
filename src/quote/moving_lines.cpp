#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"

// The order of the lines, which is that of the documents.

void frmPropCmrcTL::moveLinha(int passo) {
  using namespace grades;
  forms::GridModel& itens = Flex->grid();
  const int linha = itens.row();
  const int outra = linha + passo;
  // The approval names lines by their number.
  if (!situacao::editando() || frameAprova->isVisible()) return;
  if (linha < 1 || outra < 1 || outra >= itens.rows()) return;

  itens.swapRows(linha, outra);
  for (int i = 1; i < FlexMonta.rows(); ++i) {
    const double vinculo = leNumero(FlexMonta.text(i, material::VinculoComFlex));
    if (vinculo != linha && vinculo != outra) continue;
    FlexMonta.setText(i, material::VinculoComFlex, QString::number(vinculo == linha ? outra : linha));
  }
  itens.setRow(outra);
}
