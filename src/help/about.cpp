#include "help/about.h"

#include <QCoreApplication>
#include <QProcess>

#include "platform/files/log_file.h"
#include "platform/forms/boxes.h"
#include "platform/forms/wait_pointer.h"
#include "run/context.h"
#include "run/program_title.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEsperaVerificacao = 120'000;  // milliseconds

/// The server and its database; of a connection string given whole, which may hold a password, the kind
/// alone.
QString nomeDoBanco(const Contexto& c) {
  if (!c.Conexao.isOpen()) return u"sem conexão"_s;
  if (c.TipoBanco == u"FIREBIRD") return c.TipoBanco;
  return u"%1 %2 (%3)"_s.arg(c.NomeServidor, c.NomeBanco, c.TipoBanco);
}

}  // namespace

QString textoSobre() {
  const Contexto& c = contexto();
  const QString compilacao = QCoreApplication::applicationVersion();
  const QStringList linhas{
      kTitulo,
      {},
      u"Versão: " ZARIM_VERSION ""_s,
      u"Compilação: "_s + (compilacao.isEmpty() ? u"de desenvolvimento"_s : compilacao),
      u"Banco de dados: "_s + nomeDoBanco(c),
      u"Ambiente: "_s + c.Ambiente,
      u"Usuário: %1 - %2"_s.arg(c.IdUsuarioAtual).arg(c.NomeUsuarioAtual),
      u"Tela: "_s + ResolucaoTela(),
  };
  return linhas.join(u'\r');
}

namespace {

/// A look at the installation by a program of its own: this one's context stays as it is.
void verificaEMostra() {
  QStringList linhas;
  {
    const forms::WaitPointer espera;
    QProcess verificacao;
    verificacao.setProcessChannelMode(QProcess::MergedChannels);
    verificacao.start(QCoreApplication::applicationFilePath(), {u"--check"_s, contexto().Ambiente});
    verificacao.waitForFinished(kEsperaVerificacao);
    linhas = QString::fromUtf8(verificacao.readAll()).split(u'\n', Qt::SkipEmptyParts);
  }
  for (const QString& linha : linhas) files::log(linha);
  linhas.removeIf([](const QString& linha) { return linha.startsWith(u"[ok]"_s); });
  if (!files::logPath().isEmpty()) linhas << QString() << u"Todas as linhas: "_s + files::logPath();
  forms::msgBox({.text = linhas.join(u'\r'), .title = u"Verificação"_s, .icon = forms::Icon::Information});
}

}  // namespace

void mostraSobre() {
  const auto resposta = forms::msgBox({.text = textoSobre(),
                                       .title = u"Sobre o Zarim"_s,
                                       .icon = forms::Icon::Information,
                                       .buttons = forms::Buttons::OkCheck});
  if (resposta == forms::Answer::Check) verificaEMostra();
}
