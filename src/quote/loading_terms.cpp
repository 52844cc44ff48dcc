#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"

frmPropCmrcTL::Termos frmPropCmrcTL::pedeTermosDaConfirmacao(const data::Recordset& rs) {
  const auto pede = [&rs](QStringView coluna, const auto& consulta) {
    return rs.isNull(coluna) ? data::known(QString()) : consulta(rs.text(coluna));
  };
  return {.transportadora = pede(u"idtrpt", NomeConhecidoTransportadora),
          .parcelas = pede(u"idcond_pgto", ParcelasCondPgto),
          .prazos = pede(u"idcond_pgto", DiasCondPgto)};
}

/// The confirmation screen shows a quote's stored terms as soon as the quote is on the screen.
void frmPropCmrcTL::carregaConfirmacao(const data::Recordset& rs, Termos& termos) {
  auto& tela = forms::form<frmConfirmaPropCmrcTL>();
  tela.comecaOrcamento(rs.text(u"idprop_cmrc"));
  forms::setControlText(tela.txtObservacaoPedido, rs.text(u"OBSE_PEDI_VEDS"));
  tela.cboTransportadora->setText(waitFor(termos.transportadora));
  tela.mskDataBase->setBoxText(rs.isNull(u"DATA_BASE") ? values::formatDate(values::now(), u"dd/mm/yyyy")
                                                       : rs.formatDate(u"DATA_BASE", u"dd/mm/yyyy"));
  if (rs.isNull(u"idcond_pgto")) return;
  forms::setControlText(tela.txtIdCondPg, rs.text(u"idcond_pgto"));
  forms::setControlText(tela.lblParcelas, waitFor(termos.parcelas));
  forms::setControlText(tela.lblPrazos, waitFor(termos.prazos));
}
