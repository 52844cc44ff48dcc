#include "help/options.h"

#include <QApplication>
#include <cstdio>

#include "help/check.h"
#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "run/configuration.h"
#include "run/program_title.h"
#include "shared/program_icon.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kUso =
    "zarim 'usuário^menu^ambiente^'     abre o orçamento, como faz o menu do ERP\n"
    "zarim --check [PRD|HIST|DEV]       verifica a instalação, sem gravar nada no banco; 0 se tudo está bem\n"
    "zarim --version                    diz a versão\n"
    "zarim --help                       diz isto\n";

int diz(const QString& texto, FILE* onde = stdout, int status = 0) {
  std::fputs(texto.toUtf8().constData(), onde);
  return status;
}

int verifica(const QString& ambiente) {
  if (!ambiente.isEmpty() && !kAmbientes.contains(ambiente)) return diz(QString::fromUtf8(kUso), stderr, 2);
  int faltas = 0;
  const bool bem = verificaInstalacao(ambiente, [&faltas](const Achado& achado) {
    if (!achado.conselho.isEmpty()) ++faltas;
    QString linha = linhaDo(achado);
    for (QChar& letra : linha)
      if (letra.category() == QChar::Other_Control) letra = u' ';
    diz(linha + u'\n');
    std::fflush(stdout);
  });
  return diz(bem ? u"Tudo em ordem.\n"_s : u"%1 para resolver.\n"_s.arg(faltas), stdout, bem ? 0 : 1);
}

/// The desktop's menu knows no user: where a company is set up, the ERP's menu does.
int explicaMenu() {
  forms::msgBox(
      {.text = u"Há uma empresa configurada neste computador. O orçamento é aberto pelo menu do ERP, que "
               "diz quem é o usuário e qual é o ambiente:\r\rzarim '7^0^PRD^'"_s,
       .title = kTitulo,
       .icon = forms::Icon::Information});
  return 0;
}

}  // namespace

std::optional<int> atendeOpcao(int argc, char** argv, const QString& compilacao) {
  const QString opcao = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
  if (!opcao.startsWith(u"--"_s)) return {};
  if (opcao == u"--version") return diz(u"zarim " ZARIM_VERSION " (%1)\n"_s.arg(compilacao));
  if (opcao == u"--help") return diz(QString::fromUtf8(kUso));
  if (opcao == u"--check") {
    forms::needNoDisplay();  // it answers on the terminal
    const QGuiApplication aplicacao(argc, argv);
    return verifica(argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString());
  }
  if (opcao == u"--menu") {
    const QApplication aplicacao(argc, argv);
    forms::applyStyle();
    QApplication::setWindowIcon(iconeDoPrograma());
    return explicaMenu();
  }
  return diz(QString::fromUtf8(kUso), stderr, 2);
}
