// Writes the program's picture in the sizes of an icon theme: FOLDER/48x48/apps/zarim.png and so on.

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "shared/program_icon.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "zarim_icons FOLDER: writes FOLDER/16x16/apps/zarim.png and the other sizes\n");
    return 2;
  }
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QString folder = QString::fromLocal8Bit(argv[1]) + u"/%1x%1/apps"_s.arg(side);
    if (!QDir().mkpath(folder) || !imagemDoPrograma(side).save(folder + u"/zarim.png"_s)) {
      std::fprintf(stderr, "%s can't be written\n", qPrintable(folder));
      return EXIT_FAILURE;
    }
  }
  return EXIT_SUCCESS;
}
