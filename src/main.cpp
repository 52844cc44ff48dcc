#include <QApplication>
#include <QStandardPaths>

#include "build_id.h"
#include "help/options.h"
#include "platform/files/drives.h"
#include "platform/files/log_file.h"
#include "platform/files/regular_file.h"
#include "platform/forms/measures.h"
#include "platform/forms/process.h"
#include "quote/program.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
  forms::endPlainly();
  files::keepFromOthers();
  if (const auto status = atendeOpcao(argc, argv, QStringLiteral(ZARIM_BUILD_ID))) return *status;
  files::logInto(files::stateFolder() + u"/zarim.log"_s);
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"zarim"_s);
  QApplication::setApplicationVersion(QStringLiteral(ZARIM_BUILD_ID));
  QApplication::setDesktopFileName(u"zarim"_s);
  forms::measures::keepIn(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                          u"/telas.ini"_s);
  return executaPrograma(application, application.arguments().mid(1).join(u' '));
}
