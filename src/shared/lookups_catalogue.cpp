#include "platform/values/numbers.h"
#include "run/context.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using lookup::byNumber;
using lookup::byText;

// Products, prototypes, units.

QString CodigoProduto(const QString& idprod) {
  return byNumber({u"SELECT codi_prod From prod Where idprod = ", u"codi_prod"}, idprod);
}

QString DescricaoProduto(const QString& idprod) {
  return byNumber({u"SELECT desc_prod From prod Where idprod = ", u"desc_prod"}, idprod);
}

QString UnidadeProduto(const QString& idprod) {
  return byNumber({u"SELECT idunid From prod Where idprod = ", u"idunid"}, idprod);
}

QString MarcaProduto(const QString& idprod) {
  return byText({u"select idmarc from prod where idprod=", u"idmarc"}, idprod);
}

QString ClassFiscalProduto(const QString& idprod) {
  return byNumber({u"SELECT idClas_Fisc, codi_prod FROM prod WHERE idprod= ", u"idclas_fisc"}, idprod);
}

QString CodigoComTributacao(const QString& idclas_fisc) {
  return byNumber({u"select codi_comt from Clas_fisc where idclas_fisc= ", u"codi_comt"}, idclas_fisc);
}

QString IdProdutoPorCodigo(const QString& codi_prod) {
  return byText({u"select idprod from prod where codi_prod=", u"idprod"}, codi_prod);
}

QString DescricaoProdutoPorCodigo(const QString& codi_prod) {
  return byText({u"select desc_prod from prod where codi_prod=", u"desc_prod"}, codi_prod);
}

double ValorVendaProduto(const QString& codi_prod) {
  QString& sql = contexto().sqlFuncoes;
  sql = u"select valo_veds, idmoed from prod where codi_prod="_s + lookup::quoted(codi_prod);
  const auto rs = AbreConsulta(sql);
  const double valor = rs.eof() || rs.isNull(u"valo_veds") ? 0.0 : rs.number(u"valo_veds");
  return valor * UltimaCotacao(rs.eof() ? QString() : rs.text(u"IDMOED"));
}

double UltimaCotacao(const QString& idmoed) {
  const QString valor = byNumber({u"select data_camb, valo_camb from camb where idmoed =", u"valo_camb",
                                  u" and data_desa is null order by data_camb desc"},
                                 idmoed);
  return valor.isEmpty() ? 1.0 : values::toNumber(valor);
}

QString ValidaPrototipo(const QString& idprot) {
  return byNumber({u"SELECT idprot From prot Where idprot = ", u"idprot"}, idprot);
}

QString UnidadePrototipo(const QString& idprot) {
  return byNumber({u"SELECT idunid From prot Where idprot = ", u"idunid"}, idprot);
}

QString DescricaoPrototipo(const QString& idprot) {
  return byNumber({u"SELECT desc_prot From prot Where idprot = ", u"desc_prot"}, idprot);
}

QString ObservacaoPrototipo(const QString& idprot) {
  return byNumber({u"SELECT obse_prot From prot Where idprot = ", u"obse_prot"}, idprot);
}

QString IdColecao(const QString& desc_cole) {
  return byText({u"select idcole from cole where desc_cole=", u"idcole"}, desc_cole);
}

QString DescricaoUnidade(const QString& idunid) {
  return byNumber({u"select desc_unid from unid where idunid=", u"desc_unid"}, idunid);
}

QString CasasDecimaisUnidade(const QString& desc_unid) {
  return byText({u"select qtde_deci from unid where desc_unid=", u"qtde_deci"}, desc_unid);
}

QString MascaraUnidade(const QString& idunid) {
  return MascaraDecimais(CasasDecimaisUnidade(DescricaoUnidade(idunid)));
}
