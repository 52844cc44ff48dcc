#include "platform/forms/process.h"

#include <QCoreApplication>
#include <cstdio>
#include <exception>
#include <new>
#include <utility>

#include "platform/files/log_file.h"
#include "platform/forms/boxes.h"
#include "platform/forms/form.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

int endCount = 0;

std::function<void(int)> ownEnd;
std::function<void()> endObserver;

/// The toolkit's messages. What it can't go on after, a display that isn't there first of all, would end in a
/// crash.
void hearToolkit(QtMsgType type, const QMessageLogContext&, const QString& text) {
  report(text);
  if (type != QtFatalMsg) return;
  report(QCoreApplication::startingUp()
             ? u"O Zarim precisa de uma tela, e nenhuma respondeu (DISPLAY, WAYLAND_DISPLAY)."_s
             : u"O programa terminou por um erro que nenhuma caixa pode mostrar."_s);
  endAtOnce(1);
}

}  // namespace

void report(QString line) {
  for (QChar& character : line)
    if (character.category() == QChar::Other_Control) character = u' ';
  std::fputs((line + u'\n').toUtf8().constData(), stderr);
  files::log(line);
}

void reportRuntimeError(const values::RuntimeError& error, const QString& where) {
  QString line = u"Erro "_s + QString::number(error.number());
  if (!where.isEmpty()) line += u" em "_s + where;
  line += u": "_s + error.text();
  if (!error.statement().isEmpty()) line += u" | comando: "_s + error.statement();
  report(line);
}

void showRuntimeError(const values::RuntimeError& error, const QString& where) {
  reportRuntimeError(error, where);
  Box box;
  box.text = u"Erro em tempo de execução '%1':\n\n%2"_s.arg(error.number()).arg(error.text());
  box.icon = Icon::Critical;
  msgBox(box);
}

void end(int status) {
  if (endObserver) endObserver();
  if (!ownEnd) {
    std::fflush(nullptr);
    endAtOnce(status);
  }
  ownEnd(status);
  ++endCount;  // each modal form throws Ended on its way out
  for (Form* form : registry::shown())
    if (form->isModal()) form->hide();
  throw Ended{status};
}

void endPlainly() {
  std::set_terminate([] {
    std::fputs("O programa terminou por um erro que nenhuma caixa pode mostrar.\n", stderr);
    endAtOnce(1);
  });
  qInstallMessageHandler(hearToolkit);
  keepOutputs();
}

void setEnd(std::function<void(int)> end) { ownEnd = std::move(end); }

void setEndObserver(std::function<void()> observer) { endObserver = std::move(observer); }

bool guarded(const std::function<void()>& handler, const QString& where) {
  try {
    try {
      handler();
      return true;
    } catch (const values::RuntimeError& error) {
      showRuntimeError(error, where);
      end(1);
    } catch (const std::bad_alloc&) {
      showRuntimeError({values::kOutOfMemory, values::kOutOfMemory.text.toString()}, where);
      end(1);
    }
  } catch (const values::Cancelled&) {
    // Nothing else was asked for.
  } catch (const Ended&) {
    // The handler that ended the process goes no further; the loops it ran in are being left.
  }
  return false;
}

int ends() { return endCount; }

int& interruptions() {
  static int count = 0;
  return count;
}

}  // namespace forms
