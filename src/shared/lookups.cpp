#include "shared/lookups.h"

#include "run/context.h"
#include "shared/text.h"

data::Recordset abreConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.query(maiusculas(sql), linhas);
}

data::Asked<data::Recordset> pedeConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.ask(maiusculas(sql), linhas);
}
