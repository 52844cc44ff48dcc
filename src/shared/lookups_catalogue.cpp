#include "platform/values/numbers.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using consulta::porNumero;
using consulta::porTexto;

// Products, prototypes, units.

Asked<QString> CodigoProduto(const QString& idprod) {
  return porNumero({u"SELECT codi_prod From prod Where idprod = ", u"codi_prod"}, idprod);
}

Asked<QString> DescricaoProduto(const QString& idprod) {
  return porNumero({u"SELECT desc_prod From prod Where idprod = ", u"desc_prod"}, idprod);
}

Asked<QString> UnidadeProduto(const QString& idprod) {
  return porNumero({u"SELECT idunid From prod Where idprod = ", u"idunid"}, idprod);
}

Asked<QString> MarcaProduto(const QString& idprod) {
  return porTexto({u"select idmarc from prod where idprod=", u"idmarc"}, idprod);
}

Asked<QString> ClassFiscalProduto(const QString& idprod) {
  return porNumero({u"SELECT idClas_Fisc, codi_prod FROM prod WHERE idprod= ", u"idclas_fisc"}, idprod);
}

Asked<QString> CodigoComTributacao(const QString& idclas_fisc) {
  return porNumero({u"select codi_comt from Clas_fisc where idclas_fisc= ", u"codi_comt"}, idclas_fisc);
}

Asked<QString> IdProdutoPorCodigo(const QString& codi_prod) {
  return porTexto({u"select idprod from prod where codi_prod=", u"idprod"}, codi_prod);
}

Asked<QString> DescricaoProdutoPorCodigo(const QString& codi_prod) {
  return porTexto({u"select desc_prod from prod where codi_prod=", u"desc_prod"}, codi_prod);
}

Asked<double> ValorVendaProduto(QString codi_prod) {
  const data::Recordset rs = co_await pedeConsulta(
      u"select valo_veds, idmoed from prod where codi_prod="_s + consulta::entreAspas(codi_prod),
      data::Rows::First);
  const double valor = rs.eof() || rs.isNull(u"valo_veds") ? 0.0 : rs.number(u"valo_veds");
  const QString moeda = rs.eof() ? QString() : rs.text(u"IDMOED");
  const double cotacao = co_await UltimaCotacao(moeda);
  co_return (valor * cotacao);
}

Asked<double> UltimaCotacao(QString idmoed) {
  auto pedeValor = porNumero({u"select data_camb, valo_camb from camb where idmoed =", u"valo_camb",
                              u" and data_desa is null order by data_camb desc"},
                             idmoed);
  const QString valor = co_await pedeValor;
  co_return valor.isEmpty() ? 1.0 : values::toNumber(valor);
}

Asked<QString> ValidaPrototipo(const QString& idprot) {
  return porNumero({u"SELECT idprot From prot Where idprot = ", u"idprot"}, idprot);
}

Asked<QString> UnidadePrototipo(const QString& idprot) {
  return porNumero({u"SELECT idunid From prot Where idprot = ", u"idunid"}, idprot);
}

Asked<QString> DescricaoPrototipo(const QString& idprot) {
  return porNumero({u"SELECT desc_prot From prot Where idprot = ", u"desc_prot"}, idprot);
}

Asked<QString> ObservacaoPrototipo(const QString& idprot) {
  return porNumero({u"SELECT obse_prot From prot Where idprot = ", u"obse_prot"}, idprot);
}

Asked<QString> IdColecao(const QString& desc_cole) {
  return porTexto({u"select idcole from cole where desc_cole=", u"idcole"}, desc_cole);
}

Asked<QString> DescricaoUnidade(const QString& idunid) {
  return porNumero({u"select desc_unid from unid where idunid=", u"desc_unid"}, idunid);
}

Asked<QString> CasasDecimaisUnidade(const QString& desc_unid) {
  return porTexto({u"select qtde_deci from unid where desc_unid=", u"qtde_deci"}, desc_unid);
}
