#include "support/company.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include "platform/data/engine.h"
#include "platform/files/contents.h"
#include "platform/files/drives.h"
#include "platform/forms/form.h"
#include "platform/values/dates.h"
#include "run/configuration.h"
#include "run/context.h"
#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

/// An empty database with the whole schema, made once in a test program and copied for each test.
QString emptyDatabase() {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(u"vazio.db"_s);
  if (!QFile::exists(path)) {
    data::createEmbedded(path);
    data::Connection connection = connectionTo(path);
    connection.begin();
    for (const QString& statement : schema::createStatements(schema::Dialect::Embedded))
      connection.execute(statement);
    connection.commit();
  }
  return path;
}

}  // namespace

data::Connection connectionTo(const QString& databasePath) {
  return {u"server=(embutido);database="_s + databasePath, 30};
}

Company::Company() {
  files::standForDriveC(drive());
  for (const auto& name : {u"config"_s, u"dados"_s, u"imagens"_s, u"imagens2"_s, u"documentos"_s})
    QDir(drive()).mkpath(u"zarim/"_s + name);
  QFile::copy(emptyDatabase(), databasePath());
  configure(u"server_aplic.ini"_s, u"c:\\^zarim\\^"_s);
  configure(u"server.ini"_s, u"(embutido)^"_s + databasePath() + u"^sa^segredo^MS-SQL^^False^"_s);
  configure(
      u"paths.ini"_s,
      u"x^x^c:\\zarim\\imagens\\^c:\\zarim\\imagens2\\^.jpg^.jpg^c:\\zarim\\imagens\\sem_imagem.jpg^x^x^"
      "c:\\zarim\\documentos\\^http://www.exemplo.com.br/imagens/^http://www.exemplo.com.br/fotos/^"_s);
  reiniciaContexto();
  contexto().Ambiente = u"PRD"_s;
  contexto().IdUsuarioAtual = 7;
  connect();
}

Company::~Company() {
  forms::registry::clear();
  reiniciaContexto();
  values::setClock({});
  qunsetenv("ZARIM_DRIVE_C");
}

void Company::connect() {
  ConectaServidor();
  contexto().Conexao.setListener([this](const QString& statement) { statements_ << statement; });
}

void Company::sql(const QString& statement) { connectionTo(databasePath()).execute(statement); }

QString Company::ask(const QString& statement) {
  data::Connection connection = connectionTo(databasePath());
  const auto rs = connection.query(statement);
  return rs.eof() ? QString() : rs.text(rs.columns().first());
}

void Company::configure(const QString& name, const QString& content) {
  files::write(u"c:\\zarim\\config\\"_s + name, content.toUtf8());
}

QString Company::drive() const { return folder_.path(); }

QString Company::databasePath() const { return drive() + u"/zarim/dados/zarim.db"_s; }

void Company::clock(const QString& when) {
  values::setClock([date = values::toDate(when)] { return date; });
}

QStringList Company::statements() { return std::exchange(statements_, {}); }

}  // namespace support
