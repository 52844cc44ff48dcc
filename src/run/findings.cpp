#include "run/findings.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <utility>

#include "platform/files/contents.h"
#include "platform/files/drives.h"
#include "platform/files/paths.h"
#include "platform/files/regular_file.h"
#include "platform/forms/process.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
#include "run/context.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

/// What goes wrong in a look is its finding.
template <typename Olha>
void tenta(const Anota& anota, const QString& assunto, const QString& conselho, Olha olha) {
  try {
    olha();
  } catch (const values::RuntimeError& erro) {
    anota({assunto, erro.text(), conselho});
  }
}

bool olhaDrive(const Anota& anota) {
  const QString pasta = files::driveFolder(u'c');
  const bool ha = pasta.isEmpty() || QFileInfo(pasta).isDir();
  anota({u"drive C"_s, pasta.isEmpty() ? u"nenhuma pasta faz as vezes dele"_s : pasta,
         ha ? QString()
            : u"não está acessível: monte o compartilhamento, ou corrija ZARIM_DRIVE_C ou o atalho "
              "/etc/zarim/drive_c"_s});
  return ha;
}

/// What keeps a text file from being read as it was meant.
QString estranheza(const QByteArray& bytes, const QStringList& linhas) {
  if (bytes.contains('\0')) return u"está em UTF-16: grave-o em UTF-8 ou Windows-1252"_s;
  for (qsizetype n = 0; n < qMin<qsizetype>(linhas.size(), 3); ++n)
    if (static const QString kSinais = u"#;/["_s; !linhas[n].isEmpty() && kSinais.contains(linhas[n].front()))
      return u"a linha %1 parece um comentário, que o arquivo não tem: tire-a"_s.arg(n + 1);
  if (linhas.size() > 3) return u"as linhas depois da terceira não são lidas: tire-as"_s;
  return {};
}

/// What is wrong with a line of server.ini.
QString defeito(const QString& linha) {
  const auto campo = [&linha](int n) { return PegaCampo(linha, n); };
  const QString& tipo = campo(5);
  if (campo(7) == u".") return u"são sete campos, cada um terminado em ^, e faltam campos"_s;
  try {
    (void)values::toBoolean(campo(7));
  } catch (const values::RuntimeError&) {
    return u"o campo 7 é True ou False: há um ^ na senha, ou um campo a menos?"_s;
  }
  if (!tipo.isEmpty() && tipo != u"MS-SQL" && tipo != u"MSSQL" && tipo != u"FIREBIRD")
    return u"o campo 5 é MS-SQL, MSSQL ou FIREBIRD, em maiúsculas"_s;
  if (campo(4).contains(u';') || campo(4).startsWith(u'{'))
    return u"a senha não pode conter ponto e vírgula nem começar com chave: troque-a"_s;
  return {};
}

void olhaLinha(const Anota& anota, const QString& qual, const QString& linha, bool escolhida) {
  if (linha.isEmpty())
    return anota({qual, u"vazia"_s, escolhida ? u"escreva a linha deste ambiente"_s : QString()});
  const auto campo = [&linha](int n) { return PegaCampo(linha, n); };
  const QString dados = campo(5) == u"FIREBIRD"
                            ? u"cadeia de conexão própria"_s
                            : u"servidor %1, banco %2, usuário %3, senha %4, tipo %5"_s.arg(
                                  campo(1), campo(2), campo(3), campo(4).isEmpty() ? u"nenhuma"_s : u"dada"_s,
                                  campo(5).isEmpty() ? u"MS-SQL"_s : campo(5));
  const QString conselho = defeito(linha);
  // Of a line whose fields are shifted any one may be the password.
  anota({qual, conselho.isEmpty() ? dados : u"%1 caracteres"_s.arg(linha.size()), conselho});
}

void olhaServerIni(const Anota& anota) {
  const QString caminho = arquivoConfiguracao(u"server.ini"_s);
  const QStringList linhas = files::readLines(caminho);
  anota({u"server.ini"_s, u"%1, %2 linhas"_s.arg(files::resolve(caminho)).arg(linhas.size()),
         estranheza(files::readAll(caminho), linhas)});
  if (files::othersMayRead(files::resolve(caminho)))
    anota({u"server.ini"_s, u"qualquer usuário da máquina lê as senhas"_s,
           u"tire dos outros a leitura (chmod o-r)"_s});
  const QString& atual = contexto().Ambiente;
  const QString escolhida = linhaDoAmbiente(linhas, atual);
  for (qsizetype n = 0; n < 3; ++n) {
    const QString& ambiente = kAmbientes[n];
    const bool deste = atual == ambiente || (n == 0 && atual.isEmpty());
    olhaLinha(anota, u"server.ini, linha %1 (%2)"_s.arg(n + 1).arg(ambiente), apara(linhas.value(n)), deste);
  }
  if (!escolhida.isEmpty()) tomaCamposDoServidor(escolhida);
}

struct Pasta {
  int campo;
  QString oQue;
  QString Contexto::*valor;
  enum { Texto, Arquivo, Le, Grava } como;
};
const Pasta kPastas[] = {{3, u"pasta das imagens"_s, &Contexto::PathImagens, Pasta::Le},
                         {4, u"segunda pasta das imagens"_s, &Contexto::PathImagens2, Pasta::Le},
                         {5, u"final dos nomes das imagens"_s, &Contexto::ExtImagens, Pasta::Texto},
                         {6, u"final dos nomes na segunda pasta"_s, &Contexto::ExtImagens2, Pasta::Texto},
                         {7, u"imagem de quem não tem imagem"_s, &Contexto::ArqSemImagem, Pasta::Arquivo},
                         {10, u"pasta dos documentos"_s, &Contexto::PathDocs, Pasta::Grava},
                         {11, u"endereço das imagens na web"_s, &Contexto::PathWeb, Pasta::Texto},
                         {12, u"endereço das imagens grandes na web"_s, &Contexto::PathLink, Pasta::Texto}};

/// What is missing for a path to be used; empty where nothing is.
QString falta(const Pasta& pasta, const QString& valor) {
  if (valor.isEmpty() || valor == u".") return u"escreva o campo %1 de paths.ini"_s.arg(pasta.campo);
  if (pasta.como == Pasta::Texto) return {};
  const QFileInfo la(files::resolve(valor));
  if (pasta.como == Pasta::Arquivo)
    return la.isFile() && la.isReadable() ? QString() : u"o arquivo não existe"_s;
  if (!la.isDir()) return u"a pasta não existe"_s;
  if (!valor.endsWith(u'\\') && !valor.endsWith(u'/')) return u"termine o caminho com uma barra"_s;
  if (!la.isReadable()) return u"dê ao usuário o direito de ler a pasta"_s;
  QTemporaryFile prova(la.filePath() + u"/zarim-XXXXXX"_s);
  if (pasta.como == Pasta::Grava && !prova.open()) return u"dê ao usuário o direito de gravar na pasta"_s;
  return {};
}

}  // namespace

QString linhaDo(const Achado& achado) {
  const QString linha = achado.assunto + u": "_s + achado.resultado;
  return achado.conselho.isEmpty() ? u"[ok]    "_s + linha
                                   : u"[FALTA] "_s + linha + u" -> "_s + achado.conselho;
}

void olhaArquivos(const Anota& anota) {
  if (!olhaDrive(anota)) return;
  const QString aplic = u"c:\\zarim\\config\\server_aplic.ini"_s;
  tenta(anota, u"server_aplic.ini"_s, u"escreva nele uma linha: c:\\^zarim\\^"_s, [&] {
    (void)files::readAll(aplic);
    LeServerAplic();
    anota({u"server_aplic.ini"_s,
           files::resolve(aplic) + u", instalação em "_s + contexto().DriveSistema + contexto().PastaSistema,
           {}});
    if (ehAmostra()) anota({u"amostra"_s, u"esta é a empresa de amostra, não a sua"_s, {}});
  });
  tenta(anota, u"server.ini"_s, u"dê ao usuário o arquivo e o direito de lê-lo"_s,
        [&] { olhaServerIni(anota); });
  tenta(anota, u"paths.ini"_s, u"dê ao usuário o arquivo e o direito de lê-lo"_s, [&] {
    LePaths();
    anota({u"paths.ini"_s, files::resolve(contexto().ArqPaths), {}});
  });
}

void olhaPastas(const Anota& anota) {
  for (const Pasta& pasta : kPastas) {
    const QString& valor = contexto().*pasta.valor;
    tenta(anota, pasta.oQue, u"um atalho leva para fora do drive: ponha a pasta dentro dele"_s, [&] {
      anota({pasta.oQue, valor, falta(pasta, valor)});
    });
  }
}

QString conselhoDaConexao(const QString& palavras) {
  static const std::pair<QString, QString> kCausas[] = {
      {u"Unknown host"_s, u"a rede não conhece o nome do servidor: confira o campo 1"_s},
      {u"Can't open lib"_s, u"o driver não está instalado: odbcinst -q -d diz quais estão"_s},
      {u"Data source name not found"_s, u"o driver não está registrado: odbcinst -q -d diz quais estão"_s},
      {u"Login failed"_s, u"o servidor recusa usuário ou senha: confira os campos 3 e 4"_s},
      {u"Cannot open database"_s, u"o banco não existe ou o usuário não entra nele: confira o campo 2"_s},
      {u"Database '"_s, u"o banco não existe ou o usuário não entra nele: confira o campo 2"_s},
      {u"certificate"_s, u"o certificado do servidor não vale: confira o arquivo das autoridades"_s},
      {u"Unable to connect"_s,
       u"nada responde nesse endereço: confira servidor, porta, instância e firewall"_s}};
  for (const auto& [parte, conselho] : kCausas)
    if (palavras.contains(parte, Qt::CaseInsensitive)) return conselho;
  return u"confira a linha do ambiente em server.ini"_s;
}

void registraAchados() {
  const Anota anota = [](const Achado& achado) {
    if (!achado.conselho.isEmpty()) forms::report(linhaDo(achado));
  };
  // What the start has read so far stays as it is: some failures are passed over in silence.
  auto lido = trocaContexto();
  contexto().Ambiente = lido->Ambiente;
  olhaArquivos(anota);
  olhaPastas(anota);
  trocaContexto(std::move(lido));
}

QString avisoDasPastas() {
  QString primeiro;
  olhaPastas([&primeiro](const Achado& achado) {
    if (achado.conselho.isEmpty()) return;
    forms::report(linhaDo(achado));
    if (primeiro.isEmpty()) primeiro = achado.assunto + u": "_s + achado.conselho;
  });
  return primeiro;
}
