#include "quote/program.h"

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
  });
  const int status = application.exec();
  forms::registry::clear();
  contexto().Conexao = {};  // while the libraries of the database are still there
  return status;
}
