#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"

/// The confirmation screen shows a quote's stored terms as soon as the quote is on the screen.
void frmPropCmrcTL::carregaConfirmacao(const data::Recordset& rs) {
  auto& tela = forms::form<frmConfirmaPropCmrcTL>();
  forms::setControlText(tela.txtObservacaoPedido, rs.text(u"OBSE_PEDI_VEDS"));
  tela.cboTransportadora->setText(rs.isNull(u"idtrpt") ? QString()
                                                       : NomeConhecidoTransportadora(rs.text(u"idtrpt")));
  tela.mskDataBase->setBoxText(rs.isNull(u"DATA_BASE") ? values::formatDate(values::now(), u"dd/mm/yyyy")
                                                       : rs.formatDate(u"DATA_BASE", u"dd/mm/yyyy"));
  if (rs.isNull(u"idcond_pgto")) return;
  const QString condicao = rs.text(u"idcond_pgto");
  forms::setControlText(tela.txtIdCondPg, condicao);
  forms::setControlText(tela.lblParcelas, ParcelasCondPgto(condicao));
  forms::setControlText(tela.lblPrazos, DiasCondPgto(condicao));
}
