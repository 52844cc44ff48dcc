#include "platform/forms/boxes.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The item panel: a product or a prototype by its code, priced on the spot, appended to the items.

namespace {

/// Discount per unit of a product: a percentage that stands, or one that runs until its last day.
QString descontoDoProduto(const data::Recordset& rs, double bruto) {
  const bool semLimite = rs.isNull(u"data_limi_prom");
  if (semLimite && rs.isNull(u"PERC_DECT")) return emMoeda(0);
  if (!semLimite && values::today() > rs.date(u"data_limi_prom").date()) return emMoeda(0);
  return emMoeda(rs.number(u"PERC_DECT") / 100 * bruto);
}

}  // namespace

void frmPropCmrcTL::esvaziaItem() {
  for (QLineEdit* caixa : {txtCodProduto, txtObseDetaItem, txtidProdProt}) caixa->clear();
  lblDescProt->clear();
  for (QWidget* campo :
       std::initializer_list<QWidget*>{txtQuantidade, lblVrBrutoProt, lblVrLiqProt, txtDesconto})
    forms::setControlText(campo, u"0"_s);
}

void frmPropCmrcTL::LimpaCamposItem() {
  esvaziaItem();
  focus(txtCodProduto);
}

void frmPropCmrcTL::cmdPesquisar_ProdProt_Click() {
  if (!opPROD->isChecked() && !opPROT->isChecked()) return avisa(u"Falta Definição da Origem!"_s);
  if (txtCodProduto->text().isEmpty()) return abrePesquisaItem();
  if (opPROD->isChecked())
    pesquisaProduto();
  else
    pesquisaPrototipo();
}

void frmPropCmrcTL::recusaDesativado(const QString& texto) {
  forms::msgBox({.text = texto});
  focus(txtCodProduto);
}

void frmPropCmrcTL::pesquisaProduto() {
  const forms::WaitPointer espera;
  const data::Recordset rs =
      abreConsulta(u"SELECT * FROM prod WHERE codi_prod='"_s + txtCodProduto->text() + u"'"_s);
  if (rs.eof()) return avisa(u"Produto Não Localizado!"_s);
  if (!rs.isNull(u"data_desa")) return recusaDesativado(u"Produto Desativado!"_s);
  txtidProdProt->setText(rs.text(u"idprod"));
  lblDescProt->setText(rs.text(u"desc_prod"));
  lblVrBrutoProt->setText(emMoeda(waitFor(ValorVendaProduto(txtCodProduto->text()))));
  txtDesconto->setText(descontoDoProduto(rs, leNumero(lblVrBrutoProt->text())));
  mostraPrecoLiquido();
  lblUnidadeMedida->setText(waitFor(DescricaoUnidade(waitFor(UnidadeProduto(rs.text(u"idprod"))))));
  focus(txtQuantidade);
}

void frmPropCmrcTL::pesquisaPrototipo() {
  const forms::WaitPointer espera;
  if (!values::isNumeric(apara(txtCodProduto->text())))
    return avisa(u"O Código de Protótipo é formado apenas por números!"_s, txtCodProduto);
  const data::Recordset rs =
      abreConsulta(u"SELECT * FROM prot WHERE idprot='"_s + txtCodProduto->text() + u"'"_s);
  if (rs.eof()) return avisa(u"Protótipo Não Localizado!"_s);
  if (!rs.isNull(u"data_desa")) return recusaDesativado(u"Protótipo Desativado!"_s);
  if (!rs.isNull(u"idprod") && rs.number(u"idprod") > 0)
    return avisa(
        u"Este Protótipo Não Poderá Ser Usado, pois já se tornou um Produto\r"
        "Escolha a Opção Inserção de Produto e Não de Protótipo\rCódigo do Produto:"_s +
            waitFor(CodigoProduto(rs.text(u"idprod"))),
        txtCodProduto);
  txtidProdProt->setText(rs.text(u"idprot"));
  lblDescProt->setText(rs.text(u"desc_prot"));
  lblVrBrutoProt->setText(rs.format(u"valo_veds", kMascaraMoeda));
  // The discount and the unit stay what the last lookup left there.
  mostraPrecoLiquido();
  focus(txtQuantidade);
}

void frmPropCmrcTL::mostraPrecoLiquido() {
  txtDesconto->setText(emMoeda(txtDesconto->text()));
  lblVrLiqProt->setText(emMoeda(leNumero(lblVrBrutoProt->text()) - leNumero(txtDesconto->text())));
}

void frmPropCmrcTL::txtDesconto_GotFocus() {
  avisa(
      u"Para usar o campo desconto:\rEm valores - Basta informar o valor do desconto;\r"
      "Em percentual - Basta informar o valor em percentual e acrescentar o sinal % no final do valor"_s);
  SelecionaTextoAtivo();
}

void frmPropCmrcTL::txtDesconto_LostFocus() {
  if (const QString texto = txtDesconto->text(); texto.endsWith(u'%')) {
    const double desconto = values::toNumber(lblVrBrutoProt->text()) * (leNumero(texto.chopped(1)) / 100);
    txtDesconto->setText(emMoeda(values::toText(desconto)));
  } else {
    txtDesconto->setText(emMoeda(texto));
  }
  if (values::toNumber(lblVrBrutoProt->text()) < leNumero(txtDesconto->text())) {
    avisa(u"O Desconto não poderá ser superior ao valor do Produto!"_s, windowTitle());
    return focus(txtDesconto);
  }
  mostraPrecoLiquido();
}
