#include "sample/company.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "platform/data/engine.h"
#include "platform/files/contents.h"
#include "platform/files/drives.h"
#include "platform/files/paths.h"
#include "platform/values/runtime_error.h"
#include "run/configuration.h"
#include "sample/fill.h"
#include "sample/pictures.h"

using namespace Qt::StringLiterals;

namespace sample {
namespace {

/// One line of server.ini each, in its order: production, history, development.
const QStringList kDatabases{kDatabase, u"c:\\zarim\\dados\\zarim_hist.db"_s,
                             u"c:\\zarim\\dados\\zarim_dev.db"_s};

const QStringList kFolders{u"config"_s, u"dados"_s, u"imagens"_s, u"imagens2"_s, u"web"_s, u"docs"_s};

/// Fields of paths.ini in their order; the first two and the eighth and ninth belong to other programs.
const QStringList kPaths{u"c:\\zarim\\relatorios\\"_s,
                         u"c:\\zarim\\temp\\"_s,
                         u"c:\\zarim\\imagens\\"_s,
                         u"c:\\zarim\\imagens2\\"_s,
                         u".jpg"_s,
                         u"_g.jpg"_s,
                         u"c:\\zarim\\imagens\\sem_imagem.jpg"_s,
                         u"c:\\zarim\\planilhas\\"_s,
                         u"c:\\zarim\\etiquetas\\"_s,
                         u"c:\\zarim\\docs\\"_s,
                         u"c:\\zarim\\web\\"_s,
                         u"c:\\zarim\\imagens2\\"_s};

/// In paths.ini the last two are of the web.
const QStringList kWebFolders{u"web"_s, u"imagens2"_s};

QString configuredPath(qsizetype field, const QString& webPictures) {
  const qsizetype first = kPaths.size() - kWebFolders.size();
  if (webPictures.isEmpty() || field < first) return kPaths[field];
  return webPictures + kWebFolders[field - first] + u'/';
}

void writeConfiguration(const QString& company, const QString& webPictures) {
  const QString config = company + u"/config/"_s;
  files::write(config + u"server_aplic.ini"_s, "c:\\^zarim\\^\r\n");
  QString servers;
  for (const QString& database : kDatabases) servers += u"(embutido)^%1^^^MS-SQL^^False^\r\n"_s.arg(database);
  files::write(config + u"server.ini"_s, servers.toUtf8(), files::Readers::Nobody);
  QString paths;
  for (qsizetype field = 0; field < kPaths.size(); ++field)
    paths += configuredPath(field, webPictures) + u'^';
  files::write(config + u"paths.ini"_s, paths.toUtf8() + "\r\n");
}

QString databaseFile(const QString& company, const QString& path) {
  return company + u"/dados/"_s + path.sliced(path.lastIndexOf(u'\\') + 1);
}

/// The three environments start with the same rows.
void writeDatabases(const QString& company, const Wishes& wishes) {
  const QString first = databaseFile(company, kDatabase);
  data::createEmbedded(first);
  data::Connection connection;
  connection.open(u"server=(embutido);database="_s + first, 30);
  fill(connection, schema::Dialect::Embedded, wishes.day);
  setMailServer(connection, wishes);
  connection.close();
  for (const QString& other : kDatabases.sliced(1))
    if (!QFile::copy(first, databaseFile(company, other))) values::raise(values::kPathFileAccess);
}

const QString kCompany = u"c:\\zarim\\"_s;

const QString kAboutMark =
    u"Esta pasta é a empresa de amostra do Zarim. Quem a faz de novo apaga só os arquivos desta lista:"_s;

/// The files that the installer made, by the company's mark; none without it.
QStringList marked() {
  const QString mark = kCompany + u"config\\"_s + kMarcaDaAmostra;
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
  files::standForDriveC(folder);
  return files::exists(kCompany + u"config\\server_aplic.ini"_s);
}

void install(const QString& folder, const Wishes& wishes, bool fresh) {
  files::standForDriveC(folder);
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
  for (const QString& part : kFolders)
    for (const QString& parent : {aside.path(), company})
      if (!QDir(parent).mkpath(part)) values::raise(values::kPathFileAccess, parent);
  writeDatabases(aside.path(), wishes);
  drawPictures(aside.path());
  writeConfiguration(aside.path(), wishes.webPictures);
  QStringList made = filesBelow(aside.path());
  for (const QString& name : std::as_const(made))
    if (!old.contains(name) && QFile::exists(company + u'/' + name)) refuse(name + u" is in the way."_s);
  removeMarked(old);
  files::write(company + u"/config/"_s + kMarcaDaAmostra,
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
