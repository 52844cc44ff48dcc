#include <QScrollBar>

#include "assembly/frmMontarProduto.h"
#include "harness.h"
#include "measurements.h"
#include "platform/forms/combo.h"
#include "quote/frmPropCmrcTL.h"
#include "rows.h"
#include "run/context.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

/// A page-down in a grid that is shown: how long the picture of the next page takes.
Times pageDown(QTableView& grid) {
  std::vector<Times> times;
  for (int page = 0; page < 20; ++page) {
    grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    times.push_back(timeOf([&] { static_cast<void>(grid.viewport()->grab()); }));
  }
  return median(times);
}

/// A long list that drops down for the first time.
Times dropDown(int entries) {
  std::vector<Times> times;
  for (int run = 0; run < 5; ++run) {
    forms::Combo list;
    QStringList names;
    for (int i = 1; i <= entries; ++i) names << u"Cliente %1 de Souza e Filhos Ltda"_s.arg(i);
    list.setEntries(names);
    list.show();
    QCoreApplication::processEvents();
    times.push_back(timeOf([&] { list.showPopup(); }));
    list.hidePopup();
  }
  return median(times);
}

}  // namespace

void searching() {
  for (const int count : {1000, 10'000}) {
    Bench company;
    company.fill(articleRows(count) + quoteHeaders(100, count));
    company.start();
    auto& assembly = forms::form<frmMontarProduto>();
    measure(company, {.name = "search articles (assembly)",
                      .size = count,
                      .prepare = [&] { assembly.cmdLimpar->click(); },
                      .handler = [&] { assembly.cmdPesquisar->click(); },
                      .runs = 5});
    auto& browse = forms::form<frmBROWSE_PropCmrc>();
    measure(company, {.name = "search quotes",
                      .size = count,
                      .prepare = [&] { browse.PreparaGradePropCmrc(); },
                      .handler = [&] { browse.cmdPesquisa->click(); },
                      .runs = 7});
    browse.cmdPesquisa->click();
    browse.show();
    QCoreApplication::processEvents();
    record("page-down in found quotes", count, pageDown(*browse.Flex), {});
  }
}

void dropping() { record("drop down a list", 20'000, dropDown(20'000), {}); }

void lookingUp() {
  constexpr int kCount = 10'000;
  Bench company;
  company.fill(articleRows(kCount));
  const struct {
    const char* name;
    Asked<QString> (*lookup)(const QString&);
  } members[] = {{"look up by id", DescricaoProduto}, {"look up by code", IdProdutoPorCodigo}};
  for (const auto& one : members) {
    QStringList keys;
    for (int i = 1; i <= kCount; ++i)
      keys << (one.lookup == &DescricaoProduto ? QString::number(kCount + i)
                                               : u"ART-%1"_s.arg(i, 5, 10, QChar(u'0')));
    measure(company, {.name = one.name,
                      .size = kCount,
                      .prepare = [] {},
                      .handler =
                          [&] {
                            for (const QString& key : keys) static_cast<void>(waitFor(one.lookup(key)));
                          }});
  }
}

void including() {
  for (const int count : {100, 1000}) {
    Bench company;
    company.fill(prototypeRows(count) + quoteRows(30, 1));
    company.start();
    auto& screen = forms::form<frmPropCmrcTL>();
    measure(company, {.name = "include prototypes in mass",
                      .size = count,
                      .prepare =
                          [&] {
                            screen.cmdINCLUIR->click();
                            screen.txtNumePess->setText(u"80"_s);
                            screen.cboCole->setText(u"Primavera"_s);
                          },
                      .handler = [&] { screen.cmdConfirmarMassa->click(); }});
  }
}

}  // namespace bench
