#include "platform/forms/boxes.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The item grid: removing a line, and the totals below.

void frmPropCmrcTL::excluiOuAltera(const QString& sugestao) {
  if (!situacao::editando()) return;
  const QString resposta =
      maiusculas(forms::inputBox({.prompt = u"Deseja [E]xclui ou [A]lterar? [E] ou [A]"_s,
                                  .title = u"Exclui ou Altera Item"_s,
                                  .initial = sugestao}));
  if (resposta == u"E") return excluiItem();
  if (resposta == u"A") return alteraItem();
}

void frmPropCmrcTL::excluiItem() {
  using namespace grades;
  forms::GridModel& itens = Flex->grid();
  itens.setCol(item::Codigo);
  const int linha = itens.row();
  const QString codigo = apara(itens.text(linha, item::Codigo));
  // A removal looks at the class order of the materials, not at their link: they keep the link they have.
  soltaMateriais(linha, material::Ordem);
  tiraLinha(linha, material::Ordem);
  CalculaTotais();
  avisa(u"O produto "_s + codigo + u" foi Excluído com sucesso!"_s);
}

/// Empties a column of the materials where it holds the row number.
void frmPropCmrcTL::soltaMateriais(int linha, int coluna) {
  for (int i = 1; i < FlexMonta.rows(); ++i)
    if (leNumero(FlexMonta.text(i, coluna)) == linha) FlexMonta.setText(i, coluna, {});
}

/// Takes an item row out; the numbers of later rows in that column of the materials fall by one.
void frmPropCmrcTL::tiraLinha(int linha, int coluna) {
  forms::GridModel& itens = Flex->grid();
  if (linha == 0) return;
  if (itens.rows() == 2) return MontaGridItens();
  itens.removeItem(linha);
  for (int i = 1; i < FlexMonta.rows(); ++i) {
    const double numero = leNumero(FlexMonta.text(i, coluna));
    if (numero > linha) FlexMonta.setText(i, coluna, values::toText(numero - 1));
  }
}

void frmPropCmrcTL::CalculaTotais() {
  using namespace grades;
  // The labels are the only store of the sums: each is read back for the next addition.
  const auto soma = [](QLabel* rotulo, double valor) {
    rotulo->setText(values::toText(leNumero(rotulo->text()) + valor));
  };
  const std::initializer_list<QLabel*> somas3 = {lblTotaGeral, lblTotaAprov, lblTotaNaoAprov};
  for (QLabel* rotulo : somas3) rotulo->setText(u"0"_s);
  const forms::GridModel& itens = Flex->grid();
  for (int linha = 1; linha < itens.rows(); ++linha) {
    const double total = leNumero(itens.text(linha, item::Total));
    soma(lblTotaGeral, total);
    soma(apara(itens.text(linha, item::DtAprov)).isEmpty() ? lblTotaNaoAprov : lblTotaAprov, total);
  }
  for (QLabel* rotulo : somas3) rotulo->setText(emMoeda(rotulo->text()));
  if (lblDesconto->text().isEmpty()) lblDesconto->setText(u"0"_s);
  lblTotalLiquido->setText(
      emMoeda(values::toNumber(lblTotaAprov->text()) - values::toNumber(lblDesconto->text())));
}
