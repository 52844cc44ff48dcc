#include "run/configuration.h"

#include <QFileInfo>
#include <array>

#include "platform/files/contents.h"
#include "platform/files/drives.h"
#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "run/findings.h"
#include "run/program_title.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

const QString kPastaConfiguracao = u"c:\\zarim\\config\\"_s;
constexpr int kEsperaConexao = 400;  // seconds: a distant or waking server may take that long

/// The install root as server_aplic.ini names it; empty before that is read.
QString raiz() { return contexto().DriveSistema + contexto().PastaSistema; }

/// The line that counts of a file with one, trimmed.
QString linhaUnica(const QString& caminho) { return apara(files::readLines(caminho).value(0)); }

/// A drive that is named and not there, as a share that isn't mounted, must not lead to another company.
void exigeDrive() {
  const QString pasta = files::driveFolder(u'c');
  if (pasta.isEmpty() || QFileInfo(pasta).isDir()) return;
  forms::report(linhaDo({u"drive C"_s, pasta, u"não está acessível: monte o compartilhamento"_s}));
  forms::msgBox(
      {.text = u"A pasta que faz as vezes do drive C não está acessível:\r\r"_s + pasta +
               u"\r\rO compartilhamento pode não estar montado. Contate o Administrador do Sistema!"_s,
       .title = kTitulo,
       .icon = forms::Icon::Critical});
  forms::end(1);
}

[[noreturn]] void recusaLinhaAusente() {
  registraAchados();
  forms::msgBox({.text = u"Conteúdo do Arquivo NÃO Encontrado!\r"
                         "Contate o seu Desenvolvedor para posicionar a falha de Conexão!"_s,
                 .title = u"Falha de Conexão com o Servidor"_s});
  forms::end(1);
}

[[noreturn]] void recusaServidorMudo(const QString& servidor) {
  // The brackets of the environment stay empty: which one was asked for is not shown to the user.
  forms::msgBox(
      {.text = u"O Servidor de dados não está respondendo.\r\rVerifique se o servidor NT/SQL/LINUX ("_s +
               servidor + u") está ligado.\rO Ambiente selecionado () pode não estar configurado!"_s,
       .icon = forms::Icon::Critical});
  forms::end(1);
}

void conectaPelosArquivos() {
  exigeDrive();
  LeServerAplic();
  Contexto& c = contexto();
  const QString linha = linhaDoAmbiente(files::readLines(arquivoConfiguracao(u"server.ini"_s)), c.Ambiente);
  if (linha.isEmpty()) recusaLinhaAusente();
  tomaCamposDoServidor(linha);
  if (const QString cadeia = cadeiaDeConexao(); !cadeia.isEmpty()) c.Conexao.open(cadeia, kEsperaConexao);
  LePaths();
}

}  // namespace

QString linhaDoAmbiente(const QStringList& linhas, const QString& ambiente) {
  return apara(linhas.value(ambiente.isEmpty() ? 0 : kAmbientes.indexOf(ambiente)));
}

void tomaCamposDoServidor(const QString& linha) {
  Contexto& c = contexto();
  const auto campo = [fechada = linha + u'^'](int n) { return PegaCampo(fechada, n); };
  c.NomeServidor = campo(1);
  c.NomeBanco = campo(2);
  c.UsuarioBanco = campo(3);
  c.SenhaBanco = campo(4);
  c.TipoBanco = campo(5);
  c.StringConexaoFirebird = campo(6);
  c.TiraAcento = values::toBoolean(campo(7));
  if (c.TipoBanco.isEmpty()) c.TipoBanco = u"MS-SQL"_s;
}

QString cadeiaDeConexao() {
  Contexto& c = contexto();
  if (c.TipoBanco == u"FIREBIRD") return c.StringConexaoFirebird;
  if (c.TipoBanco != u"MS-SQL" && c.TipoBanco != u"MSSQL") return {};
  c.StringConexaoMSSQL = u"driver={SQL Server};server="_s + c.NomeServidor + u";uid="_s + c.UsuarioBanco +
                         u";pwd="_s + c.SenhaBanco + u";database="_s + c.NomeBanco;
  return c.StringConexaoMSSQL;
}

QString arquivoConfiguracao(const QString& nome) {
  QString fixo = kPastaConfiguracao + nome;
  if (raiz().isEmpty()) return fixo;
  const QString caminho = raiz() + u"config\\"_s + nome;
  try {
    return files::exists(caminho) ? caminho : fixo;
  } catch (const values::RuntimeError& erro) {
    // The root is no name for a folder.
    if (erro.number() != values::kBadFileName) throw;
    return fixo;
  }
}

bool ehAmostra() {
  const QString marca = u"config\\"_s + kMarcaDaAmostra;
  try {
    return files::exists(raiz() + marca);
  } catch (const values::RuntimeError&) {
    return false;  // the root is no name for a folder
  }
}

void ConectaServidor() {
  try {
    conectaPelosArquivos();
  } catch (const values::RuntimeError& erro) {
    forms::reportRuntimeError(erro, u"ConectaServidor"_s);
    registraAchados();
    if (erro.number() == values::kConnectionFailed) {
      const QString& servidor = contexto().NomeServidor;
      forms::report(linhaDo({u"conexão"_s, servidor, conselhoDaConexao(erro.text())}));
      recusaServidorMudo(servidor);
    }
    // Anything else leaves the connection as it is: the next step meets it closed and says so.
  }
}

void LeServerAplic() {
  const QString caminho = kPastaConfiguracao + u"server_aplic.ini"_s;
  try {
    if (!files::exists(caminho)) {
      registraAchados();
      forms::msgBox({.text = u"Há Problemas de Configuração do Aplicativo ZARIM!\r\r"
                             "Contate o Administrador do Sistema e informe este fato, identificado\r"
                             "o motivo [Falta do Arquivo Server_Aplic]!"_s,
                     .title = kTitulo,
                     .icon = forms::Icon::Critical});
      forms::end(1);
    }
    const QString linha = linhaUnica(caminho);
    contexto().DriveSistema = apara(PegaCampo(linha, 1));
    contexto().PastaSistema = apara(PegaCampo(linha, 2));
  } catch (const values::RuntimeError& erro) {
    if (erro.number() != values::kBadFileName) throw;
  }
}

void LePaths() {
  Contexto& c = contexto();
  c.ArqPaths = arquivoConfiguracao(u"paths.ini"_s);
  const QString linha = linhaUnica(c.ArqPaths);
  const std::array<QString*, 12> campos{nullptr,       nullptr,        &c.PathImagens,  &c.PathImagens2,
                                        &c.ExtImagens, &c.ExtImagens2, &c.ArqSemImagem, nullptr,
                                        nullptr,       &c.PathDocs,    &c.PathWeb,      &c.PathLink};
  int n = 0;
  for (QString* campo : campos) {
    ++n;
    if (campo != nullptr) *campo = apara(PegaCampo(linha, n));
  }
}
