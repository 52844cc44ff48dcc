#include "quote/program.h"

#include "draft/keeper.h"
#include "help/help_keys.h"
#include "platform/files/drives.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "shared/program_icon.h"

using namespace Qt::StringLiterals;

int executaPrograma(QApplication& aplicacao, const QString& linhaComando) {
  aplicacao.setQuitOnLastWindowClosed(false);
  forms::applyStyle();
  forms::askAboutHeldFiles();
  aplicacao.setWindowIcon(iconeDoPrograma());
  TeclasDeAjuda teclasDeAjuda;
  aplicacao.installEventFilter(&teclasDeAjuda);
  contexto().LinhaComando = linhaComando;
  forms::guarded(
      [&aplicacao] {
        auto& principal = forms::form<frmPropCmrcTL>();
        QObject::connect(&principal, &QObject::destroyed, &aplicacao, &QCoreApplication::quit,
                         Qt::QueuedConnection);
        principal.showForm();
        rascunho::guarda().liga(files::profileFolder() + u"/rascunhos"_s);
      },
      u"frmPropCmrcTL.Form_Load"_s);
  const int status = aplicacao.exec();
  rascunho::guarda().desliga();
  forms::registry::clear();
  contexto().Conexao.drop();  // while the libraries of the database are still there
  return status;
}
