#include "run/context.h"

#include <utility>

#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "platform/forms/controls.h"
#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace {

/// Never destroyed: a connection goes with the process, and at its end the database library is gone already.
std::unique_ptr<Contexto>& instancia() {
  static auto& unica = *new std::unique_ptr<Contexto>(std::make_unique<Contexto>());
  return unica;
}

}  // namespace

Contexto& contexto() { return *instancia(); }

std::unique_ptr<Contexto> trocaContexto(std::unique_ptr<Contexto> outro) {
  return std::exchange(instancia(), std::move(outro));
}

void reiniciaContexto() { trocaContexto(); }

QString TipoInstalacao() {
  return files::exists(u"c:\\zarim\\config\\TREVANO.txt"_s) ? u"TREVANO"_s : u"CLIENTE"_s;
}

QString ResolucaoTela() {
  const QSize tela = forms::screenSize();
  return u"%1 x %2"_s.arg(tela.height()).arg(tela.width());
}

void FechaConexao(const QString& acao) {
  if (!contexto().Conexao.isOpen()) return;
  try {
    contexto().Conexao.close();
  } catch (const values::RuntimeError& erro) {
    forms::reportRuntimeError(erro, u"FechaConexao"_s);
    forms::msgBox({.text = u"Erro ao fechar banco de dados (%1)\rTente Novamente. Caso o problema persista, "
                           "contate o Desenvolvedor!"_s.arg(contexto().TipoBanco),
                   .title = u"Falha Conexão"_s,
                   .icon = forms::Icon::Critical});
    forms::end(1);
  }
  if (acao == u"SAIR") forms::end(0);
}
