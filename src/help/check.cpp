#include "help/check.h"

#include <QFontDatabase>
#include <QHostInfo>
#include <QPrinterInfo>
#include <QRegularExpression>

#include "platform/mail/mail_message.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
#include "run/context.h"
#include "schema/rights.h"
#include "schema/tables.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEspera = 15;  // seconds: who asks sits before the answer

/// The words of a statement that fails; empty where it goes.
QString recusa(data::Connection& conexao, const QString& sql) {
  try {
    if (sql.startsWith(u"SELECT"_s))
      (void)conexao.query(sql);
    else
      conexao.execute(sql);
    return {};
  } catch (const values::RuntimeError& erro) {
    if (erro.number() != values::kStatementFailed) throw;
    return erro.text();
  }
}

void olhaServidor(const Anota& anota) {
  const Contexto& c = contexto();
  const QString cadeia = cadeiaDeConexao();
  if (cadeia.isEmpty())
    return anota({u"servidor"_s, u"nenhum"_s, u"escreva a linha do ambiente em server.ini"_s});
  static const QRegularExpression kDepoisDoNome(u"[\\\\,;].*"_s);
  const QString nome = QString(c.NomeServidor).remove(kDepoisDoNome);
  if (c.TipoBanco != u"FIREBIRD" && nome != u"(embutido)") {
    const auto enderecos = QHostInfo::fromName(nome).addresses();
    anota({u"nome do servidor"_s, enderecos.isEmpty() ? nome : nome + u" é "_s + enderecos.first().toString(),
           enderecos.isEmpty() ? u"a rede não conhece esse nome: confira o campo 1 da linha"_s : QString()});
  }
  try {
    contexto().Conexao.open(cadeia, kEspera);
    anota({u"conexão"_s, u"aberta com o usuário e o banco da linha"_s, {}});
  } catch (const values::RuntimeError& erro) {
    anota({u"conexão"_s, erro.text(), conselhoDaConexao(erro.text())});
  }
}

void olhaTabelas(const Anota& anota, data::Connection& conexao) {
  for (const schema::Table& tabela : schema::tables()) {
    const QString& nome = tabela.name;
    QStringList colunas;
    for (const schema::Column& coluna : tabela.columns) colunas += coluna.name;
    const auto le = [&](const QString& o) {
      return recusa(conexao, u"SELECT %1 FROM %2 WHERE 1=0"_s.arg(o, nome));
    };
    const QString assunto = u"tabela "_s + nome;
    if (le(colunas.join(u", "_s)).isEmpty()) {
      anota({assunto, u"%1 colunas"_s.arg(colunas.size()), {}});
    } else if (const QString palavras = le(u"1 AS X"_s); !palavras.isEmpty()) {
      anota({assunto, palavras, u"crie a tabela, ou dê ao usuário SELECT nela"_s});
    } else {
      colunas.removeIf([&le](const QString& coluna) { return le(coluna).isEmpty(); });
      anota({assunto, u"faltam colunas, ou o direito de lê-las: "_s + colunas.join(u", "_s), u"crie-as"_s});
    }
  }
}

void olhaDireitos(const Anota& anota, data::Connection& conexao) {
  for (const schema::Right& direito : schema::rights()) {
    const auto& [acao, tabela] = direito;
    if (acao == u"SELECT") continue;  // the tables' own looks have tried it
    const QString palavras = recusa(conexao, schema::probe(direito));
    anota({acao + u" em "_s + tabela, palavras.isEmpty() ? u"permitido"_s : palavras,
           palavras.isEmpty() ? QString() : u"dê ao usuário este direito"_s});
  }
}

void entraNoCorreio(const Anota& anota, const QString& quem, const QString& servidor, const QString& usuario,
                    const QString& senha) {
  if (usuario.isEmpty())
    return anota({quem, u"sem endereço em empr"_s, u"escreva endereço e senha no cadastro da empresa"_s});
  try {
    mail::MailMessage entrada;
    entrada.AuthenticationType = mail::kLogin;
    entrada.Server = servidor;
    entrada.Username = usuario;
    entrada.Password = senha;
    const bool cifrado = entrada.tryLogin();
    anota({quem,
           u"%1 aceita %2, %3"_s.arg(servidor, usuario,
                                     cifrado ? u"com TLS"_s : u"sem TLS: a senha passa às claras"_s),
           {}});
  } catch (const values::RuntimeError& erro) {
    // Nothing was to be sent.
    const QString porque = QString(erro.text()).remove(values::kMailFailed.text.toString() + u": "_s);
    anota({quem, porque, u"confira emai_serv, endereço e senha em empr, e o certificado do servidor"_s});
  }
}

void olhaCorreio(const Anota& anota, data::Connection& conexao) {
  const QString sql = u"SELECT * FROM EMPR WHERE DATA_DESA IS NULL"_s;
  if (!recusa(conexao, sql).isEmpty()) return;  // the table's own look has said why
  const auto empresa = conexao.query(sql);
  if (empresa.eof())
    return anota({u"empresa"_s, u"a tabela empr não tem linha sem data_desa"_s, u"cadastre a empresa"_s});
  const auto campo = [&empresa](QStringView nome) { return apara(empresa.text(nome)); };
  const QString servidor = campo(u"EMAI_SERV").toLower();
  if (servidor.isEmpty())
    return anota({u"correio"_s, u"nenhum servidor: os e-mails não saem"_s,
                  u"escreva emai_serv no cadastro da empresa"_s});
  // As the program logs in: notices with their password in small letters.
  entraNoCorreio(anota, u"correio dos avisos"_s, servidor, campo(u"EMAI_EMPR").toLower(),
                 campo(u"EMAI_EMPR_SENH").toLower());
  entraNoCorreio(anota, u"correio dos orçamentos"_s, servidor, campo(u"EMAI_ORCA").toLower(),
                 campo(u"SENH_EMAI_ORCA"));
}

void olhaFontes(const Anota& anota) {
  const QStringList familias = QFontDatabase::families();
  for (const auto& [pedida, parecida] :
       {std::pair{u"Verdana"_s, u"DejaVu Sans"_s}, {u"Arial"_s, u"Liberation Sans"_s}}) {
    const bool ha = familias.contains(pedida) || familias.contains(parecida);
    anota({u"letra "_s + pedida, ha ? (familias.contains(pedida) ? pedida : parecida) : u"nenhuma parecida"_s,
           ha ? QString() : u"instale "_s + parecida});
  }
}

void olhaImpressoras(const Anota& anota) {
  const QString todas = QPrinterInfo::availablePrinterNames().join(u", "_s);
  anota({u"impressoras"_s, todas.isEmpty() ? u"nenhuma"_s : todas, {}});
}

}  // namespace

bool verificaInstalacao(const QString& ambiente, const Anota& anota) {
  reiniciaContexto();
  contexto().Ambiente = ambiente.isEmpty() ? kAmbientes.front() : ambiente;
  data::Connection& conexao = contexto().Conexao;
  bool tudoBem = true;
  const Anota conta = [&](const Achado& achado) {
    tudoBem = tudoBem && achado.conselho.isEmpty();
    anota(achado);
  };
  const auto olha = [&](const auto& olhar) {
    try {
      olhar();
    } catch (const values::RuntimeError& erro) {
      conta({u"conexão"_s, erro.text(), conselhoDaConexao(erro.text())});
      conexao.drop();
    }
  };
  for (const auto olhar : {olhaArquivos, olhaPastas, olhaServidor}) olha([&] { olhar(conta); });
  for (const auto olhar : {olhaTabelas, olhaDireitos, olhaCorreio})
    if (conexao.isOpen()) olha([&] { olhar(conta, conexao); });
  for (const auto olhar : {olhaFontes, olhaImpressoras}) olha([&] { olhar(conta); });
  return tudoBem;
}
