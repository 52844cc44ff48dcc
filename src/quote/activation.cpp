#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/messages.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// A quote is never deleted: it is marked as deactivated with its lines and honorees, and the mark taken away.

bool frmPropCmrcTL::recusaSemRegistro() {
  if (!aparaDireita(txtRowId->text()).isEmpty()) return false;
  avisa(u"Selecione Um Registro Para Executar esta Operação!"_s);
  return true;
}

/// A command that the state of the quote forbids: says why and empties the screen.
bool frmPropCmrcTL::recusaEstado(bool recusado, const QString& motivo) {
  if (!recusado) return false;
  avisa(u"Impossibilidade de Executar o Comando!\r"_s + motivo);
  LimpaTela();
  return true;
}

/// Runs statements on the quote of the screen in one transaction; each is closed by its WHERE.
void frmPropCmrcTL::alteraOrcamento(const QStringList& comandos) {
  data::Connection& conexao = contexto().Conexao;
  const forms::WaitPointer espera;
  std::vector<data::Statement> todos;
  for (const QString& comando : comandos)
    todos.push_back({comando + u"WHERE (idprop_cmrc="_s + txtRowId->text() + u")"_s});
  conexao.begin();
  conexao.batch(todos);
  conexao.commit();
}

void frmPropCmrcTL::cmdEXCLUIR_Click() {
  if (recusaSemRegistro() || !carregaEscolhido() ||
      recusaEstado(!lblDTDesativa->text().isEmpty(), u"O Registro Já está como Desativado."_s) ||
      recusaEstado(!lblDataFechamento->text().isEmpty(), u"O Registro Já Está Fechado!"_s))
    return;
  if (pergunta(u"Deseja realmente Desativar?"_s)) {
    const QString marca = u"data_desa='"_s + values::formatDate(values::now(), u"yyyymmdd") + u"' "_s;
    alteraOrcamento({u"UPDATE prop_cmrc SET user_desa='"_s + QString::number(contexto().IdUsuarioAtual) +
                         u"', "_s + marca,
                     u"UPDATE prop_cmrc_deta SET "_s + marca, u"UPDATE prop_cmrc_homg SET "_s + marca});
    avisa(u"Registro Desativado com sucesso!\rOrçamento nr."_s + txtRowId->text());
    contexto().ModoOrcamento = u" "_s;
  }
  BotoesNeutros();
  LimpaTela();
}

void frmPropCmrcTL::cmdReativar_Click() {
  if (recusaSemRegistro() || !carregaEscolhido() ||
      recusaEstado(lblDTDesativa->text().isEmpty(), u"O Registro Já está como Ativo."_s) ||
      recusaEstado(!lblDataFechamento->text().isEmpty(), u"O Registro Já Está Fechado!"_s))
    return;
  if (pergunta(u"Deseja realmente Reativar Este Registro ?"_s))
    alteraOrcamento({u"UPDATE prop_cmrc SET user_desa=null, data_desa=null "_s,
                     u"UPDATE prop_cmrc_deta SET data_desa=null "_s,
                     u"UPDATE prop_cmrc_homg SET data_desa=null "_s});
  BotoesNeutros();
  LimpaTela();
}
