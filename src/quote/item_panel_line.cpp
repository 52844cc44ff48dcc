#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/articles.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

/// Appends what the panel holds as a line. The totals stay as they are until they are next added up.
void frmPropCmrcTL::cmdIncluir_ProdProt_Click() {
  if (lblDescProt->text().isEmpty()) return avisa(u"Produto/Protótipo Inválido!"_s, txtCodProduto);
  if (txtQuantidade->text().isEmpty() || txtQuantidade->text() == u"0")
    return avisa(u"Quantidade Inválida!"_s, txtQuantidade);
  if (recusaRepetido()) return;

  const bool produto = opPROD->isChecked();
  const QString id = txtidProdProt->text();
  const QString mascara =
      waitFor(unidadeDeMedida(waitFor(produto ? UnidadeProduto(id) : UnidadePrototipo(id)))).mascara;
  const QString quantidade = values::format(txtQuantidade->text(), mascara);
  const double total = leNumero(emMoeda(lblVrLiqProt->text())) * leNumero(quantidade);
  using namespace grades::item;
  Flex->grid().addRow({{Id, id},
                       {Tipo, tipoDoPainel()},
                       {Codigo, txtCodProduto->text()},
                       {Descricao, lblDescProt->text()},
                       {VrBruto, emMoeda(lblVrBrutoProt->text())},
                       {Desconto, emMoeda(txtDesconto->text())},
                       {VrUnit, emMoeda(lblVrLiqProt->text())},
                       {Quantidade, quantidade},
                       {Total, emMoeda(total)},
                       {Unidade, lblUnidadeMedida->text()},
                       {Observacao, apara(txtObseDetaItem->text())}});
  LimpaCamposItem();
}

QString frmPropCmrcTL::tipoDoPainel() const {
  return opPROD->isChecked() ? grades::kProduto : grades::kPrototipo;
}

bool frmPropCmrcTL::recusaRepetido() {
  const QString tipo = tipoDoPainel();
  const QString codigo = txtCodProduto->text();
  const forms::GridModel& itens = Flex->grid();
  for (int linha = 1; linha < itens.rows(); ++linha) {
    if (itens.text(linha, grades::item::Tipo) != tipo || itens.text(linha, grades::item::Codigo) != codigo)
      continue;
    avisa((opPROD->isChecked() ? u"Cod.Produto:"_s : u"Cod.Protótipo:"_s) + codigo +
          u"\rEste item já foi inserido!\rProcesso de Inclusão abortado!"_s);
    LimpaCamposItem();
    return true;
  }
  return false;
}
