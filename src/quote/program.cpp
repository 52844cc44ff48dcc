#include "quote/program.h"

#include <QStandardPaths>

#include "draft/keeper.h"
#include "help/help_keys.h"
#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/program_icon.h"

int runProgram(QApplication& application, const QString& commandLine) {
  forms::endPlainly();
  application.setQuitOnLastWindowClosed(false);
  forms::applyStyle();
  application.setWindowIcon(programIcon());
  HelpKeys helpKeys;
  application.installEventFilter(&helpKeys);
  contexto().LinhaComando = commandLine;
  forms::guarded([&application] {
    auto& main = forms::form<frmPropCmrcTL>();
    QObject::connect(&main, &QObject::destroyed, &application, &QCoreApplication::quit, Qt::QueuedConnection);
    main.showForm();
    rascunho::guarda().liga(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                            QStringLiteral("/rascunhos"));
  });
  const int status = application.exec();
  rascunho::guarda().desliga();
  forms::registry::clear();
  contexto().Conexao = {};  // while the libraries of the database are still there
  return status;
}
