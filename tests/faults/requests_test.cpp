#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <algorithm>
#include <functional>

#include "assembly/frmMontarProduto.h"
#include "bench/rows.h"
#include "closing/frmConfirmaPropCmrcTL.h"
#include "fault_case.h"
#include "run/context.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "search/frmBROWSE_Prototipo.h"
#include "support/script.h"

using namespace Qt::StringLiterals;
using sqlserver::TdsServer;

namespace {

constexpr int kQuote = 30;
constexpr int kFullBatch = 2000;

/// What a user does, and the requests that it may cost whatever its size, beside one for each full batch.
struct Action {
  std::string name;
  int most;
  std::function<QStringList(int)> rows;
  std::function<void(frmPropCmrcTL&)> prepare;
  std::function<QStringList(frmPropCmrcTL&)> act;  ///< gives what the user sees then
};
void PrintTo(const Action& one, std::ostream* out) { *out << one.name; }

QStringList seen(const forms::GridModel& grid) {
  QStringList rows;
  for (int row = 1; row < grid.rows(); ++row) {
    QStringList cells;
    for (int column = 0; column < grid.cols(); ++column) cells << grid.text(row, column);
    rows << cells.join(u'\t');
  }
  return rows;
}

QStringList quote(int lines) {
  return bench::quoteRows(kQuote, lines) +
         QStringList{u"UPDATE prop_cmrc SET idcond_pgto = 41, idtrpt = 5 WHERE idprop_cmrc = 30"_s,
                     u"UPDATE prop_cmrc_deta SET data_aprov = '20240310 10:00' WHERE idprop_cmrc = 30"_s,
                     u"INSERT INTO prop_cmrc_homg (idprop_cmrc, nome_homg) VALUES (30, 'Ana')"_s};
}

QStringList subscribedQuote(int lines) {
  QStringList rows = quote(lines) << u"UPDATE empr SET emai_serv = '127.0.0.1:1'"_s;
  int id = 0;
  for (const auto& code : {u"PROJETACOMPRA"_s, u"AVISOORCAFECHADO"_s, u"AVISOORCAFECHADOFULL"_s}) {
    rows << u"INSERT INTO work_even (idwork_even, codi_work_even) VALUES (%1, '%2')"_s.arg(++id).arg(code);
    for (int user = 0; user < lines; ++user)
      rows << u"INSERT INTO work_even_usen (idwork_even, idusen) VALUES (%1, %2)"_s.arg(id).arg(7 + user % 2);
  }
  return rows;
}

QStringList open(frmPropCmrcTL& screen) {
  screen.txtCodigo->setText(QString::number(kQuote));
  support::click(screen.cmdPesquisar_PropCmrc);
  return seen(screen.Flex->grid()) + seen(screen.FlexMonta) +
         QStringList{screen.cboVendedor->text(), screen.lblNumePedido->text()};
}

void alter(frmPropCmrcTL& screen) {
  (void)open(screen);
  support::click(screen.cmdALTERAR);
}

QStringList save(frmPropCmrcTL& screen) {
  support::click(screen.cmdSALVAR);
  return {};
}

template <typename Search>
QStringList found(frmPropCmrcTL&) {
  auto& search = forms::form<Search>();
  search.cmdPesquisa->click();
  return seen(search.Flex->grid());
}
template <typename Search>
void openSearch(frmPropCmrcTL&) {
  (void)forms::form<Search>();
}

std::vector<Action> actions() {
  return {
      {"Open", 24, quote, [](auto&) {}, open},
      {"SaveNew", 14, quote,
       [](frmPropCmrcTL& screen) {
         alter(screen);
         contexto().ModoOrcamento = u"I"_s;
       },
       save},
      {"SaveAltered", 14, quote, alter, save},
      {"ArticleSearch", 12, bench::articleRows, [](auto&) { (void)forms::form<frmMontarProduto>(); },
       [](auto&) {
         auto& assembly = forms::form<frmMontarProduto>();
         assembly.cmdPesquisar->click();
         return seen(assembly.Flex1->grid());
       }},
      {"PastedRows", 8,
       [](int count) {
         return bench::articleRows(count)
                << u"UPDATE prod SET prod_mate_prim = 'M', tipo_mate_prima = 'CARD' WHERE idprod > 10000"_s;
       },
       [](auto&) { forms::form<frmMontarProduto>().show(); },
       [](auto&) {
         auto& assembly = forms::form<frmMontarProduto>();
         QStringList rows;
         for (int i = 1; i <= 10; ++i) rows << u"art-%1\t2"_s.arg(i, 5, 10, QChar(u'0'));
         QApplication::clipboard()->setText(rows.join(u'\n'));
         QTest::keyClick(assembly.txtCOD, Qt::Key_V, Qt::ControlModifier);
         return seen(assembly.Flex->grid());
       }},
      {"QuoteSearch", 6, [](int count) { return bench::quoteHeaders(100, count); },
       openSearch<frmBROWSE_PropCmrc>, found<frmBROWSE_PropCmrc>},
      {"ProductSearch", 6, bench::articleRows, openSearch<frmBROWSE_PRODUTO>, found<frmBROWSE_PRODUTO>},
      {"PrototypeSearch", 6,
       [](int count) { return bench::prototypeRows(count) << u"UPDATE prot SET idprod = 101"_s; },
       openSearch<frmBROWSE_Prototipo>, found<frmBROWSE_Prototipo>},
      {"MassInclusion", 16, bench::prototypeRows,
       [](frmPropCmrcTL& screen) {
         support::click(screen.cmdINCLUIR);
         screen.txtNumePess->setText(u"80"_s);
         screen.cboCole->setText(u"Primavera"_s);
       },
       [](frmPropCmrcTL& screen) {
         screen.cmdConfirmarMassa->click();
         return seen(screen.Flex->grid());
       }},
      {"Closing", 60, subscribedQuote,
       [](frmPropCmrcTL& screen) {
         (void)open(screen);
         forms::setModalObserver([](forms::Form& form) {
           auto& terms = static_cast<frmConfirmaPropCmrcTL&>(form);
           support::click(terms.cmdConfirmaCondPg);
           support::click(terms.cmdConfirmar);
         });
       },
       [](frmPropCmrcTL& screen) {
         screen.cmdFechar->click();
         forms::setModalObserver({});
         return QStringList{};
       }},
  };
}

class Requests : public faults::FaultCase, public ::testing::WithParamInterface<Action> {
 protected:
  struct Run {
    QStringList statements, shown, stored;
    int requests = 0;
  };

  Run run(frmPropCmrcTL& screen, const QString& database, int size, TdsServer* server) {
    data::Connection filling = support::connectionTo(database);
    filling.begin();
    for (const QString& sql : GetParam().rows(size)) filling.execute(sql);
    filling.commit();
    filling.close();
    GetParam().prepare(screen);
    boxes.clear();
    Run ran;
    contexto().Conexao.setListener([&ran](const QString& sql) { ran.statements << sql; });
    if (server) (void)server->requests();
    ran.shown = GetParam().act(screen);
    if (server) ran.requests = server->requests();
    contexto().Conexao.setListener({});
    contexto().Conexao.close();
    ran.stored = rowsOf(database);
    ran.statements.sort();
    return ran;
  }
};

TEST_P(Requests, DoNotGrowWithTheSizeAndCarryTheSameStatements) {
  const std::vector<int> sizes{10, 100, 1000};
  std::vector<Run> alone;
  for (const int size : sizes) {
    auto& screen = start();
    alone.push_back(run(screen, databasePath(), size, nullptr));
  }
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    SCOPED_TRACE(sizes[i]);
    TdsServer server;
    auto& screen = startOn(server);
    const Run together = run(screen, server.databasePath(), sizes[i], &server);
    EXPECT_EQ(together.statements, alone[i].statements);
    EXPECT_EQ(together.shown, alone[i].shown);
    EXPECT_EQ(together.stored, alone[i].stored);
    EXPECT_GT(together.requests, 0);
    EXPECT_LE(together.requests, GetParam().most + together.statements.size() / kFullBatch);
    const std::string size = std::to_string(sizes[i]);
    RecordProperty("requests_" + size, together.requests);
    RecordProperty("statements_" + size, static_cast<int>(together.statements.size()));
  }
}

INSTANTIATE_TEST_SUITE_P(Actions, Requests, ::testing::ValuesIn(actions()),
                         [](const auto& one) { return one.param.name; });

}  // namespace
