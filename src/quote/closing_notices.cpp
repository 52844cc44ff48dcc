#include <exception>

#include "documents/document_values.h"
#include "documents/documents.h"
#include "messaging/WorkFlow.h"
#include "platform/files/paths.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

/// Tells those who subscribe to a closing, and writes the detail file that goes with the full notice. A step
/// that fails doesn't keep the others from being tried; then the first error is raised.
void frmPropCmrcTL::avisaFechamento() {
  const forms::WaitPointer espera;
  const QString numero = values::format(txtRowId->text(), u"000000");
  const QString assunto = u"Orçamento Nr.:"_s + numero + u" Aprovado!"_s;
  QString& arquivo = documento().ArquivoDetalheOrca;
  std::exception_ptr primeiro;
  const auto tenta = [&primeiro](const auto& passo) {
    try {
      passo();
    } catch (const values::RuntimeError&) {
      if (!primeiro) primeiro = std::current_exception();
    }
  };
  const auto avisa = [&](const QString& evento, const QString& anexo) {
    tenta([&] { EnviaAvisoWorkFlow(*this, evento, u"EMAIL"_s, assunto, true, anexo); });
  };

  avisa(u"PROJETACOMPRA"_s, {});
  arquivo = contexto().PathDocs + u"deta_orca_"_s + numero + u".html"_s;
  tenta([&] {
    files::removeIfThere(arquivo);
    MontaDetalheOrcaHTML(values::toInt32(LeNumero(txtRowId->text())), arquivo);
  });
  avisa(u"AVISOORCAFECHADO"_s, {});
  avisa(u"AVISOORCAFECHADOFULL"_s, arquivo);
  if (primeiro) std::rethrow_exception(primeiro);
}
