#include "documents/item_fields.h"

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "platform/values/numbers.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/pictures.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

bool ehProduto(const data::Recordset& rs) { return rs.text(u"prod_prot").toUpper() == u"PROD"; }

Asked<Artigo> itemPorTipo(data::Recordset rs) {
  const QString id = rs.text(u"idprodprot");
  return ehProduto(rs) ? artigoDoProduto(id) : artigoDoPrototipo(id);
}

data::Recordset itensDoOrcamento(const QString& id, const QString& condicao) {
  return abreConsulta(u"SELECT * FROM prop_cmrc_deta where idprop_cmrc="_s + id + condicao);
}

double valorOuZero(const data::Recordset& rs, QStringView campo) {
  return rs.isNull(campo) ? 0.0 : rs.number(campo);
}

QString emReais(const QString& rotulo) { return rotulo + u"R$ "_s; }

QString dinheiro(const data::Recordset& rs, QStringView campo) { return rs.format(campo, kMascaraMoeda); }

double SomaDescontoPedido(data::Recordset itens) {
  double soma = 0;
  for (; !itens.eof(); itens.moveNext())
    soma += valorOuZero(itens, u"valo_dect") * valorOuZero(itens, u"qtde");
  return soma;
}

QString numeroDoItem(int item) { return values::format(item, u"000"); }

QString celulaFoto(const QString& codigo) {
  if (!documento().PublicacaoExterna)
    return u"            <td width='25%' align='center'><IMG SRC='"_s +
           html::atributo(LocalizaImagemProduto(codigo)) + u"'></td>"_s;
  const Contexto& c = contexto();
  return u"            <td width='25%' align='center'><a TARGET='_blank' href='"_s +
         html::atributo(c.PathLink + codigo + c.ExtImagens2) + u"'><img border='0' src='"_s +
         html::atributo(c.PathWeb + codigo + c.ExtImagens) + u"'></a></td>"_s;
}
