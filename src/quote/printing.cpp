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
  const bool digitado = !Apara(numero).isEmpty() && LeNumero(numero) != LeNumero(txtRowId->text());
  if (!digitado && !carregaEscolhido()) return;
  const QString contato = Apara(txtEmailExtraContato->text());
  QString destinatarios = Apara(txtEmailExtra->text());
  if (!destinatarios.isEmpty() && !contato.isEmpty()) destinatarios += u", "_s;
  documento().DestinatariosEmail = (destinatarios + contato).toLower();
  documento().OrcamentoDosDestinatarios = values::toInt32(LeNumero(txtRowId->text()));
  documento().MensagemTravadaEmail = true;
  forms::form<frmImprimePropCmrcTL>().showModal();
}
