#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using consulta::porNumero;
using consulta::porTexto;

// Quotes, orders, payment conditions.

Asked<QString> ParcelasCondPgto(const QString& idcond_pgto) {
  return porNumero(
      {u"SELECT COND_PGTO.QTDE_PARC FROM COND_PGTO Where (COND_PGTO.IDCOND_PGTO = ", u"qtde_parc", u")"},
      idcond_pgto);
}

Asked<QString> DescricaoCondPgto(const QString& idcond_pgto) {
  return porNumero({u"SELECT COND_PGTO.DESC_COND_PGTO FROM COND_PGTO Where (COND_PGTO.IDCOND_PGTO = ",
                    u"desc_cond_pgto", u")"},
                   idcond_pgto);
}

Asked<QString> DiasCondPgto(QString idcond_pgto) {
  data::Recordset rs = co_await pedeConsulta(u"SELECT * From cond_pgto_deta Where idcond_pgto = "_s +
                                             consulta::numero(idcond_pgto) + u" order by nume_parc"_s);
  QString dias;
  for (; !rs.eof(); rs.moveNext()) dias += rs.format(u"qtde_dias", u"000") + u'/';
  co_return dias;
}

Asked<QString> IdPedidoPorNumero(const QString& nume_pedi) {
  return porTexto({u"SELECT idPedi_Veds From pedi_veds Where nume_pedi = ", u"idpedi_veds"}, nume_pedi);
}

Asked<QString> NumeroPedidoDoOrcamento(const QString& idprop_cmrc) {
  return porTexto({u"SELECT nume_pedi, idProp_Cmrc From pedi_veds Where idprop_cmrc = ", u"nume_pedi"},
                  idprop_cmrc);
}

Asked<QString> ClienteDoPedido(const QString& idpedi_veds) {
  return porNumero({u"SELECT idClie From pedi_veds Where idPedi_Veds = ", u"idClie"}, idpedi_veds);
}

Asked<QString> DescontoPedido(const QString& nume_pedi) {
  return porTexto({u"SELECT VALO_DECT From pedi_veds Where nume_pedi = ", u"VALO_DECT"}, nume_pedi);
}

Asked<QString> DataPedido(const QString& nume_pedi) {
  return porNumero({u"SELECT data_pedi FROM pedi_veds where nume_pedi=", u"data_pedi"}, nume_pedi);
}

Asked<QString> DataFechamentoOrcamento(QString idprop_cmrc) {
  const data::Recordset rs = co_await pedeConsulta(
      u"SELECT data_fech From prop_cmrc Where idprop_cmrc = "_s + consulta::entreAspas(idprop_cmrc),
      data::Rows::First);
  co_return rs.eof() ? QString() : rs.formatDate(u"data_fech", u"dd/mm/yyyy");
}

Asked<QString> DescontoOrcamento(const QString& idprop_cmrc) {
  return porTexto({u"SELECT VALO_DECT From prop_cmrc Where idprop_cmrc = ", u"VALO_DECT"}, idprop_cmrc);
}

Asked<QString> CondPgtoOrcamento(const QString& idprop_cmrc) {
  return porTexto({u"SELECT idcond_pgto From prop_cmrc Where idprop_cmrc = ", u"idcond_pgto"}, idprop_cmrc);
}

Asked<QString> DataOrcamento(const QString& idprop_cmrc) {
  return porNumero({u"SELECT data_prop_cmrc FROM prop_cmrc where idprop_cmrc=", u"data_prop_cmrc"},
                   idprop_cmrc);
}

Asked<int> PessoasOrcamento(QString idprop_cmrc) {
  auto pedePessoas =
      porNumero({u"select nume_pess from prop_cmrc where idProp_Cmrc = ", u"NUME_PESS"}, idprop_cmrc);
  const QString pessoas = co_await pedePessoas;
  co_return values::toInt32(leNumero(pessoas));
}
