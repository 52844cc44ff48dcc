#include "documents/contacts.h"

#include "documents/company_texts.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "run/configuration.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace empresa {

Contatos contatos() {
  const QString arquivo = arquivoConfiguracao(u"casa.ini"_s);
  const QString linha = files::exists(arquivo) ? files::readLines(arquivo).value(0) : QString();
  const auto campo = [&linha](int n, const QString& daCasa) {
    const QString valor = apara(PegaCampo(linha, n));
    return valor.isEmpty() || valor == u"." ? daCasa : valor;
  };
  return {campo(1, kSite), campo(2, kEmail)};
}

}  // namespace empresa
