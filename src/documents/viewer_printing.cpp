// Prints the copies without a dialog.
#include <algorithm>

#include "documents/frmPedHTML.h"
#include "platform/forms/boxes.h"
#include "shared/messages.h"

using namespace Qt::StringLiterals;

namespace {

web::PrintReport imprime(web::WebPane& painel) {
  const forms::WaitPointer espera;
  return painel.print();
}

/// Why a copy wasn't printed; empty when it was.
QString motivoDaRecusa(web::Printed resultado) {
  switch (resultado) {
    case web::Printed::Sent:
      break;
    case web::Printed::NoPrinter:
      return u"Não há impressora padrão neste computador.\rInstale uma impressora e tente novamente."_s;
    case web::Printed::Refused:
      return u"A impressora padrão não aceitou o documento.\rVerifique a impressora e tente novamente."_s;
    case web::Printed::Failed:
      return u"O documento não pôde ser preparado para a impressão.\rGere o documento novamente."_s;
  }
  return {};
}

/// Names the pictures that a copy was printed without.
void avisaFiguras(const QStringList& faltam) {
  constexpr qsizetype kNomes = 5;
  if (faltam.isEmpty()) return;
  QString texto = u"O documento foi impresso sem figuras que o servidor da internet não entregou:\r"_s +
                  faltam.first(std::min(kNomes, faltam.size())).join(u'\r');
  if (faltam.size() > kNomes) texto += u"\re mais %1"_s.arg(faltam.size() - kNomes);
  avisa(texto);
}

}  // namespace

void frmPedHTML::cmdImprimir_Click() {
  for (const Via& via : vias_) {
    if (!via.opcao->isChecked() && !Option3->isChecked()) continue;
    const auto [resultado, faltam] = imprime(*via.painel);
    const QString recusa = motivoDaRecusa(resultado);
    if (!recusa.isEmpty()) avisa(recusa);
    if (resultado == web::Printed::Sent) avisaFiguras(faltam);
    if (resultado == web::Printed::NoPrinter) break;
  }
  forms::msgBox({.text = u"Impressão Encerrada"_s, .icon = forms::Icon::Information});
}
