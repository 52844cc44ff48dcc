// The payment condition of a quote, by its id or from the list of conditions.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "search/frmBROWSE_CONDPG.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmConfirmaPropCmrcTL::cmdPesquisa_CondPg_Click() {
  if (txtIdCondPg->text().isEmpty()) {
    forms::form<frmBROWSE_CONDPG>().showModal();
    return;
  }
  const auto naoLocalizada = [this] { avisa(u"Condição de Pagamento não localizado!"_s, txtIdCondPg); };
  lblPrazos->clear();
  if (!podeSerId(txtIdCondPg->text())) return naoLocalizada();
  const forms::WaitPointer espera;
  const data::Recordset rs =
      abreConsulta(u"SELECT * FROM cond_pgto WHERE idcond_pgto="_s + txtIdCondPg->text());
  if (rs.eof()) return naoLocalizada();
  lblParcelas->setText(rs.text(u"qtde_parc"));
  lblPrazos->setText(waitFor(DiasCondPgto(rs.text(u"idcond_pgto"))));
}
