#include "assembly/kit.h"

#include "shared/articles.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace {

enum Coluna { Id, Codigo, Descricao, Unidade, Quantidade };

Asked<forms::GridRow> linhaDoKit(data::Recordset rs) {
  const QString id = rs.text(u"idprod_kit0");
  const Artigo artigo = co_await artigoDoProduto(id);
  forms::GridRow linha;
  linha.set(Id, id);
  linha.set(Codigo, artigo.codigo);
  linha.set(Descricao, artigo.descricao);
  linha.set(Unidade, artigo.unidade.nome);
  linha.set(Quantidade, rs.format(u"QTDE_PROD", artigo.unidade.mascara));
  co_return linha;
}

}  // namespace

void carregaKit(forms::GridModel& grade, const QString& codigo) {
  if (codigo.isEmpty()) return;
  const QString produto = waitFor(IdProdutoPorCodigo(codigo));
  const data::Recordset rs = abreConsulta(u"select * from prod_kit0 where idprod = "_s +
                                          consulta::numero(produto) + u" and data_desa is null"_s);
  grade.addRows(waitFor(data::forEachRow(rs, linhaDoKit)));
  grade.sortAscending(Codigo);
}
