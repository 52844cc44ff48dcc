#include "help/about.h"

#include <QCoreApplication>

#include "platform/forms/boxes.h"
#include "run/context.h"
#include "run/program_title.h"

using namespace Qt::StringLiterals;

namespace {

/// The server and its database; of a connection string given whole, which may hold a password, the kind
/// alone.
QString nomeDoBanco() {
  const Contexto& c = contexto();
  if (!c.Conexao.isOpen()) return u"sem conexão"_s;
  if (c.TipoBanco == u"FIREBIRD") return c.TipoBanco;
  return u"%1 %2 (%3)"_s.arg(c.NomeServidor, c.NomeBanco, c.TipoBanco);
}

}  // namespace

QString textoSobre() {
  const Contexto& c = contexto();
  const QString compilacao = QCoreApplication::applicationVersion();
  const QStringList linhas{
      QString::fromUtf16(kTitulo),
      {},
      u"Versão: " ZARIM_VERSION ""_s,
      u"Compilação: "_s + (compilacao.isEmpty() ? u"de desenvolvimento"_s : compilacao),
      u"Banco de dados: "_s + nomeDoBanco(),
      u"Ambiente: "_s + c.Ambiente,
      u"Usuário: %1 - %2"_s.arg(c.IdUsuarioAtual).arg(c.NomeUsuarioAtual),
      u"Tela: "_s + ResolucaoTela(),
  };
  return linhas.join(u'\r');
}

void mostraSobre() {
  forms::msgBox({.text = textoSobre(), .title = u"Sobre o Zarim"_s, .icon = forms::Icon::Information});
}
