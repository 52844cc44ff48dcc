#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// A quote is never deleted: it is marked as deactivated with its lines and honorees, and the mark taken away.

situacao::Situacao frmPropCmrcTL::situacaoDoRegistro() const {
  return {.desativado = !lblDTDesativa->text().isEmpty(), .fechado = !lblDataFechamento->text().isEmpty()};
}

bool frmPropCmrcTL::recusa(situacao::Comando comando) {
  if (aparaDireita(txtRowId->text()).isEmpty()) {
    avisa(u"Selecione Um Registro Para Executar esta Operação!"_s);
    return true;
  }
  if (!carregaEscolhido()) return true;
  const auto recusada = situacao::recusa(comando, situacaoDoRegistro());
  if (!recusada) return false;
  avisa(recusada->texto);
  if (recusada->limpa) LimpaTela();
  return true;
}

/// Runs statements on the quote of the screen in one transaction; each is closed by its WHERE.
void frmPropCmrcTL::alteraOrcamento(const QStringList& comandos) {
  const forms::WaitPointer espera;
  QStringList todos;
  for (const QString& comando : comandos)
    todos << comando + u"WHERE (idprop_cmrc="_s + txtRowId->text() + u")"_s;
  executaJuntos(todos);
}

void frmPropCmrcTL::cmdEXCLUIR_Click() {
  if (recusa(situacao::Comando::Desativar)) return;
  if (pergunta(u"Deseja realmente Desativar?"_s)) {
    const QString marca = u"data_desa='"_s + values::formatDate(values::now(), u"yyyymmdd") + u"' "_s;
    alteraOrcamento({u"UPDATE prop_cmrc SET user_desa='"_s + QString::number(contexto().IdUsuarioAtual) +
                         u"', "_s + marca,
                     u"UPDATE prop_cmrc_deta SET "_s + marca, u"UPDATE prop_cmrc_homg SET "_s + marca});
    avisa(u"Registro Desativado com sucesso!\rOrçamento nr."_s + txtRowId->text());
    situacao::encerra();
  }
  BotoesNeutros();
  LimpaTela();
  focus(txtCodigo);
}

void frmPropCmrcTL::cmdReativar_Click() {
  if (recusa(situacao::Comando::Reativar)) return;
  if (pergunta(u"Deseja realmente Reativar Este Registro ?"_s))
    alteraOrcamento({u"UPDATE prop_cmrc SET user_desa=null, data_desa=null "_s,
                     u"UPDATE prop_cmrc_deta SET data_desa=null "_s,
                     u"UPDATE prop_cmrc_homg SET data_desa=null "_s});
  BotoesNeutros();
  LimpaTela();
  focus(txtCodigo);
}
