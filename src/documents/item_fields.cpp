#include "documents/item_fields.h"

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "platform/values/numbers.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

Asked<QString> MascaraDaUnidade(Asked<QString> unidade) {
  const QString idunid = co_await unidade;
  co_return co_await MascaraUnidade(idunid);
}

Asked<ItemDoDocumento> Junta(Asked<QString> codigo, Asked<QString> descricao, Asked<QString> mascara) {
  ItemDoDocumento item;
  item.codigo = co_await codigo;
  item.descricao = co_await descricao;
  item.mascara = co_await mascara;
  co_return item;
}

}  // namespace

Asked<ItemDoDocumento> DoProduto(QString idprod) {
  auto codigo = CodigoProduto(idprod);
  auto descricao = DescricaoProduto(idprod);
  auto mascara = MascaraDaUnidade(UnidadeProduto(idprod));
  return Junta(std::move(codigo), std::move(descricao), std::move(mascara));
}

bool EhProduto(const data::Recordset& rs) { return rs.text(u"prod_prot").toUpper() == u"PROD"; }

Asked<ItemDoDocumento> PorTipo(data::Recordset rs) {
  const QString id = rs.text(u"idprodprot");
  if (EhProduto(rs)) return DoProduto(id);
  auto codigo = ValidaPrototipo(id);
  auto descricao = DescricaoPrototipo(id);
  return Junta(std::move(codigo), std::move(descricao), MascaraDoItem(rs));
}

Asked<QString> MascaraDoItem(data::Recordset rs) {
  const QString id = rs.text(u"idprodprot");
  return MascaraDaUnidade(EhProduto(rs) ? UnidadeProduto(id) : UnidadePrototipo(id));
}

data::Recordset ItensDoOrcamento(const QString& id, const QString& condicao) {
  return AbreConsulta(u"SELECT * FROM prop_cmrc_deta where idprop_cmrc="_s + id + condicao);
}

double Valor(const data::Recordset& rs, QStringView campo) {
  return rs.isNull(campo) ? 0.0 : rs.number(campo);
}

QString Dinheiro(const data::Recordset& rs, QStringView campo) { return rs.format(campo, kMascaraMoeda); }

double SomaDescontoPedido(data::Recordset itens) {
  double soma = 0;
  for (; !itens.eof(); itens.moveNext()) soma += Valor(itens, u"valo_dect") * Valor(itens, u"qtde");
  return soma;
}

QString NumeroDoItem(int item) { return values::format(item, u"000"); }

QString CelulaFoto(const QString& codigo) {
  if (!documento().PublicacaoExterna)
    return u"            <td width='25%' align='center'><IMG SRC='"_s +
           html::atributo(LocalizaImagemProduto(codigo)) + u"'></td>"_s;
  const RunContext& c = contexto();
  return u"            <td width='25%' align='center'><a TARGET='_blank' href='"_s +
         html::atributo(c.PathLink + codigo + c.ExtImagens2) + u"'><img border='0' src='"_s +
         html::atributo(c.PathWeb + codigo + c.ExtImagens) + u"'></a></td>"_s;
}
