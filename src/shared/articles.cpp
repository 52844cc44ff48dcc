#include "shared/articles.h"

#include <utility>

#include "shared/text.h"

Asked<UnidadeDeMedida> unidadeDeMedida(QString idunid) {
  UnidadeDeMedida unidade;
  unidade.nome = co_await DescricaoUnidade(idunid);
  const QString casas = co_await CasasDecimaisUnidade(unidade.nome);
  unidade.mascara = MascaraDecimais(casas);
  co_return unidade;
}

Asked<Artigo> artigoDe(Asked<QString> codigo, Asked<QString> descricao, Asked<QString> idunid) {
  Artigo artigo;
  const QString unidade = co_await idunid;
  artigo.unidade = co_await unidadeDeMedida(unidade);
  artigo.codigo = co_await codigo;
  artigo.descricao = co_await descricao;
  co_return artigo;
}

Asked<Artigo> artigoDoProduto(QString idprod) {
  auto codigo = CodigoProduto(idprod);
  auto descricao = DescricaoProduto(idprod);
  return artigoDe(std::move(codigo), std::move(descricao), UnidadeProduto(idprod));
}

Asked<Artigo> artigoDoPrototipo(QString idprot) {
  auto codigo = ValidaPrototipo(idprot);
  auto descricao = DescricaoPrototipo(idprot);
  return artigoDe(std::move(codigo), std::move(descricao), UnidadePrototipo(idprot));
}
