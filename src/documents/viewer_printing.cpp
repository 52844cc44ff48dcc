// Prints the copies without a dialog.
#include "documents/frmPedHTML.h"
#include "platform/forms/boxes.h"
#include "shared/screen_kit.h"

using namespace Qt::StringLiterals;

namespace {

web::Printed Imprime(web::WebPane& painel) {
  const forms::WaitPointer espera;
  return painel.print();
}

}  // namespace

void frmPedHTML::cmdImprimir_Click() {
  QList<web::WebPane*> vias;
  if (Option1->isChecked() || Option3->isChecked()) vias << WebBrowser1;
  if (Option2->isChecked() || Option3->isChecked()) vias << WebBrowser2;
  for (web::WebPane* via : vias) {
    const web::Printed resultado = Imprime(*via);
    if (resultado == web::Printed::Sent) continue;
    Aviso(resultado == web::Printed::NoPrinter
              ? u"Não há impressora padrão neste computador.\rInstale uma impressora e tente novamente."_s
              : u"A impressora padrão não aceitou o documento.\rVerifique a impressora e tente novamente."_s);
    if (resultado == web::Printed::NoPrinter) break;
  }
  forms::msgBox({.text = u"Impressão Encerrada"_s, .icon = forms::Icon::Information});
}
