// Items of an order: one box for each, or the table with the shipments.
#include <array>

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "documents/item_table.h"
#include "documents/order_blocks.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;
using html::fixo;
using html::kFim;

namespace {

data::Recordset itensDoPedido(const QString& numero) {
  return abreConsulta(u"SELECT * FROM pedi_veds_deta where idpedi_veds='"_s +
                      waitFor(IdPedidoPorNumero(numero)) + u'\'');
}

Asked<Artigo> itemDaLinha(const data::Recordset& rs) { return artigoDoProduto(rs.text(u"idprod")); }

/// How a box looks: with inline styles or with classes.
struct Aspecto {
  QString (*titulo)(const QString&);  ///< opens the box's cell and puts the heading into it
  QString (*rotulo)(const QString&);
  QString (*dado)(const QString&);
};

QString emLinha(int pontos, bool negrito, const QString& texto) {
  return u"<span style='"_s + html::estilo(pontos, negrito) + u"'>"_s + html::escapado(texto) + u"</span>"_s;
}
QString deClasse(const QString& classe, const QString& texto) {
  return u"<span class='"_s + classe + u"'>"_s + html::escapado(texto) + u"</span>"_s;
}

QString tituloEmLinha(const QString& texto) {
  return u"        <td style='"_s + html::estilo(12, true) + u"' align='center'>"_s + kFim + u"        "_s +
         texto;
}
QString tituloDeClasse(const QString& texto) {
  return u"        <td align='center'>"_s + kFim + u"        "_s + deClasse(u"titulo2"_s, texto);
}

constexpr Aspecto kEmLinha{tituloEmLinha, [](const QString& t) { return emLinha(8, true, t); },
                           [](const QString& t) { return emLinha(8, false, t); }};
constexpr Aspecto kDeClasse{tituloDeClasse, [](const QString& t) { return deClasse(u"dados2"_s, t); },
                            [](const QString& t) { return deClasse(u"dados1a"_s, t); }};

/// Without a photo the description takes its width.
std::array<Coluna, 3> colunas(bool fotos) {
  return {{{u"Codigo"_s, u"15%"_s, coluna::codigo},
           {u"Descrição"_s, fotos ? u"45%"_s : u"70%"_s, coluna::descricao},
           {u"Quant."_s, u"15%"_s, coluna::quantidade, kDireita}}};
}

QString montaCaixa(const ItemImpresso& item, int numero, bool fotos, const Aspecto& aspecto) {
  QString titulos = fotos ? celulas::celula(u"25%"_s, kCentro, aspecto.rotulo(u"Foto"_s)) : QString();
  QString dados = fotos ? celulaFoto(item.artigo.codigo) + kFim : QString();
  for (const Coluna& coluna : colunas(fotos)) {
    titulos += celulas::celula(coluna.largura, coluna.lado, aspecto.rotulo(coluna.titulo));
    dados += celulas::celula(coluna.largura, coluna.lado, aspecto.dado(coluna.valor(item)));
  }
  const QString valores = emReais(u"Valor Unitário: "_s) + coluna::valorUnitario(item) +
                          emReais(u" - Total: "_s) + coluna::valorTotal(item);
  return fixo(
             uR"(<!--Detalhes - Itens 1-->
<P>
<table border='1' align='center' width=670>
    <tr>
%1
        <table border='0' align='center' width=660>
%2        </table>
        <table border='0' align='center' width=660>
%3        </table>
        </td>
    </tr>
</table>
)")
      .arg(aspecto.titulo(u"Produto - "_s + numeroDoItem(numero)),
           celulas::linha(titulos) + celulas::linha(dados),
           celulas::linha(celulas::celula(u"100%"_s, kCentro, aspecto.rotulo(valores))));
}

QString montaCaixas(const QString& numero, const Aspecto& aspecto) {
  const bool fotos = documento().ExibeFotos;
  data::Recordset rs = itensDoPedido(numero);
  QString texto;
  int quantos = 0;
  for (auto& item : data::startEachRow(rs, itemDaLinha)) {
    texto += montaCaixa({rs, waitFor(item)}, ++quantos, fotos, aspecto);
    rs.moveNext();
  }
  return texto;
}

}  // namespace

QString ItensPedidoHTML(const QString& numero, const QString&) { return montaCaixas(numero, kEmLinha); }

QString ItensPedidoEstilosHTML(const QString& numero, const QString&) {
  return montaCaixas(numero, kDeClasse);
}

QString ItensPedidoFotoHTML(const QString& numero, const QString&) {
  return tabelaComTotais({.itens = itensDoPedido(numero),
                          .item = itemDaLinha,
                          .campoProduto = u"idprod"_s,
                          .fotos = documento().ExibeFotos,
                          .embarques = true,
                          .numero = numero});
}
