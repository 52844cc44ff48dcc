// Makes the sample company in a folder that stands for drive C.

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/files/regular_file.h"
#include "platform/forms/boxes.h"
#include "platform/values/dates.h"
#include "platform/values/runtime_error.h"
#include "sample/company.h"
#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace {

void say(FILE* where, const QString& text) { std::fprintf(where, "%s\n", text.toUtf8().constData()); }

struct Wish {
  QString folder;
  sample::Wishes company;
  bool fresh = false;
  bool server = false;
};

Wish wishOf(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(u"Makes the sample company in a folder that stands for drive C."_s);
  parser.addHelpOption();
  parser.addOptions(
      {{u"to"_s, u"The folder."_s, u"folder"_s},
       {u"day"_s, u"The day that all dates count from; today unless given."_s, u"dd/mm/yyyy"_s},
       {u"mail-server"_s, u"The server that mail goes to."_s, u"host:port"_s},
       {u"web-pictures"_s, u"Where the picture folders are on the web."_s, u"http://host:port/"_s},
       {u"fresh"_s, u"Starts afresh where there is an installation."_s},
       {u"server"_s, u"Puts schema and rows on the server that its server.ini names."_s},
       {u"schema"_s, u"Writes the statements that make the tables on a SQL Server, and ends."_s}});
  parser.process(application);
  if (parser.isSet(u"schema"_s)) {
    for (const QString& statement : schema::createStatements(schema::Dialect::SqlServer))
      say(stdout, statement + u';');
    std::exit(EXIT_SUCCESS);
  }
  Wish wish{parser.value(u"to"_s),
            {QDate::currentDate(), parser.value(u"mail-server"_s), parser.value(u"web-pictures"_s)},
            parser.isSet(u"fresh"_s),
            parser.isSet(u"server"_s)};
  if (wish.folder.isEmpty()) parser.showHelp(2);
  if (parser.isSet(u"day"_s)) {
    if (!values::isDate(parser.value(u"day"_s))) {
      say(stderr, u"--day wants dd/mm/yyyy."_s);
      std::exit(2);
    }
    wish.company.day = values::toDate(parser.value(u"day"_s)).date();
  }
  return wish;
}

void work(const Wish& wish) {
  if (wish.server) {
    sample::fillServer(wish.folder, wish.company, wish.fresh);
    say(stdout, u"Schema and sample rows are on the server."_s);
  } else if (sample::isInstalled(wish.folder) && !wish.fresh) {
    say(stdout, u"The sample company in %1 stays as it is (--fresh starts it afresh)."_s.arg(wish.folder));
  } else {
    sample::install(wish.folder, wish.company);
    say(stdout, u"The sample company is in %1."_s.arg(wish.folder));
  }
}

}  // namespace

int main(int argc, char** argv) {
  files::keepFromOthers();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  forms::setBoxAnswerer([](const forms::Box& box) {
    say(stderr, QString(box.text).replace(u'\r', u'\n'));
    return forms::Answer::Ok;
  });
  const Wish wish = wishOf(application);
  try {
    work(wish);
    return EXIT_SUCCESS;
  } catch (const values::RuntimeError& error) {
    say(stderr, error.text());
    return EXIT_FAILURE;
  }
}
