#include "shared/lookups.h"

#include "run/context.h"
#include "shared/text.h"

data::Recordset AbreConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.query(Maiusculas(sql), linhas);
}

data::Asked<data::Recordset> PedeConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.ask(Maiusculas(sql), linhas);
}
