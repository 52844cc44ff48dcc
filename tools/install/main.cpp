// Makes the sample company in a folder that stands for drive C.

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/files/regular_file.h"
#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"
#include "sample/company.h"
#include "schema/rights.h"
#include "schema/tables.h"

using namespace Qt::StringLiterals;

namespace {

void say(FILE* where, const QString& text) { std::fprintf(where, "%s\n", text.toUtf8().constData()); }

int list(const QStringList& statements) {
  for (const QString& statement : statements) say(stdout, statement + u';');
  return EXIT_SUCCESS;
}

void work(const QString& folder, const sample::Wishes& wishes, bool fresh) {
  const bool stays = sample::isInstalled(folder) && !fresh;
  if (!stays) sample::install(folder, wishes, fresh);
  say(stdout, (stays ? u"There is a company in %1: it stays as it is."_s : u"The sample company is in %1."_s)
                  .arg(folder));
}

}  // namespace

int main(int argc, char** argv) {
  files::keepFromOthers();
  forms::needNoDisplay();
  const QGuiApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(u"Makes the sample company in a folder that stands for drive C."_s);
  parser.addOptions(
      {{u"to"_s, u"The folder."_s, u"folder"_s},
       {u"fresh"_s, u"Makes the sample company anew; files that are not its own stay."_s},
       {u"rights"_s, u"Writes the statements that give a role what the program needs, and ends."_s},
       {u"schema"_s, u"Writes the statements that make the tables on a SQL Server, and ends."_s}});
  sample::addWishes(parser);
  parser.process(application);
  if (parser.isSet(u"schema"_s)) return list(schema::createStatements(schema::Dialect::SqlServer));
  if (parser.isSet(u"rights"_s)) return list(schema::grantStatements(u"zarim_vendas"_s));
  const QString folder = parser.value(u"to"_s);
  if (folder.isEmpty()) parser.showHelp(2);
  try {
    work(folder, sample::wishesOf(parser), parser.isSet(u"fresh"_s));
    return EXIT_SUCCESS;
  } catch (const values::RuntimeError& error) {
    say(stderr, error.text());
    return EXIT_FAILURE;
  }
}
