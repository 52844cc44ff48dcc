#include <QFile>
#include <QImage>
#include <cstdio>

#include "assembly/frmMontarProduto.h"
#include "documents/document_values.h"
#include "documents/documents.h"
#include "documents/word.h"
#include "harness.h"
#include "measurements.h"
#include "platform/files/contents.h"
#include "quote/frmPropCmrcTL.h"
#include "rows.h"
#include "run/context.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "shared/lookups.h"
#include "sqlserver/tds_server.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr int kNetwork = 10;  // milliseconds that a request and its answer take on the way
constexpr int kQuote = 30;
const QStringList kCopies{u"c:\\zarim\\documentos\\orca_cliente_000030.html"_s,
                          u"c:\\zarim\\documentos\\orca_empresa_000030.html"_s};

struct Action {
  const char* name;
  QStringList (*rows)(int);
  void (*prepare)();
  void (*act)();
};

frmPropCmrcTL& screen() { return forms::form<frmPropCmrcTL>(); }

void open() {
  screen().txtCodigo->setText(QString::number(kQuote));
  screen().cmdPesquisar_PropCmrc->click();
}

void alter() {
  open();
  screen().cmdALTERAR->click();
}

void openPrinted() {
  documento().IdDocumento = kQuote;
  documento().ExibeComposicao = true;
  documento().ExibeMontagem = true;
  documento().rsImpressao = abreConsulta(u"SELECT * FROM prop_cmrc where idprop_cmrc=30"_s);
  for (const QString& copy : kCopies) files::removeIfThere(copy);
}

const Action kQuoteActions[] = {
    {"open a quote", [](int lines) { return quoteRows(kQuote, lines); }, [] {}, open},
    {"save a new quote", [](int lines) { return quoteRows(kQuote, lines); },
     [] {
       alter();
       contexto().ModoOrcamento = u"I"_s;
     },
     [] { screen().cmdSALVAR->click(); }},
    {"save a changed quote", [](int lines) { return quoteRows(kQuote, lines); }, alter,
     [] { screen().cmdSALVAR->click(); }},
    {"quote as HTML, both copies", [](int lines) { return quoteRows(kQuote, lines); }, openPrinted,
     [] {
       for (const QString& copy : kCopies) MontaOrcaGradeHTML(kQuote, copy);
     }},
    {"quote as Word and PDF", [](int lines) { return quoteRows(kQuote, lines); }, openPrinted,
     [] { DocumentoWord(u"30"_s, u"c:\\zarim\\documentos\\o.doc"_s, u"c:\\zarim\\documentos\\o.pdf"_s); }},
};

const Action kListActions[] = {
    {"search articles (assembly)", articleRows, [] { forms::form<frmMontarProduto>().cmdLimpar->click(); },
     [] { forms::form<frmMontarProduto>().cmdPesquisar->click(); }},
    {"search products", articleRows, [] { forms::form<frmBROWSE_PRODUTO>().PreparaGradeProduto(); },
     [] { forms::form<frmBROWSE_PRODUTO>().cmdPesquisa->click(); }},
    {"search quotes", [](int count) { return quoteHeaders(100, count); },
     [] { forms::form<frmBROWSE_PropCmrc>().PreparaGradePropCmrc(); },
     [] { forms::form<frmBROWSE_PropCmrc>().cmdPesquisa->click(); }},
    {"include prototypes in mass", prototypeRows,
     [] {
       screen().cmdINCLUIR->click();
       screen().txtNumePess->setText(u"80"_s);
       screen().cboCole->setText(u"Primavera"_s);
     },
     [] { screen().cmdConfirmarMassa->click(); }},
};

/// A company with such rows and the picture of the letterhead, on the embedded file or on a server.
class Company : public Bench {
 public:
  explicit Company(const QStringList& rows, sqlserver::TdsServer* server = nullptr) {
    fill(rows);
    QImage letterhead(283, 127, QImage::Format_RGB32);
    letterhead.fill(Qt::white);
    letterhead.save(drive() + u"/zarim/imagens/logomartatavora283x127.jpg"_s);
    if (server) moveTo(*server);
    start();
  }
  ~Company() override { qunsetenv("TDSPORT"); }

 private:
  void moveTo(sqlserver::TdsServer& server) {
    contexto().Conexao.close();
    for (const auto& ending : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(server.databasePath() + ending);
    QFile::copy(databasePath(), server.databasePath());
    qputenv("TDSPORT", QByteArray::number(server.port()));
    configure(u"server.ini"_s, sqlserver::TdsServer::configurationLine());
    server.setDelay(kNetwork);
  }
};

/// Median time of an action, the first run left out.
double timeOfAction(const Action& action, sqlserver::TdsServer* server, int& requests) {
  constexpr int kRuns = 4;
  std::vector<double> times;
  for (int run = 0; run < kRuns; ++run) {
    action.prepare();
    if (server) static_cast<void>(server->requests());
    times.push_back(timeOf(action.act).wall);
    if (server) requests = server->requests();
  }
  times.erase(times.begin());
  return median(times);
}

void compare(const Action& action, int size) {
  int requests = 0;
  double here = 0;
  {
    const Company company(action.rows(size));
    here = timeOfAction(action, nullptr, requests);
  }
  sqlserver::TdsServer server;
  const Company company(action.rows(size), &server);
  const double far = timeOfAction(action, &server, requests);
  char line[200];
  std::snprintf(line, sizeof line, "%-38s %7d %11.1f ms %6d requests %11.1f ms on the embedded file",
                action.name, size, far, requests, here);
  addLine(line);
  std::fprintf(stderr, "%s\n", line);
}

}  // namespace

void farServer() {
  addLine("through the driver, with 10 ms of network for each request:");
  for (const int lines : {10, 100, 1000})
    for (const Action& action : kQuoteActions) compare(action, lines);
  for (const int rows : {100, 1000, 19'660})
    for (const Action& action : kListActions) compare(action, rows);
}

}  // namespace bench
