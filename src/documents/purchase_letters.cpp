// Letters to suppliers: a request for prices and a purchase order.
#include <array>
#include <optional>
#include <span>

#include "documents/company_texts.h"
#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/documents.h"
#include "documents/frame_blocks.h"
#include "documents/grid_table.h"
#include "documents/html_text.h"
#include "documents/item_fields.h"
#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using html::fixo;
using html::kFim;

namespace {

QString quantidade(const ItemImpresso& item) { return item.rs.text(u"QTDE"); }
QString valorTotal(const ItemImpresso& item) {
  return emMoeda(valorOuZero(item.rs, u"QTDE") * valorOuZero(item.rs, u"VALO_LIQU"));
}

const std::array<Coluna, 2> kCotacao{{
    {u"Descrição"_s, u"70%"_s, coluna::descricao},
    {u"Quantidade"_s, u"30%"_s, quantidade, kDireita},
}};
const std::array<Coluna, 4> kOrdem{{
    {u"Descrição"_s, u"55%"_s, coluna::descricao},
    {u"Quantidade"_s, u"15%"_s, quantidade, kDireita},
    {u"Valor Unit."_s, u"15%"_s, coluna::valorUnitario, kDireita},
    {u"Valor Total"_s, u"15%"_s, valorTotal, kDireita},
}};

/// Reads a result; a failing statement is shown to the user and gives nothing.
std::optional<data::Recordset> consultaOuAvisa(const QString& sql) {
  try {
    return abreConsulta(sql);
  } catch (const values::RuntimeError& erro) {
    forms::reportRuntimeError(erro, u"frmPedHTML"_s);
    avisaFalha(u"Problemas no Sistema. Avise o suporte técnico"_s);
    return {};
  }
}

QString montaParagrafos(const QStringList& linhas) {
  QString texto = fixo(u"<table border='0' width='800' align='center'>\n");
  for (const QString& linha : linhas)
    texto += u"    <tr><td><font face='Verdana' size='2'>"_s + html::escapado(linha) +
             u"</font></td></tr>"_s + kFim;
  return texto + fixo(u"</table>\n<br>\n");
}

QString montaDespedida(QStringList antes) {
  return u"<br>"_s + kFim +
         montaParagrafos(antes << u"Atenciosamente,"_s << empresa::kMarca << u"Departamento de Compras"_s);
}

Asked<QString> descricaoDe(data::Recordset rs) {
  if (valorOuZero(rs, u"idprod") > 0) co_return co_await DescricaoProduto(rs.text(u"idprod"));
  co_return rs.text(u"DESC_NPROD");
}

/// The table of the letter's items.
QString tabelaDosItens(std::span<const Coluna> colunas, data::Recordset itens) {
  QString texto = grade::abre() + grade::titulos(colunas);
  for (auto& descricao : data::startEachRow(itens, descricaoDe)) {
    texto += grade::item(colunas, {itens, {{}, waitFor(descricao), {}}});
    itens.moveNext();
  }
  return texto + grade::fecha();
}

void grava(const QString& caminho, const QString& tituloDaPagina, const QString& corpo) {
  html::Iniciado arquivo(caminho);
  html::acrescenta(arquivo.parte(),
                   AbreDocumentoHTML(tituloDaPagina) + CabecalhoFixoHTML() + corpo + FechaDocumentoHTML());
  arquivo.pronto();
}

/// Name and contact of the supplier that the letter picks; empty where there is none.
struct Fornecedor {
  QString nome, contato;
};

Fornecedor fornecedorDaLetra(const data::Recordset& rs) {
  const QString letra = documento().letraFornecedor;
  if (letra.size() != 1 || !u"ABCDE"_s.contains(letra)) return {};
  const QString id = u"IDFORN_"_s + letra;
  return {rs.isNull(id) ? QString() : waitFor(NomeFornecedor(rs.text(id))), rs.text(u"CONT_FORN_"_s + letra)};
}

}  // namespace

void CotacaoCompraHTML(qint32 id, const QString& caminho) {
  const QString chave = QString::number(id);
  const auto rs = consultaOuAvisa(u"SELECT * From cota_comp Where idcota_comp = '"_s + chave + u'\'');
  if (!rs || rs->eof()) return;
  const Fornecedor fornecedor = fornecedorDaLetra(*rs);
  const auto itens = consultaOuAvisa(u"SELECT * From cota_comp_deta Where idcota_comp = '"_s + chave + u'\'');
  if (!itens) return;

  const QString corpo =
      montaParagrafos(
          {u"À"_s + fornecedor.nome, fornecedor.contato, u"Prezados,"_s,
           u"Favor encaminhar seu orçamento e melhores condições de fornecimento para os itens abaixo:"_s,
           u"Data limite para resposta: "_s + rs->formatDate(u"DATA_LIMI_COTA_COMP", u"dd/mm/yyyy")}) +
      tabelaDosItens(kCotacao, *itens);
  grava(caminho, u"Cotação de Compras - "_s + numeroDocumento(id), corpo + montaDespedida({}));
}

void OrdemCompraHTML(qint32 id, const QString& caminho) {
  const QString chave = QString::number(id);
  const auto rs = consultaOuAvisa(u"SELECT * From pedi_comp Where idpedi_comp = '"_s + chave + u'\'');
  if (!rs || rs->eof()) return;
  const QString fornecedor = rs->isNull(u"idforn") ? QString() : waitFor(NomeFornecedor(rs->text(u"idforn")));
  const auto itens = consultaOuAvisa(u"SELECT * From pedi_comp_deta Where idpedi_comp = "_s + chave);
  if (!itens) return;

  const QString corpo =
      montaParagrafos({u"À"_s + fornecedor, u"Ordem de Compra: "_s + rs->text(u"idpedi_comp"), u"Prezados,"_s,
                       u"Seu orçamento foi aprovado. Confirmamos a compra dos itens abaixo:"_s}) +
      tabelaDosItens(kOrdem, *itens);
  grava(caminho, u"Ordem de Compras - "_s + numeroDocumento(id),
        corpo + montaDespedida({u"Favor informar o número desta Ordem de Compra em sua NF."_s,
                                u"Data de Entrega: "_s + rs->formatDate(u"data_prev_entg", u"dd/mm/yyyy")}));
}
