#include "sample/company.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "platform/data/engine.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
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

/// The three environments start with the same rows.
void writeDatabases(const QString& company, const Wishes& wishes) {
  const QString first = databaseFile(company, kEnvironments[0]);
  data::createEmbedded(first);
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + first, 30);
  fill(connection, schema::Dialect::Embedded, wishes.day);
  setMailServer(connection, wishes);
  connection.close();
  for (const Environment& one : std::span(kEnvironments).subspan(1))
    if (!QFile::copy(first, databaseFile(company, one))) values::raise(values::kPathFileAccess);
}

const QString kCompany = u"c:\\zarim\\"_s;

const QString kAboutMark =
    u"Esta pasta é a empresa de amostra do Zarim. Quem a faz de novo apaga só os arquivos desta lista:"_s;

/// The files that the installer made, by the company's mark; none without it.
QStringList marked() {
  const QString mark = kCompany + u"config\\"_s + QString::fromUtf16(kMarcaDaAmostra);
  return files::exists(mark) ? files::readLines(mark).mid(1) : QStringList();
}

/// Paths of all files below a folder, hidden ones and links among them.
QStringList filesBelow(const QString& folder) {
  QStringList found;
  QDirIterator file(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
  while (file.hasNext()) found += file.next().sliced(folder.size() + 1);
  found.sort();
  return found;
}

[[noreturn]] void refuse(const QString& why) {
  throw values::RuntimeError(values::kPathFileAccess,
                             why + u" Nothing was changed: move it away, or name another folder."_s);
}

/// A database takes with it what its library keeps beside it.
void removeMarked(const QStringList& names) {
  for (const QString& name : names)
    for (const auto& beside : {u""_s, u"-wal"_s, u"-shm"_s})
      if (beside.isEmpty() || name.endsWith(u".db"_s)) files::removeIfThere(kCompany + name + beside);
}

}  // namespace

void setMailServer(data::Connection& connection, const Wishes& wishes) {
  if (wishes.mailServer.isEmpty()) return;
  connection.execute(u"update empr set emai_serv = '%1'"_s.arg(wishes.mailServer));
}

bool isInstalled(const QString& folder) {
  qputenv("ZARIM_DRIVE_C", folder.toUtf8());
  return files::exists(kCompany + u"config\\server_aplic.ini"_s);
}

void install(const QString& folder, const Wishes& wishes, bool fresh) {
  qputenv("ZARIM_DRIVE_C", folder.toUtf8());
  const QString company = files::resolve(kCompany);
  const QStringList old = marked();
  if (QFile::exists(company) && !QFileInfo(company).isDir()) refuse(company + u" is no folder."_s);
  if (old.isEmpty() && !filesBelow(company).isEmpty())
    refuse(company + u" holds files that this installer did not make."_s);
  if (!old.isEmpty() && !fresh)
    refuse(u"The sample company in "_s + company + u" is not whole (--fresh makes it anew)."_s);

  // Made aside and put in its place file by file: no file of somebody's is written over.
  if (!QDir().mkpath(company)) values::raise(values::kPathFileAccess, company);
  const QTemporaryDir aside(folder + u"/zarim-XXXXXX"_s);
  if (!aside.isValid()) values::raise(values::kPathFileAccess, folder);
  for (const char16_t* part : kFolders)
    for (const QString& parent : {aside.path(), company})
      if (!QDir(parent).mkpath(QString::fromUtf16(part))) values::raise(values::kPathFileAccess, parent);
  writeDatabases(aside.path(), wishes);
  drawPictures(aside.path());
  writeConfiguration(aside.path(), wishes.webPictures);
  QStringList made = filesBelow(aside.path());
  for (const QString& name : std::as_const(made))
    if (!old.contains(name) && QFile::exists(company + u'/' + name)) refuse(name + u" is in the way."_s);
  removeMarked(old);
  files::write(company + u"/config/"_s + QString::fromUtf16(kMarcaDaAmostra),
               (kAboutMark + u"\r\n"_s + made.join(u"\r\n"_s) + u"\r\n"_s).toUtf8());
  // Last comes the file that says that the company is whole.
  const QString last = u"config/server_aplic.ini"_s;
  made.removeOne(last);
  made.append(last);
  for (const QString& name : std::as_const(made))
    if (!QFile::rename(aside.filePath(name), company + u'/' + name))
      values::raise(values::kPathFileAccess, company + u'/' + name);
}

}  // namespace sample
