#include <algorithm>

#include "assembly/frmMontarProduto.h"
#include "platform/forms/boxes.h"
#include "platform/values/numbers.h"
#include "shared/column_lengths.h"
#include "shared/comma_numbers.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

// Changing and removing lines of the assembly, and their sum.

using namespace Qt::StringLiterals;
using grades::material::Column;

void frmMontarProduto::RecalculaTotalProduto() {
  const auto& grade = Flex->grid();
  lblTotalUnitarioProduto->setText(values::toText(0));
  for (int linha = 1; linha < grade.rows(); ++linha)
    lblTotalUnitarioProduto->setText(
        values::toText(leValor(lblTotalUnitarioProduto->text()) + leValor(grade.text(linha, Column::Total))));
  lblTotalUnitarioProduto->setText(emMoeda(lblTotalUnitarioProduto->text()));
}

void frmMontarProduto::Flex_DblClick() {
  const QString resposta = forms::inputBox({u"Deseja [A]lterar ou [E]xcluir ?"_s, windowTitle(), u"A"_s})
                               .left(1)
                               .trimmed()
                               .toUpper();
  if (resposta.isEmpty()) return;
  if (resposta == u"E"_s)
    excluiLinha();
  else  // any other letter alters too
    alteraLinha();
}

void frmMontarProduto::excluiLinha() {
  auto& grade = Flex->grid();
  if (grade.row() != 0) {
    if (grade.rows() == 2)
      PreparaGradeMontagem();
    else
      grade.removeItem(grade.row());
  }
  RecalculaTotalProduto();
}

void frmMontarProduto::alteraLinha() {
  auto& grade = Flex->grid();
  const int linha = grade.row();
  if (linha == 0) return;
  const QString valor = grade.text(linha, Column::ValorUnitario);

  const QString atual = grade.text(linha, Column::Quantidade);
  const QString quantidade = apara(forms::inputBox(
      {u"Quantidade Atual:"_s + atual + u"\rInformar nova quantidade:"_s, windowTitle(), atual}));
  if (quantidade.isEmpty() || !quantidadeValida(quantidade, windowTitle())) return;
  grade.setText(linha, Column::Quantidade, quantidade);
  grade.setText(linha, Column::Total, emMoeda(values::toNumber(quantidade) * leValor(valor)));
  RecalculaTotalProduto();

  const QString anterior = grade.text(linha, Column::Observacao);
  const QString resposta = forms::inputBox(
      {u"Observação Atual:\r"_s + anterior + u"\rInformar nova observação:"_s, windowTitle(), anterior});
  const QString observacao = corta(apara(resposta), maximoDaObservacao());
  // An observation can be changed but not blanked.
  if (!observacao.isEmpty()) grade.setText(linha, Column::Observacao, maiusculas(observacao));
}

int maximoDaObservacao() {
  constexpr int kMaximo = 250;
  const int daColuna = tamanhoDaColuna(u"obse_prop_cmrc_deta_monta");
  return daColuna > 0 ? std::min(kMaximo, daColuna) : kMaximo;
}

QString recusaDaQuantidade(const QString& quantidade) {
  if (ehNumeroComVirgula(quantidade) && values::toNumber(quantidade) != 0) return {};
  return recusaDoNumero(u"Valor inválido!"_s, quantidade);
}

bool quantidadeValida(const QString& quantidade, const QString& titulo) {
  const QString recusa = recusaDaQuantidade(quantidade);
  if (!recusa.isEmpty()) avisa(recusa, titulo);
  return recusa.isEmpty();
}
