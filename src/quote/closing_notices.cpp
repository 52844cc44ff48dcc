#include <exception>
#include <optional>

#include "documents/document_values.h"
#include "documents/documents.h"
#include "messaging/WorkFlow.h"
#include "platform/files/contents.h"
#include "platform/forms/process.h"
#include "platform/mail/mail_message.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/messages.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

/// The notices of one closing. One that the mail component fails on doesn't keep the others from being tried,
/// unless the server can't be reached: each would wait as long.
class Avisos {
 public:
  Avisos(forms::Form& tela, const QString& numero)
      : tela_(tela), numero_(numero), assunto_(u"Orçamento Nr.:"_s + numero + u" Aprovado!"_s) {}

  void envia(const QString& evento, const QString& anexo) {
    if (erro_ && erro_->serverSilent()) return desiste(evento);
    try {
      EnviaAvisoWorkFlow(tela_, evento, u"EMAIL"_s, assunto_, true, anexo);
    } catch (const mail::MailError& erro) {
      // Among several errors the one of a silent server says why others were not tried.
      if (!erro_ || erro.serverSilent()) erro_ = erro;
      falta(evento);
    }
  }

  /// Leaves one out.
  void desiste(const QString& evento) {
    if (temDestinatarioWorkFlow(evento)) falta(evento);
  }

  /// Whether all went; else says which did not, and why.
  bool confere() const {
    if (faltam_.isEmpty()) return true;
    if (erro_) forms::showRuntimeError(*erro_);
    avisaFalha(
        u"O orçamento nr. %1 está fechado. Avisos não enviados: %2"_s.arg(numero_, faltam_.join(u", "_s)));
    return false;
  }

 private:
  void falta(const QString& evento) {
    const QString descricao = waitFor(DescricaoEventoWorkFlow(evento));
    faltam_ << (descricao.isEmpty() ? evento : descricao);
  }

  forms::Form& tela_;
  QString numero_;
  QString assunto_;
  std::optional<mail::MailError> erro_;
  QStringList faltam_;
};

}  // namespace

/// Sends the notices of a closing to those who subscribe to them, and writes the detail file that goes with
/// the full one. A file that can't be written is an error of the program, raised once the notices have been
/// tried; where the user gives it up the full notice is left out.
bool frmPropCmrcTL::avisaFechamento() {
  const QString numero = numeroDocumento(txtRowId->text());
  ValoresDoDocumento& valores = documento();
  QString& arquivo = valores.ArquivoDetalheOrca;
  std::exception_ptr detalhe;
  bool completo = true;
  Avisos avisos(*this, numero);
  {
    const forms::WaitPointer espera;
    avisos.envia(u"PROJETACOMPRA"_s, {});
    arquivo = contexto().PathDocs + u"deta_orca_"_s + numero + u".html"_s;
    try {
      files::removeIfThere(arquivo);
      // Blocks of a document look at the one that is being made, whose number they don't all get.
      valores.IdDocumento = values::toInt32(leNumero(txtRowId->text()));
      MontaDetalheOrcaHTML(valores.IdDocumento, arquivo);
    } catch (const values::RuntimeError&) {
      detalhe = std::current_exception();
    } catch (const values::Cancelled&) {
      completo = false;
    }
    avisos.envia(u"AVISOORCAFECHADO"_s, {});
    if (completo)
      avisos.envia(u"AVISOORCAFECHADOFULL"_s, arquivo);
    else
      avisos.desiste(u"AVISOORCAFECHADOFULL"_s);
  }
  const bool todos = avisos.confere();
  if (detalhe) std::rethrow_exception(detalhe);
  return todos;
}
