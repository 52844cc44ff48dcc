#include "draft/keeper.h"
#include "harness.h"
#include "measurements.h"
#include "platform/forms/form.h"
#include "platform/forms/rest.h"
#include "quote/frmPropCmrcTL.h"
#include "rows.h"

using namespace Qt::StringLiterals;

namespace bench {

void keepingDrafts() {
  constexpr int kRuns = 31;
  const struct {
    int lines;
    double bound;  // milliseconds
  } sizes[] = {{10, 2}, {100, 2}, {1000, 10}};
  for (const auto& size : sizes) {
    const int id = 20 + size.lines;
    Bench company;
    company.fill(quoteRows(id, size.lines));
    company.start();
    auto& screen = forms::form<frmPropCmrcTL>();
    rascunho::guarda().liga(company.drive() + u"/rascunhos"_s);
    screen.txtCodigo->setText(QString::number(id));
    screen.cmdPesquisar_PropCmrc->click();
    screen.cmdALTERAR->click();
    std::vector<Times> times;
    for (int run = 0; run < kRuns; ++run) {
      screen.txtDesc->setText(QString::number(run));
      times.push_back(timeOf([] { forms::handle([] {}, {}); }));
    }
    record("hand a draft over (floor: the bound)", size.lines, median(times), {size.bound, size.bound});
    rascunho::guarda().desliga();
  }
}

}  // namespace bench
