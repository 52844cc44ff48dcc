#include <utility>

#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// Finding a quote by its number. A choice in the search screen brings a number and no quote: the commands
// that act on a quote load it first.

/// Without a number the search screen opens, and its choice comes back through txtRowId and txtCodigo.
void frmPropCmrcTL::cmdPesquisar_PropCmrc_Click() {
  if (!txtCodigo->text().isEmpty()) return carregaNumero();
  forms::form<frmBROWSE_PropCmrc>().showModal();
  // Where nothing was chosen a number can be typed at once.
  if (txtCodigo->text().isEmpty()) focus(txtCodigo);
  mostraSituacao();
}

Asked<QString> frmPropCmrcTL::pedeAnteriores(const QString& cliente) {
  // The search breaks on a quote mark.
  if (apara(cliente).isEmpty() || cliente.contains(u'\'')) return data::known(QString());
  return consulta::porTexto({u"SELECT COUNT(*) AS QTDE FROM PROP_CMRC Where (PROP_CMRC.DATA_DESA Is Null)  "
                             u"And (PROP_CMRC.NOME_CLIE Like ",
                             u"QTDE", u") "},
                            u'%' + apara(cliente) + u'%');
}

void frmPropCmrcTL::mostraAnteriores(const QString& quantos) {
  const int numero = quantos.toInt();
  cmdAnteriores->setText(numero == 1 ? u"1 anterior"_s : quantos + u" anteriores"_s);
  cmdAnteriores->setVisible(numero > 0);
}

/// The customer's quotes, in the search that her name filters. While a quote is edited nothing is handed
/// back: a choice would turn its save to another one.
void frmPropCmrcTL::cmdAnteriores_Click() {
  QString& chamadora = contexto().TelaChamadora;
  const QString antes = chamadora;
  if (situacao::editando()) chamadora.clear();
  auto& pesquisa = forms::form<frmBROWSE_PropCmrc>();
  pesquisa.procuraCliente(apara(cboCliente->text()));
  pesquisa.showModal();
  chamadora = antes;
  mostraSituacao();
}

bool frmPropCmrcTL::faltaCarregar() const {
  return !situacao::editando() && !txtRowId->text().isEmpty() && txtRowId->text() != idCarregado_;
}

bool frmPropCmrcTL::digitouOutro() const {
  const QString numero = apara(txtCodigo->text());
  return !numero.isEmpty() && leNumero(numero) != leNumero(txtRowId->text());
}

bool frmPropCmrcTL::carregaEscolhido() {
  if (!faltaCarregar()) return true;
  txtCodigo->setText(txtRowId->text());
  carregaNumero();
  return !faltaCarregar();
}

void frmPropCmrcTL::carregaNumero() {
  const auto naoLocalizado = [this] { avisa(u"Orçamento não localizado!"_s, txtCodigo); };
  if (!podeSerId(txtCodigo->text())) return naoLocalizado();
  const forms::WaitPointer espera;
  const data::Recordset rs =
      abreConsulta(u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='"_s + apara(txtCodigo->text()) + u"'"_s);
  if (rs.eof()) return naoLocalizado();
  txtRowId->setText(rs.text(u"idprop_cmrc"));
  CarregaOrcamento();
  const QString pedido = waitFor(NumeroPedidoDoOrcamento(txtCodigo->text()));
  // A quote without an order shows the number zero, pale.
  lblNumePedido->setEnabled(!pedido.isEmpty());
  lblNumePedido->setText(numeroDocumento(pedido.isEmpty() ? u"0"_s : pedido));
  CalculaTotais();
}
