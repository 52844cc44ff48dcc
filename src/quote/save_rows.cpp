#include "assembly/material_classes.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/sql_text.h"
#include "run/context.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The statements that write one row of a grid.

namespace {

/// Who writes the row, and on which day.
void auditoria(Insercao& sql) {
  sql.campo(u"data_incl", values::formatDate(values::now(), u"yyyymmdd"));
  sql.campo(u"user_incl", QString::number(contexto().IdUsuarioAtual));
}

}  // namespace

QString frmPropCmrcTL::MontaInsertDetalhe(const QString& idOrcamento, int linha) const {
  using namespace grades::item;
  const auto celula = [this, linha](Column coluna) { return Flex->grid().text(linha, coluna); };

  Insercao sql(u"prop_cmrc_deta"_s);
  sql.campo(u"idprop_cmrc", idOrcamento)
      .campo(u"idmoed", u"0"_s)
      .campo(u"idprodprot", VirgulaParaPonto(values::toText(leNumero(celula(Id)))))
      .campo(u"PROD_PROT", celula(Tipo))
      .numero(u"qtde", celula(Quantidade))
      .numero(u"valo_unit", celula(VrBruto))
      .numero(u"valo_dect", celula(Desconto))
      .numero(u"valo_liqu", celula(VrUnit))
      .numero(u"valo_tota", celula(Total))
      .campoSe(values::isDate(celula(DtAprov)), u"data_aprov",
               values::formatDate(celula(DtAprov), u"yyyymmdd hh:mm"))
      .campo(u"OBSE_PROP_CMRC_DETA", apara(celula(Observacao)));
  auditoria(sql);
  return sql.texto();
}

QString frmPropCmrcTL::montaInsertMontagem(const QString& idOrcamento, const QString& idDetalhe,
                                           int linha) const {
  using namespace grades::material;
  const auto celula = [this, linha](Column coluna) { return FlexMonta.text(linha, coluna); };

  Insercao sql(u"PROP_CMRC_DETA_MONTA"_s);
  sql.campo(u"idPROP_CMRC", idOrcamento)
      .campo(u"idPROP_CMRC_DETA", idDetalhe)
      .campo(u"idPROD", celula(Id))
      .numero(u"QTDE", celula(Quantidade))
      .campo(u"UNID_MEDI", celula(Unidade))
      .numero(u"QTDE_UNID_MEDI", celula(QtUnidade))
      .numero(u"VALO_UNIT", celula(ValorUnitario))
      .numero(u"VALO_TOTA", celula(Total))
      .campo(u"TIPO_MATE_PRIMA", celula(Tipo))
      .campo(u"OBSE_PROP_CMRC_DETA_MONTA", celula(Observacao))
      .campo(u"ORDEM_MATE_PRIMA", ordemDoTipo(celula(Tipo)));
  auditoria(sql);
  return sql.texto();
}

QString frmPropCmrcTL::MontaInsertHomenageado(const QString& idOrcamento, int linha) const {
  Insercao sql(u"PROP_CMRC_HOMG"_s);
  sql.campo(u"idprop_cmrc", idOrcamento)
      .campo(u"nome_homg", FlexHomg->grid().text(linha, grades::homenageado::Nome));
  auditoria(sql);
  return sql.texto();
}
