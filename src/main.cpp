#include <QApplication>

#include "build_id.h"
#include "platform/files/regular_file.h"
#include "platform/web/web_pane.h"
#include "quote/program.h"

int main(int argc, char** argv) {
  files::keepFromOthers();
  web::prepare();
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zarim"));
  QApplication::setApplicationVersion(QStringLiteral(ZARIM_BUILD_ID));
  QApplication::setDesktopFileName(QStringLiteral("zarim"));
  return runProgram(application, application.arguments().mid(1).join(u' '));
}
