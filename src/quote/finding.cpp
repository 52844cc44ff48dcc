#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "search/frmBROWSE_PropCmrc.h"
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
