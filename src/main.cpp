#include <QApplication>

#include "platform/web/web_pane.h"
#include "quote/program.h"

int main(int argc, char** argv) {
  web::prepare();
  QApplication application(argc, argv);
  return runProgram(application, application.arguments().mid(1).join(u' '));
}
