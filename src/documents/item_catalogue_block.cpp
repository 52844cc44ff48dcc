// Items of a quote as a catalogue: one box for each, with its composition and its photos.
#include <array>

#include "documents/document_values.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "documents/quote_blocks.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using html::fixo;
using html::kFim;

namespace {

// Composition of a prototype, as it is sorted and printed.
namespace composicao {
enum Column { Codigo, Descricao, Quantidade, Unidade };
constexpr std::array<forms::GridColumn, 4> kLayout{{{u"", 0}, {u"", 0}, {u"", 0}, {u"", 0}}};
}  // namespace composicao

// An article that is not in the catalogue stands there as free text.
QString LinhaDoKit(const data::Recordset& kit) {
  const bool livre = Valor(kit, u"idprod") == 0;
  const QString idprod = kit.text(u"idprod");
  const QString idunid = livre ? kit.text(u"idunid_nprod") : UnidadeProduto(idprod);
  const QString unidade = DescricaoUnidade(idunid);
  const QString quantidade =  // installations call the column by either name
      kit.columns().contains(u"QTDE_PROD"_s, Qt::CaseInsensitive) ? u"QTDE_PROD"_s : u"qtde"_s;
  forms::RowBuilder linha;
  linha << (livre ? u"NPROD"_s : CodigoProduto(idprod))
        << (livre ? kit.text(u"DESC_NPROD") : DescricaoProduto(idprod))
        << kit.format(quantidade, MascaraDecimais(CasasDecimaisUnidade(unidade))) << unidade;
  return linha.text();
}

void EncheFlexTemp(const QString& idprot) {
  forms::GridModel& grid = documento().FlexTemp;
  grid.layOut(composicao::kLayout);
  for (data::Recordset kit = AbreConsulta(u"select * from prot_kit0 where idprot="_s + idprot); !kit.eof();
       kit.moveNext())
    grid.addItem(LinhaDoKit(kit));
  if (documento().OrdemComposicao == u"DESCRICAO") grid.sortAscending(composicao::Descricao);
}

QString Composicao(const QString& idprot) {
  EncheFlexTemp(idprot);
  const forms::GridModel& grid = documento().FlexTemp;
  QString texto = fixo(
      u"<!--Detalhe do Detalhe-->\n"
      u"<table border='1' width=400 bordercolor='#e2cda0' cellspacing=0 cellpadding=2>\n");
  const auto celula = [&](int linha, int coluna, const QString& atributos) {
    texto += u"    <td "_s + atributos + u"><span class='dados1'>"_s +
             html::escapado(grid.text(linha, coluna)) + u"</span></td>"_s + kFim;
  };
  for (int linha = 1; linha < grid.rows(); ++linha) {
    texto += u"<tr>"_s + kFim;
    celula(linha, composicao::Codigo, u"width=15%"_s);
    celula(linha, composicao::Descricao, u"width=60%"_s);
    celula(linha, composicao::Quantidade, u"width=10% align=right"_s);
    celula(linha, composicao::Unidade, u"width=15%"_s);
    texto += u"</tr>"_s + kFim;
  }
  return texto + u"</table>"_s + kFim;
}

QString Foto(const QString& codigo) {
  if (documento().PublicacaoExterna && !LocalizaImagemPrototipo(codigo))
    return u"<td align='center'><img border='0' src='"_s +
           html::atributo(contexto().PathWeb + u"imagem_branco.jpg"_s) + u"'></td>"_s;
  return CelulaFoto(codigo);
}

QString Fotos(const QString& codigo) {
  QString texto = fixo(u"<td width=270px align=center valign=top>\n<table border='0' align='center'>\n");
  for (const char16_t* sufixo : {u"", u"_2", u"_3", u"_4"})
    texto += u"<tr>"_s + Foto(Apara(codigo) + QString::fromUtf16(sufixo)) + u"</tr>"_s + kFim;
  return texto + u"</table>"_s + kFim + u"</td>"_s + kFim;
}

QString Valores(const data::Recordset& rs, const ItemDoDocumento& item) {
  const QString observacao = EhProduto(rs) ? QString() : ObservacaoPrototipo(rs.text(u"idprodprot"));
  return fixo(
             uR"(<table border='0' width=400 cellspacing=0 cellpadding=2>
<tr><td><span class='dados1a'>Quantidade: %1</span></td></tr>
<tr><td><span class='dados1c'>Valor Unitário: R$ %2</span></td></tr>
<tr><td><span class='dados1c'>Total: R$ %3</span></td></tr>
<tr><td><span class='dados1a'>Observações: %4</span></td></tr>
</table>
)")
      .arg(rs.format(u"QTDE", item.mascara), Dinheiro(rs, u"VALO_LIQU"), Dinheiro(rs, u"VALO_TOTA"),
           html::escapado(observacao));
}

QString Caixa(const data::Recordset& rs, int numero) {
  const ItemDoDocumento item = PorTipo(rs);
  QString texto = fixo(
                      uR"(<table align='center' width=660px height=30px><tr><td></td></tr></table>
<table border='0' align='center' width=670 cellspacing=0 cellpadding=2>
<tr>
<td valign=top>
<table border='0' width=400 cellspacing=0 cellpadding=2>
<tr>
<td><span class='titulo2'>Protótipo %1</span></td>
</tr>
<tr><td align=center><span class='titulo4'>%2 - Código %3</span>
</td></tr>
</table>
)")
                      .arg(NumeroDoItem(numero), html::escapado(item.descricao), html::escapado(item.codigo));
  if (documento().ExibeComposicao) texto += Composicao(rs.text(u"idprodprot"));
  texto += Valores(rs, item) + u"</td>"_s + kFim;
  if (documento().ExibeFotos) texto += Fotos(item.codigo);
  return texto + fixo(u"</tr>\n</table>\n");
}

}  // namespace

QString ItensOrcaEstilosHTML(const QString& id, const QString&, const QString& caminho) {
  int numero = 0;
  for (data::Recordset rs = ItensDoOrcamento(id); !rs.eof(); rs.moveNext())
    html::acrescenta(caminho, Caixa(rs, ++numero));
  return {};
}
