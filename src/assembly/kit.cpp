#include "assembly/kit.h"

#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

enum Coluna { Id, Codigo, Descricao, Unidade, Quantidade };

Asked<forms::GridRow> linhaDoKit(data::Recordset rs) {
  const QString id = rs.text(u"idprod_kit0");
  auto pedeIdUnidade = UnidadeProduto(id);
  auto pedeCodigo = CodigoProduto(id);
  auto pedeDescricao = DescricaoProduto(id);
  const QString idUnidade = co_await pedeIdUnidade;
  const QString unidade = co_await DescricaoUnidade(idUnidade);
  const QString casas = co_await CasasDecimaisUnidade(unidade);
  const QString codigo = co_await pedeCodigo;
  const QString descricao = co_await pedeDescricao;
  forms::GridRow linha;
  linha.set(Id, id);
  linha.set(Codigo, codigo);
  linha.set(Descricao, descricao);
  linha.set(Unidade, unidade);
  linha.set(Quantidade, rs.format(u"QTDE_PROD", MascaraDecimais(casas)));
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
