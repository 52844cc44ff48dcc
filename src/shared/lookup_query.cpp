#include "shared/lookup_query.h"

#include "platform/values/numbers.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace consulta {

namespace {

data::Asked<QString> primeiroValor(data::Asked<data::Recordset> pedida, data::Literal coluna) {
  const data::Recordset rs = co_await pedida;
  co_return rs.eof() ? QString() : rs.text(coluna);
}

data::Asked<QString> pede(const Consulta& consulta, const QString& chave) {
  return primeiroValor(
      pedeConsulta(consulta.antes.toString() + chave + consulta.depois.toString(), data::Rows::First),
      consulta.coluna);
}

}  // namespace

QString entreAspas(const QString& chave) { return u'\'' + apara(chave) + u'\''; }

QString numero(const QString& chave) { return VirgulaParaPonto(values::toText(leNumero(chave))); }

data::Asked<QString> porTexto(const Consulta& consulta, const QString& chave) {
  return pede(consulta, entreAspas(chave));
}

data::Asked<QString> porNumero(const Consulta& consulta, const QString& chave) {
  return pede(consulta, numero(chave));
}

data::Asked<QString> semChave(const Consulta& consulta) { return pede(consulta, {}); }

QString emCampos(const data::Recordset& rs, const QStringList& colunas) {
  QString campos;
  if (rs.eof()) return campos;
  for (const QString& coluna : colunas) campos += rs.text(coluna).replace(u'^', u' ') + u'^';
  return campos;
}

}  // namespace consulta
