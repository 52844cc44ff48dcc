// Runs a guided road: a file of steps replayed against the real program, without a display.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstring>
#include <memory>

#include "conductor.h"
#include "driver.h"
#include "platform/files/regular_file.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "platform/web/web_pane.h"

using namespace Qt::StringLiterals;

namespace {

struct Wish {
  QString file;
  QString pictures;
  QString progressFile;  ///< of a child process
};

Wish wishOf(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      u"Runs a guided road. ZARIM_DRIVE_C names the folder that stands for drive C."_s);
  parser.addHelpOption();
  parser.addPositionalArgument(u"FILE"_s, u"The road."_s);
  QCommandLineOption child(u"child"_s, u"Goes on from there."_s, u"file"_s);
  child.setFlags(QCommandLineOption::HiddenFromHelp);
  const QString ownFolder = qEnvironmentVariable("ZARIM_ROAD_PICTURES", u"pictures"_s);
  parser.addOptions(
      {{u"pictures"_s, u"Where screenshots go; ZARIM_ROAD_PICTURES unless given."_s, u"DIR"_s, ownFolder},
       child});
  parser.process(application);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);
  return {parser.positionalArguments().first(), parser.value(u"pictures"_s), parser.value(u"child"_s)};
}

road::Road roadOf(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "%s: can't be read\n", qPrintable(name));
    std::exit(1);
  }
  int line = 0;
  const QString text = QString::fromUtf8(file.readAll());
  try {
    return road::readRoad(name, text, line);
  } catch (const road::Failure& failure) {
    road::report({name, {}}, {line, {}, {}, text.split(u'\n').at(line - 1).trimmed()}, failure);
    std::exit(1);
  }
}

void showMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
  // What the platform without a display can't do is of no interest.
  if (!text.startsWith(u"This plugin does not support"_s) && !text.startsWith(u"QStandardPaths:"_s)) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
  }
}

bool isChild(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--child") == 0) return true;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  forms::endPlainly();
  files::keepFromOthers();
  qInstallMessageHandler(showMessage);
  if (!isChild(argc, argv)) {
    const QCoreApplication application(argc, argv);
    const Wish wish = wishOf(application);
    QDir().mkpath(wish.pictures);
    return road::conduct(roadOf(wish.file), wish.pictures);
  }
  // Of the system's own dialogs no control can be reached.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setFont({QApplication::font().family(), 9});  // as a desktop sets it
  QApplication::setApplicationName(u"zarim"_s);
  const Wish wish = wishOf(application);
  road::Driver driver(roadOf(wish.file), wish.progressFile, wish.pictures);
  return driver.run(application);
}
