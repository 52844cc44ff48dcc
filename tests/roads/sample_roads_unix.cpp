#include <gtest/gtest.h>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <optional>

#include "schema/rights.h"
#include "sqlserver/tds_server.h"

using namespace Qt::StringLiterals;
using sqlserver::TdsServer;

namespace {

constexpr int kPatience = 300'000;  // milliseconds, on a busy machine

/// A road, and whether the sample company's rows are on the server.
using Walk = std::pair<std::string, bool>;

/// Every road on the embedded file; on the server those that don't look at the embedded library's own words.
std::vector<Walk> walks() {
  std::vector<Walk> found;
  for (const QFileInfo& info :
       QDir(QStringLiteral(ZARIM_SOURCE_DIR "/sample/roads")).entryInfoList({u"*.road"_s})) {
    const std::string road = info.completeBaseName().toStdString();
    found.emplace_back(road, false);
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QByteArray steps = file.readAll();
    if (!steps.contains("syntax error") && !steps.contains("no such column")) found.emplace_back(road, true);
  }
  return found;
}

/// Runs a program to its end; says what it wrote when it fails.
void run(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment) {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  const bool ended = process.waitForFinished(kPatience);
  EXPECT_TRUE(ended);
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(process.exitCode(), 0) << program.toStdString() << ' ' << arguments.join(u' ').toStdString()
                                   << '\n'
                                   << process.readAll().toStdString();
}

/// One of the servers beside the program, on a free port, as long as it lives.
class Server {
 public:
  explicit Server(const QString& script, const QStringList& arguments) {
    process_.start(u"/usr/bin/python3"_s, QStringList{QStringLiteral(ZARIM_SOURCE_DIR "/tools/") + script} +
                                              arguments + QStringList{u"--port"_s, u"0"_s});
    process_.waitForReadyRead();
  }
  ~Server() {
    process_.terminate();
    process_.waitForFinished();
  }
  /// The third word of its first line.
  [[nodiscard]] QString address() { return QString::fromUtf8(process_.readLine()).section(u' ', 2, 2); }

 private:
  QProcess process_;
};

/// With exactly the rights that the database's administrator is told to give; what a road's sql steps write,
/// other programs do.
std::function<TdsServer::Act(const QString&)> refusalOfOtherRights(const std::string& road) {
  QStringList allowed;
  for (const schema::Right& right : schema::rights()) allowed << right.act + u' ' + right.table;
  QFile file(QStringLiteral(ZARIM_SOURCE_DIR "/sample/roads/") + QString::fromStdString(road) + u".road"_s);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
    if (line.startsWith(u"sql \""_s)) allowed << line.sliced(5).chopped(1);
  return [allowed](const QString& statement) {
    const QString right = TdsServer::rightOf(statement);
    const bool may = right.isEmpty() || allowed.contains(right) || allowed.contains(statement);
    return may ? TdsServer::Act::Answer : TdsServer::Act::Refuse;
  };
}

class SampleRoad : public ::testing::TestWithParam<Walk> {};

TEST_P(SampleRoad, IsWalkedToItsEnd) {
  const QTemporaryDir folder;
  const QString drive = folder.path() + u"/c"_s;
  const QString mail = folder.path() + u"/mail"_s;
  const QString pictures = QStringLiteral(ZARIM_BINARY_DIR "/pictures");
  QDir().mkpath(pictures);
  Server catcher(u"servers/mailcatcher.py"_s,
                 {u"--describe"_s, u"--folder"_s, mail, u"--limit"_s, u"400000"_s});
  Server pictureServer(u"servers/pictureserver.py"_s, {u"--company"_s, drive + u"/zarim"_s});
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"ZARIM_DRIVE_C"_s, drive);
  environment.insert(u"ZARIM_MAIL_FOLDER"_s, mail);
  environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
  const QString tools = QStringLiteral(ZARIM_BINARY_DIR "/tools/");
  QStringList company{u"--to"_s,           drive,
                      u"--day"_s,          u"16/03/2026"_s,
                      u"--mail-server"_s,  catcher.address(),
                      u"--web-pictures"_s, pictureServer.address()};
  run(tools + u"zarim_install"_s, company, environment);
  const auto& [road, onServer] = GetParam();
  std::optional<sqlserver::TdsServer> server;
  if (onServer) {
    server.emplace();
    environment.insert(u"TDSPORT"_s, QString::number(server->port()));
    QFile configuration(drive + u"/zarim/config/server.ini"_s);
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
    configuration.write(server->configurationLine().append(u"\r\n"_s).repeated(3).toUtf8());
    configuration.close();
    company[0] = u"--company"_s;
    run(tools + u"zarim_fill"_s, company << u"--database"_s << server->Database, environment);
    server->setFault(refusalOfOtherRights(road));
  }
  run(tools + u"zarim_road"_s,
      {u"--pictures"_s, pictures,
       QStringLiteral(ZARIM_SOURCE_DIR "/sample/roads/") + QString::fromStdString(road) + u".road"_s},
      environment);
}

INSTANTIATE_TEST_SUITE_P(Roads, SampleRoad, ::testing::ValuesIn(walks()), [](const auto& one) {
  return one.param.first + (one.param.second ? "_server" : "");
});

}  // namespace
