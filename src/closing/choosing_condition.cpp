// The payment condition of a quote, by its id or from the list of conditions.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "search/frmBROWSE_CONDPG.h"
#include "shared/lookups.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmConfirmaPropCmrcTL::cmdPesquisa_CondPg_Click() {
  if (txtIdCondPg->text().isEmpty()) {
    forms::form<frmBROWSE_CONDPG>().showModal();
    return;
  }
  const auto naoLocalizada = [this] { Aviso(u"Condição de Pagamento não localizado!"_s, txtIdCondPg); };
  lblPrazos->clear();
  if (!PodeSerId(txtIdCondPg->text())) return naoLocalizada();
  const forms::WaitPointer espera;
  const data::Recordset rs =
      AbreConsulta(u"SELECT * FROM cond_pgto WHERE idcond_pgto="_s + txtIdCondPg->text());
  if (rs.eof()) return naoLocalizada();
  lblParcelas->setText(rs.text(u"qtde_parc"));
  lblPrazos->setText(DiasCondPgto(rs.text(u"idcond_pgto")));
}
