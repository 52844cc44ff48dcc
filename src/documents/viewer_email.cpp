// Hands the shown document over to the e-mail screen.
#include <algorithm>

#include "documents/document_names.h"
#include "documents/document_types.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "messaging/frmEmailOS.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

bool frmPedHTML::escolheCorpo() {
  const auto via = std::ranges::find_if(vias_, [](const Via& uma) { return uma.opcao->isChecked(); });
  if (via == vias_.end()) {
    avisa(u"Para Enviar o Orçamento por e-mail será\rnecessário definir a 1a. ou a 2a. via."_s);
    return false;
  }
  ValoresDoDocumento& valores = documento();
  // The warning belongs to the customer's copy alone.
  if (via == vias_.begin() && !valores.PublicacaoExterna &&
      !pergunta(u"Atenção!!!\r"
                "Você optou pela publicação interna do Orçamento.\r"
                "Esta opção NÃO possibilita a visualização de imagens fora da empresa.\r"
                "Tem ceteza que deseja continuar???"_s))
    return false;
  valores.ArquivoCorpoEmail = via->arquivo;
  return true;
}

void frmPedHTML::cmdEnviarEmail_Click() {
  if (!escolheCorpo()) return;
  auto& tela = forms::form<frmEmailOS>();
  tela.txtCC->setText(waitFor(EmailEmpresa()).toLower());
  const ValoresDoDocumento& valores = documento();
  const QString nome = nomeDoDocumento(valores.TipoDocumento, valores.IdDocumento);
  if (!nome.isEmpty())
    tela.txtTitulo->setText(nome + u" - "_s + numeroDocumento(valores.IdDocumento) + u" - "_s +
                            waitFor(NomeConhecidoEmpresa()));
  tela.poeAnexo(pdf_);
  tela.showModal();
}
