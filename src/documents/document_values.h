#pragma once

#include <QString>

#include "platform/data/recordset.h"
#include "platform/forms/grid_model.h"

/// Values of the documents and of their e-mail: the channel between the screens. One instance, documento();
/// it lives as long as the process, and each value keeps what was last set.
struct ValoresDoDocumento {
  QString TipoDocumento;  ///< PEDIDO_VENDAS, ORCA_VENDAS, COTA_COMPRA, ORDEM_COMPRA
  qint32 IdDocumento = 0;
  bool PublicacaoExterna = false;  ///< images addressed for the internet server
  bool ExibeComposicao = true;
  bool ExibeFotos = false;
  bool ExibeMontagem = true;
  QString OrdemComposicao;  ///< "NATURAL" or "DESCRICAO"
  QString letraFornecedor;  ///< supplier "A" to "E" of a request for prices; the calling screen sets it
  QString ArquivoDetalheOrca;

  QString ArquivoCorpoEmail;
  QString DestinatariosEmail;
  qint32 orcamentoDosDestinatarios = 0;  ///< the quote whose addresses they are; 0 for none
  bool MensagemTravadaEmail = false;
  QString MensagemHTMLEmail, AnexosEmail, MensagemPadraoEmail;

  data::Recordset rsImpressao;  ///< the quote's row that the print screen keeps open
  forms::GridModel FlexTemp;    ///< sort buffer of the catalogue's composition rows
};

[[nodiscard]] ValoresDoDocumento& documento();
/// Everything as at the start of a run; for tests.
void reiniciaDocumento();
