#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <cstdio>

#include "harness.h"
#include "measurements.h"
#include "quote/frmPropCmrcTL.h"
#include "rows.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

/// Resident memory of this process in MB.
double residentMegabytes() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
  return 0;
}

/// Runs a program until it says that it is idle; its words after "idle", and the milliseconds until then.
struct Idle {
  double time = 0;
  QList<QByteArray> words;
};
Idle runUntilIdle(const QString& program, const QStringList& arguments) {
  QElapsedTimer timer;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  timer.start();
  process.start(program, arguments);
  QByteArray said;
  while (!said.contains('\n') && process.waitForReadyRead(30'000)) said += process.readAll();
  Idle idle{static_cast<double>(timer.nsecsElapsed()) / 1e6, said.trimmed().split(' ')};
  process.waitForFinished();
  return idle;
}

}  // namespace

int startAsChild() {
  contexto().LinhaComando = u"7^0^PRD^"_s;
  forms::form<frmPropCmrcTL>().showForm();
  QCoreApplication::processEvents();
  qsizetype controls = 0;
  for (const QWidget* top : QApplication::topLevelWidgets()) controls += top->findChildren<QWidget*>().size();
  std::printf("idle %lld %.1f\n", static_cast<long long>(controls), residentMegabytes());
  std::fflush(stdout);
  std::_Exit(0);
}

void starting() {
  Bench company;
  std::vector<double> times;
  std::vector<double> bare;
  double memory = 0;
  int controls = 0;
  for (int run = 0; run < 9; ++run) {
    const Idle idle = runUntilIdle(QCoreApplication::applicationFilePath(), {u"--start"_s});
    controls = idle.words.value(1).toInt();
    memory = idle.words.value(2).toDouble();
    times.push_back(idle.time);
    bare.push_back(
        runUntilIdle(QCoreApplication::applicationDirPath() + u"/zarim_bare"_s, {QString::number(controls)})
            .time);
  }
  record("start to idle screen (floor: bare form)", controls, {median(times), 0}, {median(bare), 0});
  char line[120];
  std::snprintf(line, sizeof line, "resident memory of the idle screen: %.1f MB", memory);
  addLine(line);
}

}  // namespace bench
