// Puts schema and sample rows on a SQL Server, for tests; no part of the package.

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/forms/boxes.h"
#include "platform/values/runtime_error.h"
#include "sample/server.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const auto complain = [](const QString& text) { std::fprintf(stderr, "%s\n", text.toUtf8().constData()); };
  forms::setBoxAnswerer([&](const forms::Box& box) {
    complain(QString(box.text).replace(u'\r', u'\n'));
    return forms::Answer::Ok;
  });
  QCommandLineParser parser;
  parser.setApplicationDescription(u"Puts schema and rows of the sample company on a SQL Server."_s);
  parser.addOptions(
      {{u"company"_s, u"The folder for drive C whose server.ini names the server."_s, u"folder"_s},
       {u"database"_s, u"The database's name, as server.ini has it."_s, u"name"_s},
       {u"fresh"_s, u"Drops the sample's tables that are there first."_s}});
  sample::addWishes(parser);
  parser.process(application);
  if (!parser.isSet(u"company"_s) || !parser.isSet(u"database"_s)) parser.showHelp(2);
  try {
    sample::fillServer(parser.value(u"company"_s), parser.value(u"database"_s), sample::wishesOf(parser),
                       parser.isSet(u"fresh"_s));
    return EXIT_SUCCESS;
  } catch (const values::RuntimeError& error) {
    complain(error.text());
    return EXIT_FAILURE;
  }
}
