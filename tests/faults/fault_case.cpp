#include "fault_case.h"

#include <QFile>

#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "run/context.h"
#include "support/script.h"

using namespace Qt::StringLiterals;

namespace faults {

namespace {

void copyOver(const QString& from, const QString& to) {
  for (const auto& ending : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(to + ending);
  if (!QFile::copy(from, to)) qFatal("the database could not be put back");
}

}  // namespace

FaultCase::FaultCase() {
  support::fillBasics(databasePath());
  contexto().Conexao.close();
  copyOver(databasePath(), first_);
  forms::setBoxAnswerer([this](const forms::Box& box) {
    boxes << box.text;
    return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  });
  forms::setEnd([this](int status) { ended = status; });
  clock(u"15/03/2024 10:30"_s);
  auto& screen = start();
  enterQuote(screen);
  support::click(screen.cmdSALVAR);
  contexto().Conexao.close();
  copyOver(databasePath(), first_);
}

FaultCase::~FaultCase() {
  forms::setBoxAnswerer({});
  forms::setEnd({});
  qunsetenv("TDSPORT");
}

void FaultCase::leave() {
  forms::registry::clear();
  contexto().Conexao.close();
  contexto().LinhaComando = u"7^0^PRD^"_s;
  contexto().ModoOrcamento = u" "_s;
  boxes.clear();
  ended.reset();
}

frmPropCmrcTL& FaultCase::shown() {
  auto& screen = forms::form<frmPropCmrcTL>();
  // Painting is shared out among threads, which a forked child does not have.
  screen.setUpdatesEnabled(false);
  screen.showForm();
  support::settle();
  return screen;
}

frmPropCmrcTL& FaultCase::start() {
  leave();
  copyOver(first_, databasePath());
  return shown();
}

frmPropCmrcTL& FaultCase::again() {
  leave();
  return shown();
}

frmPropCmrcTL& FaultCase::startOn(sqlserver::TdsServer& server) {
  leave();
  copyOver(first_, server.databasePath());
  qputenv("TDSPORT", QByteArray::number(server.port()));
  configure(u"server.ini"_s, sqlserver::TdsServer::configurationLine());
  return shown();
}

void FaultCase::enterQuote(frmPropCmrcTL& screen) {
  support::click(screen.cmdINCLUIR);
  screen.cboCliente->setText(u"Clara Festas Ltda"_s);
  screen.cboRespAtendimento->setText(u"MARIA"_s);
  screen.txtDesc->setText(u"Bodas"_s);
  for (int item = 1; item <= 2; ++item) {
    screen.Flex->grid().addItem(
        u"101\tPROD\tCX-100\tCaixa branca\t14,50\t0,00\t14,50\t2\t29,00\t\tUN\tobs\t"_s);
    for (const auto& material : {u"101\tCX-100\tCaixa branca\t1\tUN\t1\t12,50\t12,50\tPRODUTO\t\t1\t"_s,
                                 u"102\tBOM-1\tBombom\t1\tUN\t1\t2,00\t2,00\tCONTEÚDO COMESTÍVEL\t\t2\t"_s})
      screen.FlexMonta.addItem(material + QString::number(item) + u'\t');
  }
  screen.FlexHomg->grid().addItem(u"\tANA\t"_s);
}

void FaultCase::alterQuote(frmPropCmrcTL& screen) {
  screen.txtCodigo->setText(u"1"_s);
  support::click(screen.cmdPesquisar_PropCmrc);
  support::click(screen.cmdALTERAR);
  screen.txtDesc->setText(u"Outra"_s);
}

QStringList FaultCase::rowsOf(const QString& databasePath) {
  data::Connection connection = support::connectionTo(databasePath);
  QStringList rows;
  for (const auto& table :
       {u"prop_cmrc"_s, u"prop_cmrc_deta"_s, u"prop_cmrc_deta_monta"_s, u"prop_cmrc_homg"_s})
    for (auto rs = connection.query(u"SELECT * FROM "_s + table); !rs.eof(); rs.moveNext()) {
      QStringList fields{table};
      for (const QString& column : rs.columns()) fields << rs.text(column);
      rows << fields.join(u'|');
    }
  return rows;
}

}  // namespace faults
