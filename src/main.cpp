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

int main(int argc, char** argv) {
  forms::endPlainly();
  files::keepFromOthers();
  if (const auto status = atendeOpcao(argc, argv, QStringLiteral(ZARIM_BUILD_ID))) return *status;
  files::logInto(files::stateFolder() + QStringLiteral("/zarim.log"));
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zarim"));
  QApplication::setApplicationVersion(QStringLiteral(ZARIM_BUILD_ID));
  QApplication::setDesktopFileName(QStringLiteral("zarim"));
  forms::measures::keepIn(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                          QStringLiteral("/telas.ini"));
  return executaPrograma(application, application.arguments().mid(1).join(u' '));
}
