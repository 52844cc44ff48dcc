#include "documents/document_values.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

void frmPropCmrcTL::cmdImprimir_Click() {
  // A number that was typed instead of the chosen one goes to the print screen as it is.
  const QString numero = txtCodigo->text();
  const bool digitado = !apara(numero).isEmpty() && leNumero(numero) != leNumero(txtRowId->text());
  if (!digitado && !carregaEscolhido()) return;
  const QString contato = apara(txtEmailExtraContato->text());
  QString destinatarios = apara(txtEmailExtra->text());
  if (!destinatarios.isEmpty() && !contato.isEmpty()) destinatarios += u", "_s;
  documento().DestinatariosEmail = (destinatarios + contato).toLower();
  documento().orcamentoDosDestinatarios = values::toInt32(leNumero(txtRowId->text()));
  documento().MensagemTravadaEmail = true;
  forms::form<frmImprimePropCmrcTL>().showModal();
}
