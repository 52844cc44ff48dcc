#include "shared/lookups.h"

#include "run/context.h"
#include "shared/text.h"

data::Recordset abreConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.query(maiusculas(sql), linhas);
}

data::Asked<data::Recordset> pedeConsulta(const QString& sql, data::Rows linhas) {
  return contexto().Conexao.ask(maiusculas(sql), linhas);
}

void executaJuntos(const QStringList& comandos) {
  data::Connection& conexao = contexto().Conexao;
  std::vector<data::Statement> todos;
  for (const QString& comando : comandos) todos.push_back({comando});
  conexao.begin();
  conexao.batch(todos);
  conexao.commit();
}
