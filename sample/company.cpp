#include "sample/company.h"

#include <QDir>
#include <QFile>

#include "platform/data/engine.h"
#include "platform/files/contents.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
#include "run/context.h"
#include "sample/fill.h"
#include "sample/pictures.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

struct Environment {
  const char16_t* name;
  const char16_t* database;
};

/// One line of server.ini each, in its order: production, history, development.
constexpr Environment kEnvironments[] = {{u"PRD", kDatabase},
                                         {u"HIST", u"c:\\zarim\\dados\\zarim_hist.db"},
                                         {u"DEV", u"c:\\zarim\\dados\\zarim_dev.db"}};

constexpr const char16_t* kFolders[] = {u"config", u"dados", u"imagens", u"imagens2", u"web", u"docs"};

/// Fields of paths.ini in their order; the first two and the eighth and ninth belong to other programs.
constexpr const char16_t* kPaths[] = {u"c:\\zarim\\relatorios\\",
                                      u"c:\\zarim\\temp\\",
                                      u"c:\\zarim\\imagens\\",
                                      u"c:\\zarim\\imagens2\\",
                                      u".jpg",
                                      u"_g.jpg",
                                      u"c:\\zarim\\imagens\\sem_imagem.jpg",
                                      u"c:\\zarim\\planilhas\\",
                                      u"c:\\zarim\\etiquetas\\",
                                      u"c:\\zarim\\docs\\",
                                      u"c:\\zarim\\web\\",
                                      u"c:\\zarim\\imagens2\\"};

/// In paths.ini the last two are of the web.
constexpr const char16_t* kWebFolders[] = {u"web", u"imagens2"};

QString configuredPath(std::size_t field, const QString& webPictures) {
  const std::size_t first = std::size(kPaths) - std::size(kWebFolders);
  if (webPictures.isEmpty() || field < first) return QString::fromUtf16(kPaths[field]);
  return webPictures + QString::fromUtf16(kWebFolders[field - first]) + u'/';
}

void writeConfiguration(const QString& company, const QString& webPictures) {
  const QString config = company + u"/config/"_s;
  files::write(config + u"server_aplic.ini"_s, "c:\\^zarim\\^\r\n");
  QString servers;
  for (const Environment& one : kEnvironments)
    servers += u"(embutido)^%1^^^MS-SQL^^False^\r\n"_s.arg(QString::fromUtf16(one.database));
  files::write(config + u"server.ini"_s, servers.toUtf8(), files::Readers::Nobody);
  QString paths;
  for (std::size_t field = 0; field < std::size(kPaths); ++field)
    paths += configuredPath(field, webPictures) + u'^';
  files::write(config + u"paths.ini"_s, paths.toUtf8() + "\r\n");
}

QString databaseFile(const QString& company, const Environment& environment) {
  const QString path = QString::fromUtf16(environment.database);
  return company + u"/dados/"_s + path.sliced(path.lastIndexOf(u'\\') + 1);
}

void setMailServer(data::Connection& connection, const QString& server) {
  if (!server.isEmpty()) connection.execute(u"update empr set emai_serv = '%1'"_s.arg(server));
}

/// The three environments start with the same rows.
void writeDatabases(const QString& company, const Wishes& wishes) {
  const QString first = databaseFile(company, kEnvironments[0]);
  data::createEmbedded(first);
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + first, 30);
  fill(connection, schema::Dialect::Embedded, wishes.day);
  setMailServer(connection, wishes.mailServer);
  connection.close();
  for (const Environment& one : std::span(kEnvironments).subspan(1))
    if (!QFile::copy(first, databaseFile(company, one))) values::raise(values::kPathFileAccess);
}

}  // namespace

bool isInstalled(const QString& folder) {
  return QFile::exists(folder + u"/zarim/config/server_aplic.ini"_s);
}

void install(const QString& folder, const Wishes& wishes) {
  const QString company = folder + u"/zarim"_s;
  if (!QDir(company).removeRecursively()) values::raise(values::kPathFileAccess, company);
  for (const char16_t* part : kFolders)
    if (!QDir().mkpath(company + u'/' + QString::fromUtf16(part)))
      values::raise(values::kPathFileAccess, company);
  writeDatabases(company, wishes);
  drawPictures(company);
  writeConfiguration(company, wishes.webPictures);  // last, for it marks the installation as done
}

void fillServer(const QString& folder, const Wishes& wishes, bool fresh) {
  qputenv("ZARIM_DRIVE_C", folder.toUtf8());
  contexto().Ambiente = u"PRD"_s;
  ConectaServidor();
  data::Connection& connection = contexto().Conexao;
  if (fresh)
    for (const QString& statement : schema::dropStatements()) connection.execute(statement);
  fill(connection, schema::Dialect::SqlServer, wishes.day);
  setMailServer(connection, wishes.mailServer);
  connection.close();
}

}  // namespace sample
