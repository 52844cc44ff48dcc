#include "documents/document_values.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void frmPropCmrcTL::cmdImprimir_Click() {
  const QString contato = Apara(txtEmailExtraContato->text());
  QString destinatarios = Apara(txtEmailExtra->text());
  if (!destinatarios.isEmpty() && !contato.isEmpty()) destinatarios += u", "_s;
  documento().DestinatariosEmail = (destinatarios + contato).toLower();
  documento().MensagemTravadaEmail = true;
  forms::form<frmImprimePropCmrcTL>().showModal();
}
