// The SQL server of the tests as a program of its own: says its port and its line of server.ini, and serves
// until it is ended.
#include <QCoreApplication>
#include <cstdio>

#include "sqlserver/tds_server.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const sqlserver::TdsServer server;
  std::printf("%d %s\n", server.port(), qPrintable(sqlserver::TdsServer::configurationLine()));
  std::fflush(stdout);
  return QCoreApplication::exec();
}
