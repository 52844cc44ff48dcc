#include "assembly/frmMontarProduto.h"
#include "closing/frmConfirmaPropCmrcTL.h"
#include "draft/keeper.h"
#include "draft/screen_fields.h"
#include "platform/forms/controls.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/stored_content.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using rascunho::guarda;
using rascunho::Rascunho;

// A quote that was being edited when the program ended: one line under the title offers it.

namespace {

/// A digest of what is stored under the number that the draft's save was given; empty where nothing is.
QString gravadoNoNumero(const Rascunho& rascunho) {
  const QString& id = rascunho.gravacao.orcamento;
  return id.isEmpty() ? QString() : conteudo::resumo(contexto().Conexao.batch(conteudo::leituras(id)));
}

/// A quote of the same user and customer that was stored after the draft: the draft of a save that a failing
/// disk left without its mark, or the same work done again.
QString gravadoDepois(const Rascunho& rascunho) {
  const QDateTime quando = QDateTime::fromString(rascunho.quando, Qt::ISODate);
  auto rs =
      abreConsulta(u"SELECT IDPROP_CMRC, NOME_CLIE FROM PROP_CMRC WHERE USER_INCL = '"_s + rascunho.usuario +
                   u"' AND DATA_INCL >= '"_s + quando.toString(u"yyyyMMdd hh:mm"_s) + u"'"_s);
  for (; !rs.eof(); rs.moveNext())
    if (maiusculas(apara(rs.text(u"NOME_CLIE"))) == maiusculas(apara(rascunho.cliente)))
      return rs.text(u"IDPROP_CMRC");
  return {};
}

const QString kIndisponivel = u"Este orçamento não salvo não está mais disponível."_s;
const QString kMesmoAssim = u"\r\rDeseja recuperar mesmo assim o que não foi salvo?"_s;

}  // namespace

void frmPropCmrcTL::mostraOferta() {
  const auto& ofertas = guarda().ofertas();
  const bool oferece = !ofertas.isEmpty() && !situacao::editando();
  for (QWidget* parte : std::initializer_list<QWidget*>{lblRascunho, cmdRecuperar, cmdDescartar})
    parte->setVisible(oferece);
  if (!oferece) return;
  QString frase = ofertas.first().frase;
  if (ofertas.size() > 1) frase += u" (mais "_s + QString::number(ofertas.size() - 1) + u")"_s;
  lblRascunho->setText(frase);
  lblRascunho->setToolTip(forms::asTip(frase + u'\n' + ofertas.first().arquivo.path));
  cmdRecuperar->setEnabled(ofertas.first().recuperavel);
}

void frmPropCmrcTL::cmdRecuperar_Click() {
  const auto rascunho = guarda().toma();
  if (!rascunho) return avisa(kIndisponivel);
  const QString gravado = gravadoNoNumero(*rascunho);
  if (!gravado.isEmpty() && gravado == rascunho->gravacao.conteudo) {
    const QString& id = rascunho->gravacao.orcamento;
    avisa(u"Este orçamento já foi gravado: nr. "_s + id);
    guarda().apaga();
    txtCodigo->setText(id);
    return cmdPesquisar_PropCmrc_Click();
  }
  const bool segue =
      rascunho->modo == u"A" ? carregaAntesDeRecuperar(*rascunho) : aindaFalta(*rascunho, !gravado.isEmpty());
  if (!segue) return guarda().devolve();
  recupera(*rascunho);
}

/// Whether a new quote goes on although another one has the number that it was given, or one like it was
/// stored since.
bool frmPropCmrcTL::aindaFalta(const Rascunho& rascunho, bool numeroOcupado) {
  if (numeroOcupado)
    return perguntaComCuidado(u"O nr. "_s + rascunho.gravacao.orcamento +
                              u", que este orçamento ia receber, está gravado com outro conteúdo."_s +
                              kMesmoAssim);
  const QString id = gravadoDepois(rascunho);
  return id.isEmpty() || perguntaComCuidado(u"Depois deste foi gravado o orçamento nr. "_s + id +
                                            u", do mesmo cliente."_s + kMesmoAssim);
}

/// The stored quote as it is now; whether the draft goes on from there.
bool frmPropCmrcTL::carregaAntesDeRecuperar(const Rascunho& rascunho) {
  const QString& id = rascunho.orcamento;
  txtRowId->clear();
  txtCodigo->setText(id);
  cmdPesquisar_PropCmrc_Click();
  if (txtRowId->text() != id) return false;
  const QString orcamento = u"O orçamento nr. "_s + id;
  if (const auto [desativado, fechado] = situacaoDoRegistro(); desativado || fechado) {
    avisa(orcamento + (desativado ? u" foi desativado"_s : u" foi fechado"_s) +
          u" depois do que não foi salvo.\rPara recuperá-lo, o registro precisa estar aberto e ativo."_s);
    return false;
  }
  const QString lido = rascunho::resumoDoLido();
  if (lido != rascunho.lido &&
      !perguntaComCuidado(orcamento + u" foi alterado no banco de dados depois do que não foi salvo."_s +
                          kMesmoAssim))
    return false;
  guarda().continua(lido);
  return true;
}

void frmPropCmrcTL::recupera(const Rascunho& rascunho) {
  if (rascunho.modo == u"I") LimpaTela();
  situacao::entra(rascunho.modo, rascunho.modoItem);
  botoesEditando();
  DestravaCampos();
  for (const QString& tela : {forms::formName<frmPropCmrcTL>(), forms::formName<frmConfirmaPropCmrcTL>()})
    rascunho::repoe(rascunho.retrato, tela);
  // What a field does when it is left is done when it is left again.
  auto* campo = rascunho.foco.isEmpty() ? nullptr : findChild<QWidget*>(rascunho.foco);
  focus(campo != nullptr && campo->isVisible() && campo->isEnabled() ? campo : mskDtPropCmrc);
  if (rascunho::temTela(rascunho.retrato, forms::formName<frmMontarProduto>()))
    reabreMontagem(rascunho.retrato);
}

void frmPropCmrcTL::reabreMontagem(const QString& retrato) {
  auto& tela = forms::form<frmMontarProduto>();
  rascunho::repoe(retrato, forms::formName<frmMontarProduto>());
  tela.Flex->grid().setCol(grades::material::Codigo);
  mostraMontagem();
}

void frmPropCmrcTL::cmdDescartar_Click() {
  if (guarda().ofertas().isEmpty()) return;
  // Another one may come while the question waits.
  const rascunho::Oferta oferta = guarda().ofertas().first();
  if (!perguntaComCuidado(oferta.frase + u".\r\rDeseja descartá-lo?"_s)) return;
  if (!guarda().apaga(oferta)) avisa(kIndisponivel);
}
