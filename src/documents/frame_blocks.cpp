#include "documents/frame_blocks.h"

#include "documents/company_texts.h"
#include "documents/contacts.h"
#include "documents/document_values.h"
#include "documents/html_text.h"
#include "documents/texts_clauses.h"
#include "documents/texts_frame.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using html::atributo;
using html::escapado;
using html::fixo;
using html::kFim;

namespace {

const QString kCondicoes = u"Condições Gerais"_s;

data::Recordset linhaDaEmpresa() { return abreConsulta(u"SELECT * FROM empr where data_desa is null"_s); }

QString enderecoDaEmpresa(const data::Recordset& rs) {
  return QStringList{rs.text(u"ende_coml_empr"), rs.text(u"cida_coml_empr"), rs.text(u"uf00_coml_empr"),
                     rs.text(u"cep0_coml_empr")}
      .join(u" - "_s);
}

/// A text broken at blanks over lines of the file, indented from the second on.
QString quebraLinhas(QString texto) {
  constexpr qsizetype kLargura = 100;
  const QString quebra = kFim + u"      "_s;
  for (qsizetype inicio = 0; texto.size() - inicio > kLargura;) {
    const qsizetype branco = texto.lastIndexOf(u' ', inicio + kLargura);
    texto.replace(branco, 1, quebra);
    inicio = branco + quebra.size();
  }
  return texto;
}

/// The quote's clauses as the styled documents have them: the second, third and fifth over several lines.
QStringList clausulasEstilos() {
  QStringList textos = empresa::kClausulas.first(clausulas::kOrcamento.size());
  for (const int longa : {1, 2, 4}) textos[longa] = quebraLinhas(textos[longa]);
  return textos;
}

QString blocoDaEmpresa() {
  const data::Recordset rs = linhaDaEmpresa();
  if (rs.eof()) return {};
  const QStringList linhas{
      rs.text(u"cnpj_empr"), enderecoDaEmpresa(rs),
      apara(rs.text(u"tele_0001_empr")) + u" - "_s + apara(rs.text(u"emai_empr_usox")).toLower(),
      rs.text(u"http_empr").toLower()};
  QString texto =
      fixo(
          uR"(<table border='0' bgcolor=#ffffff align='center' width=400px cellspacing=0 cellpadding=2>
<tr align='center'>
<td height=25px>
<span class='cabecalho1'>%1</span>
</td></tr>
</table>
<table border='0' align='center' width=400px cellspacing=0 cellpadding=2>
)")
          .arg(escapado(rs.text(u"nome_empr")));
  for (const QString& linha : linhas)
    texto += u"<tr align='center'><td><span class='cabecalho2'>"_s + escapado(linha) +
             u"</span></td></tr>"_s + kFim;
  return texto + u"</table>"_s + kFim;
}

}  // namespace

QString imagemDaCasa(const QString& arquivo) {
  return (documento().PublicacaoExterna ? contexto().PathWeb : contexto().PathImagens) + arquivo;
}

QString AbreDocumentoHTML(const QString& titulo) {
  return fixo(textos::kInicioHead).arg(escapado(apara(titulo))) + fixo(textos::kFimHead);
}

QString AbreDocumentoHTMLEstilos(const QString& titulo) {
  return fixo(textos::kInicioHead).arg(escapado(apara(titulo))) + fixo(textos::kEstilos);
}

QString AbreDocumentoSimplesHTML(const QString&) { return fixo(textos::kHeadSimples); }

QString CabecalhoEmpresaHTML() {
  const data::Recordset rs = linhaDaEmpresa();
  if (rs.eof()) return {};
  const empresa::Contatos contatos = empresa::contatos();
  // The fax number is the house's own, whatever the company's row says.
  return fixo(textos::kCabecalhoEmpresa)
      .arg(atributo(imagemDaCasa(empresa::kLogoCliente)), escapado(rs.text(u"nome_empr")),
           escapado(u"CNPJ:"_s + rs.text(u"cnpj_empr") + u" - I.E.:"_s + rs.text(u"IE00_EMPR")),
           escapado(enderecoDaEmpresa(rs)),
           escapado(u"Tel.: "_s + apara(rs.text(u"tele_0001_empr")) + u" - "_s +
                    apara(rs.text(u"tele_0002_empr")) + u" - Fax: 55 11 3000-0001"_s),
           escapado(contatos.email), escapado(contatos.site));
}

QString CabecalhoLogoHTML() {
  return fixo(textos::kCabecalhoLogo).arg(atributo(imagemDaCasa(empresa::kLogoCliente)));
}

QString CabecalhoFixoHTML() {
  return fixo(textos::kCabecalhoFixo)
      .arg(atributo(imagemDaCasa(empresa::kLogoFixo)), empresa::kNome, empresa::kEndereco, empresa::kCidade,
           escapado(empresa::contatos().site), empresa::kFoneFax);
}

QString NomeRelatorioHTML(const QString& texto, const QString& alinhamento) {
  return fixo(textos::kNomeRelatorio).arg(alinhamento, escapado(apara(texto)));
}

QString NomeRelatorioEstilosHTML(const QString& texto, const QString&) {
  return fixo(textos::kNomeRelatorioEstilos).arg(escapado(apara(texto)));
}

QString TextoVazio2(const QString&, const QString&) { return {}; }

QString AssinaturaHTML(const QString&, const QString&) { return fixo(textos::kAssinatura); }

QString RodapeOrcaHTML() { return html::quadro({u"Rodapé"_s, kCondicoes, clausulas::kOrcamento}); }

QString RodapeOrcaEstilosHTML() {
  return html::quadroEstilos({u"Rodapé"_s, kCondicoes, clausulasEstilos()}, u"titulo4"_s, u"dados1"_s) +
         u"<table align='center' width=660px height=20px><tr><td></td></tr></table>"_s + kFim +
         blocoDaEmpresa();
}

QString TextoVazio() { return {}; }

QString RodapePedidoHTML(const QString&) {
  const QString modelo = waitFor(ParametroEmpresa(u"MODELO_PEDIDO_VEDS"_s));
  if (modelo.isEmpty() || modelo == u"1")
    return html::quadro({u"Rodapé"_s, kCondicoes, clausulas::kPedido, 0});
  // The table of imported goods ends on an open row, the place for a clause written by hand.
  if (modelo == u"2") return html::quadro({u"Rodapé"_s, kCondicoes, clausulas::kPedidoImportados, 1, true});
  return {};
}

QString FechaDocumentoHTML() { return fixo(textos::kFecha); }
