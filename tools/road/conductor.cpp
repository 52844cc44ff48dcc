#include "conductor.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>

#include "child.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

/// A step that takes longer hangs.
constexpr qint64 kPatience = 180'000;
constexpr int kLook = 200;
constexpr int kNap = 5;

void startChild(QProcess& child, const QStringList& arguments) {
  child.setProcessChannelMode(QProcess::ForwardedChannels);
  bindToThis(child);
  child.start(QCoreApplication::applicationFilePath(), arguments);
}

/// Waits for a child; false when one of its steps hangs, or the walk is to end.
bool waitFor(QProcess& child, const QString& progressFile) {
  QElapsedTimer sinceMove;
  sinceMove.start();
  int last = -1;
  while (!child.waitForFinished(kLook) && child.state() != QProcess::NotRunning) {
    const int now = Progress::read(progressFile).next;
    if (now != last) sinceMove.restart();
    last = now;
    if (sinceMove.elapsed() < kPatience && askedToEnd() == 0) continue;
    child.kill();
    child.waitForFinished();
    return false;
  }
  return true;
}

const Step& stepBefore(const Road& road, int next) {
  return road.steps.at(std::clamp(next - 1, 0, static_cast<int>(road.steps.size()) - 1));
}

}  // namespace

void Progress::write(const QString& file) const {
  const QJsonObject object{{u"next"_s, next},       {u"clock"_s, clock}, {u"commandLine"_s, commandLine},
                           {u"started"_s, started}, {u"ended"_s, ended}, {u"status"_s, status},
                           {u"failed"_s, failed}};
  // Where a file that is being read can't be replaced its reader is gone in a moment.
  for (int tries = 0; tries < 100; ++tries) {
    QSaveFile saved(file);
    if (saved.open(QIODevice::WriteOnly) && saved.write(QJsonDocument(object).toJson()) > 0 && saved.commit())
      return;
    QThread::msleep(kNap);
  }
}

Progress Progress::read(const QString& name) {
  QFile file(name);
  Progress progress;
  if (!file.open(QIODevice::ReadOnly)) return progress;
  const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
  progress.next = object[u"next"_s].toInt();
  progress.clock = object[u"clock"_s].toString();
  progress.commandLine = object[u"commandLine"_s].toString();
  progress.started = object[u"started"_s].toBool();
  progress.ended = object[u"ended"_s].toBool();
  progress.status = object[u"status"_s].toInt();
  progress.failed = object[u"failed"_s].toBool();
  return progress;
}

void report(const Road& road, const Step& step, const Failure& failure) {
  const QString text = u"%1:%2: %3\n  expected: %4\n  found:    %5\n"_s.arg(
      road.file, QString::number(step.line), step.text, failure.expected(), failure.found());
  std::fputs(text.toUtf8().constData(), stderr);
}

int conduct(const Road& road, const QString& pictures) {
  // Not in the system's temporary folder, where a walk that is killed would leave it, and what the engine
  // keeps in it.
  const QTemporaryDir folder(QFileInfo(pictures).absoluteFilePath() + u"/.walk-XXXXXX"_s);
  for (const char* variable : {"TMPDIR", "TEMP", "TMP"}) qputenv(variable, QFile::encodeName(folder.path()));
  watchForEnd();
  const QString progressFile = folder.filePath(u"progress"_s);
  qputenv("QT_QPA_PLATFORM", display());
  // A road prints on no printer of this machine's, unless a variable names a print server.
  if (!qEnvironmentVariableIsSet("CUPS_SERVER")) qputenv("CUPS_SERVER", "127.0.0.1:9");
  // What the program keeps of its user's goes with the road.
  for (const char* variable : {"XDG_DATA_HOME", "LOCALAPPDATA"})
    qputenv(variable, QFile::encodeName(folder.filePath(u"data"_s)));

  Progress progress;
  progress.write(progressFile);
  while (progress.next < road.steps.size()) {
    const int before = progress.next;
    QProcess child;
    startChild(child, {u"--child"_s, progressFile, u"--pictures"_s, pictures, road.file});
    const bool moved = waitFor(child, progressFile);
    progress = Progress::read(progressFile);
    if (progress.failed) return 1;
    if (askedToEnd() != 0) return 128 + askedToEnd();
    const Step& last = stepBefore(road, progress.next);
    if (!moved) {
      report(road, last, Failure(u"the program idle"_s, u"busy for %1 s"_s.arg(kPatience / 1000)));
      return 1;
    }
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0 || progress.next == before) {
      report(road, last, Failure(u"the program running"_s, u"it broke down (%1)"_s.arg(child.exitCode())));
      return 1;
    }
  }
  std::printf("%s: %d steps, all as expected\n", qPrintable(QFileInfo(road.file).fileName()),
              static_cast<int>(road.steps.size()));
  return 0;
}

}  // namespace road
