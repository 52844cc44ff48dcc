#include "harness.h"
#include "measurements.h"
#include "platform/forms/form.h"
#include "quote/frmPropCmrcTL.h"
#include "rows.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

void open(int id) {
  auto& screen = forms::form<frmPropCmrcTL>();
  screen.txtCodigo->setText(QString::number(id));
  screen.cmdPesquisar_PropCmrc->click();
}

void edit(int id, const QString& mode) {
  open(id);
  forms::form<frmPropCmrcTL>().cmdALTERAR->click();
  contexto().ModoOrcamento = mode;
}

}  // namespace

void openingAndSaving() {
  for (const int lines : {10, 100, 1000}) {
    const int id = 20 + lines;
    const int runs = lines == 1000 ? 5 : 11;
    Bench company;
    company.fill(quoteRows(id, lines));
    company.start();
    auto& screen = forms::form<frmPropCmrcTL>();
    measure(company, {.name = "open a quote",
                      .size = lines,
                      .prepare = [&] { screen.LimpaTela(); },
                      .handler = [id] { open(id); },
                      .runs = runs});
    measure(company, {.name = "save a new quote",
                      .size = lines,
                      .prepare = [id] { edit(id, u"I"_s); },
                      .handler = [&] { screen.cmdSALVAR->click(); },
                      .runs = runs});
    measure(company, {.name = "save a changed quote",
                      .size = lines,
                      .prepare = [id] { edit(id, u"A"_s); },
                      .handler = [&] { screen.cmdSALVAR->click(); },
                      .runs = runs});
  }
}

}  // namespace bench
