#include "run/configuration.h"

#include <QThread>
#include <array>
#include <chrono>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "run/program_title.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* kConfigFolder = u"c:\\zarim\\config\\";
constexpr int kConnectionTimeout = 400;  // seconds: a distant or waking server may take that long

/// The line that counts of a file with one, trimmed.
QString onlyLine(const QString& path) { return Apara(files::readLines(path).value(0)); }

/// The lines for production, history and development.
std::array<QString, 3> environmentLines(const QString& path) {
  const QStringList lines = files::readLines(path);
  std::array<QString, 3> known;
  qsizetype read = 0;
  while (read < lines.size()) {
    if (read < 3) {
      known[static_cast<std::size_t>(read)] = lines[read];
      ++read;
    } else {
      // A fourth line belongs to no environment: the reading stays on it for good.
      QThread::sleep(1);
    }
  }
  return known;
}

QString chosenLine(const std::array<QString, 3>& lines) {
  const QString& ambiente = contexto().Ambiente;
  if (ambiente == u"PRD" || ambiente.isEmpty()) return Apara(lines[0]);
  if (ambiente == u"HIST") return Apara(lines[1]);
  if (ambiente == u"DEV") return Apara(lines[2]);
  return {};
}

void takeServerFields(const QString& line) {
  RunContext& run = contexto();
  const auto field = [closed = line + u'^'](int n) { return PegaCampo(closed, n); };
  run.NomeServidor = field(1);
  run.NomeBanco = field(2);
  run.UsuarioBanco = field(3);
  run.SenhaBanco = field(4);
  run.TipoBanco = field(5);
  run.StringConexaoFirebird = field(6);
  run.TiraAcento = values::toBoolean(field(7));
  if (run.TipoBanco.isEmpty()) run.TipoBanco = u"MS-SQL"_s;
}

void openConnection() {
  RunContext& run = contexto();
  if (run.TipoBanco == u"MS-SQL" || run.TipoBanco == u"MSSQL") {
    run.StringConexaoMSSQL = u"driver={SQL Server};server="_s + run.NomeServidor + u";uid="_s +
                             run.UsuarioBanco + u";pwd="_s + run.SenhaBanco + u";database="_s + run.NomeBanco;
    run.Conexao.open(run.StringConexaoMSSQL, kConnectionTimeout);
  } else if (run.TipoBanco == u"FIREBIRD") {
    run.Conexao.open(run.StringConexaoFirebird, kConnectionTimeout);
  }
}

[[noreturn]] void refuseMissingLine() {
  forms::msgBox({.text = u"Conteúdo do Arquivo NÃO Encontrado!\r"
                         "Contate o seu Desenvolvedor para posicionar a falha de Conexão!"_s,
                 .title = u"Falha de Conexão com o Servidor"_s});
  forms::end(1);
}

[[noreturn]] void refuseSilentServer() {
  // The brackets of the environment stay empty: which one was asked for is no business of the user's.
  forms::msgBox(
      {.text = u"O Servidor de dados não está respondendo.\r\rVerifique se o servidor NT/SQL/LINUX ("_s +
               contexto().NomeServidor +
               u") está ligado.\rO Ambiente selecionado () pode não estar configurado!"_s,
       .icon = forms::Icon::Critical});
  forms::end(1);
}

void connectByFiles() {
  LeServerAplic();
  const QString line = chosenLine(environmentLines(ArquivoConfiguracao(u"server.ini"_s)));
  if (line.isEmpty()) refuseMissingLine();
  takeServerFields(line);
  openConnection();
  LePaths();
}

}  // namespace

QString ArquivoConfiguracao(const QString& nome) {
  QString fixo = QString::fromUtf16(kConfigFolder) + nome;
  const QString raiz = contexto().DriveSistema + contexto().PastaSistema;
  if (raiz.isEmpty()) return fixo;
  const QString caminho = raiz + u"config\\"_s + nome;
  try {
    return files::exists(caminho) ? caminho : fixo;
  } catch (const values::RuntimeError& erro) {
    // The root is no name for a folder.
    if (erro.number() != values::kBadFileName) throw;
    return fixo;
  }
}

void ConectaServidor() {
  try {
    connectByFiles();
  } catch (const values::RuntimeError& error) {
    if (error.number() == values::kConnectionFailed) refuseSilentServer();
    // Anything else leaves the connection as it is: the next step meets it closed and says so.
  }
}

void LeServerAplic() {
  const QString path = QString::fromUtf16(kConfigFolder) + u"server_aplic.ini"_s;
  try {
    if (!files::exists(path)) {
      forms::msgBox({.text = u"Há Problemas de Configuração do Aplicativo ZARIM!\r\r"
                             "Contate o Administrador do Sistema e informe este fato, identificado\r"
                             "o motivo [Falta do Arquivo Server_Aplic]!"_s,
                     .title = QString::fromUtf16(kTitulo),
                     .icon = forms::Icon::Critical});
      forms::end(1);
    }
    const QString line = onlyLine(path);
    contexto().DriveSistema = Apara(PegaCampo(line, 1));
    contexto().PastaSistema = Apara(PegaCampo(line, 2));
  } catch (const values::RuntimeError& error) {
    if (error.number() != values::kBadFileName) throw;
  }
}

void LePaths() {
  RunContext& run = contexto();
  run.ArqPaths = ArquivoConfiguracao(u"paths.ini"_s);
  const QString line = onlyLine(run.ArqPaths);
  const std::array<QString*, 12> fields{
      nullptr,           nullptr, &run.PathImagens, &run.PathImagens2, &run.ExtImagens, &run.ExtImagens2,
      &run.ArqSemImagem, nullptr, nullptr,          &run.PathDocs,     &run.PathWeb,    &run.PathLink};
  int n = 0;
  for (QString* field : fields) {
    ++n;
    if (field != nullptr) *field = Apara(PegaCampo(line, n));
  }
}
