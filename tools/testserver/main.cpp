// The SQL server of the tests as a program of its own: says its port and its line of server.ini, and serves
// until it is ended.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>

#include "sqlserver/tds_server.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(u"Serves an empty database as a SQL Server does."_s);
  parser.addHelpOption();
  parser.addOption({u"log"_s, u"Writes each statement into the file."_s, u"file"_s});
  parser.addOption({u"refuse-in"_s,
                    u"Refuses the rights that the file names, a line each (\"DELETE prot\")."_s, u"file"_s});
  parser.process(application);
  sqlserver::TdsServer server;
  const QString list = parser.value(u"refuse-in"_s);
  server.setFault([list, log = parser.value(u"log"_s)](const QString& statement) {
    QFile file(list), notes(log);
    if (!log.isEmpty() && notes.open(QIODevice::Append)) notes.write(statement.simplified().toUtf8() + '\n');
    const QString right = sqlserver::TdsServer::rightOf(statement);
    const bool refused = !right.isEmpty() && file.open(QIODevice::ReadOnly) &&
                         file.readAll().split('\n').contains(right.toUtf8());
    return refused ? sqlserver::TdsServer::Act::Refuse : sqlserver::TdsServer::Act::Answer;
  });
  std::printf("%d %s\n", server.port(), qPrintable(sqlserver::TdsServer::configurationLine()));
  std::fflush(stdout);
  return QCoreApplication::exec();
}
