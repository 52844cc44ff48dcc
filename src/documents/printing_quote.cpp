// The print screen's work: takes the number from the quote screen, finds the quote, shows its document.
#include "documents/document_values.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "documents/frmPedHTML.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/theme.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

void frmImprimePropCmrcTL::Form_Load() {
  AplicaCoresForm(*this);
  adjustSize();
  CentralizaForm(*this);
  if (contexto().TelaChamadora != forms::formName<frmPropCmrcTL>()) return;
  const QString codigo = forms::form<frmPropCmrcTL>().txtCodigo->text();
  if (!apara(codigo).isEmpty()) txtPedido->setText(codigo);
  opInterno->setChecked(true);
}

void frmImprimePropCmrcTL::cmdImprimirPedido_Click() {
  if (txtPedido->text().isEmpty()) return avisa(u"Informe o Nr. do Documento!"_s, txtPedido);
  ValoresDoDocumento& valores = documento();
  data::Recordset& rs = valores.rsImpressao;
  rs = abreConsulta(u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='"_s + apara(txtPedido->text()) + u'\'');
  if (rs.eof()) {
    avisa(u"Documento não localizado!"_s, txtPedido);
    rs.close();
    return;
  }
  valores.TipoDocumento = u"ORCA_VENDAS"_s;
  valores.IdDocumento = values::toInt32(rs.number(u"idprop_cmrc"));
  valores.PublicacaoExterna = opExterno->isChecked();
  valores.ExibeComposicao = true;
  valores.OrdemComposicao = u"NATURAL"_s;
  valores.ExibeFotos = false;
  valores.ExibeMontagem = true;
  forms::form<frmPedHTML>().showModal();
  rs.close();
  txtPedido->clear();
  focus(txtPedido);
}
