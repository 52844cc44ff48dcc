// Hands the shown document over to the e-mail screen.
#include "documents/document_names.h"
#include "documents/document_types.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "messaging/frmEmailOS.h"
#include "shared/lookups.h"
#include "shared/messages.h"

using namespace Qt::StringLiterals;

namespace {

/// Prefix of the subject; a null text for an unknown type. A closed quote goes out as an order.
QString prefixoDe(const ValoresDoDocumento& valores) {
  if (valores.TipoDocumento == u"ORCA_VENDAS" &&
      !DataFechamentoOrcamento(QString::number(valores.IdDocumento)).get().isEmpty())
    return u"Pedido - "_s;
  const TipoDeDocumento* tipo = tipoDoDocumento();
  return tipo == nullptr ? QString() : QString::fromUtf16(tipo->assunto);
}

}  // namespace

/// The warning belongs to the customer's copy alone.
bool frmPedHTML::escolheCorpo() {
  if (Option1->isChecked()) {
    if (!documento().PublicacaoExterna &&
        !pergunta(u"Atenção!!!\r"
                  "Você optou pela publicação interna do Orçamento.\r"
                  "Esta opção NÃO possibilita a visualização de imagens fora da empresa.\r"
                  "Tem ceteza que deseja continuar???"_s))
      return false;
    documento().ArquivoCorpoEmail = arqVia1;
  } else if (Option2->isChecked()) {
    documento().ArquivoCorpoEmail = arqVia2;
  } else if (Option3->isChecked()) {
    avisa(u"Para Enviar o Orçamento por e-mail será\rnecessário definir a 1a. ou a 2a. via."_s);
    return false;
  }
  return true;
}

void frmPedHTML::cmdEnviarEmail_Click() {
  if (!escolheCorpo()) return;
  auto& tela = forms::form<frmEmailOS>();
  tela.txtCC->setText(EmailEmpresa().get().toLower());
  const QString prefixo = prefixoDe(documento());
  if (!prefixo.isNull())
    tela.txtTitulo->setText(prefixo + numeroDocumento(documento().IdDocumento) + u" - "_s +
                            NomeConhecidoEmpresa());
  tela.showModal();
}
