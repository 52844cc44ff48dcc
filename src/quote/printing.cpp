#include "documents/document_values.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

void frmPropCmrcTL::cmdImprimir_Click() {
  // A number that was typed without a quote on the screen, or instead of a chosen one, goes to the print
  // screen as it is.
  if (digitouOutro() && !faltaCarregar() && !idCarregado_.isEmpty()) {
    txtCodigo->setText(idCarregado_);
    mostraSituacao();
  }
  if (!digitouOutro() && !carregaEscolhido()) return;
  const QString contato = apara(txtEmailExtraContato->text());
  QString destinatarios = apara(txtEmailExtra->text());
  if (!destinatarios.isEmpty() && !contato.isEmpty()) destinatarios += u", "_s;
  ValoresDoDocumento& valores = documento();
  valores.DestinatariosEmail = (destinatarios + contato).toLower();
  valores.orcamentoDosDestinatarios = values::toInt32(leNumero(txtRowId->text()));
  valores.MensagemTravadaEmail = true;
  forms::form<frmImprimePropCmrcTL>().showModal();
}
