#include <algorithm>

#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "quote/sql_text.h"
#include "run/context.h"

using namespace Qt::StringLiterals;
using cabecalho::Gravado;
using cabecalho::Vazio;

// The statements that write the header of a quote from the screen's fields.

QString frmPropCmrcTL::MontaInsertOrcamento() const {
  Insercao sql(u"PROP_CMRC"_s);
  for (Gravado& um : cabecalho::pedeValores(*this)) {
    const QString valor = waitFor(um.valor);
    sql.campoSe(um.vazio != Vazio::Nulo || !valor.isEmpty(), um.coluna, valor);
  }
  sql.campo(u"DATA_INCL", values::formatDate(values::now(), u"yyyymmdd hh:mm"));
  sql.campo(u"USER_INCL", QString::number(contexto().IdUsuarioAtual));
  return sql.texto();
}

QString frmPropCmrcTL::MontaUpdateOrcamento() const {
  std::vector<Gravado> valores = cabecalho::pedeValores(*this);
  Alteracao sql(u"PROP_CMRC"_s);
  for (const QStringView coluna : cabecalho::ordemDaAlteracao()) {
    const auto um = std::ranges::find(valores, coluna, &Gravado::coluna);
    if (um == valores.end()) continue;
    QString valor = waitFor(um->valor);
    if (const QString* original = cabecalho::intocado(originais_, coluna, *this)) valor = *original;
    sql.campoOuNull(um->vazio == Vazio::Grava || !valor.isEmpty(), coluna, valor);
  }
  return sql.texto(u"WHERE (idPROP_CMRC="_s + txtRowId->text() + u")"_s);
}
