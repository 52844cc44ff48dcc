#include "platform/forms/process.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <utility>

#include "platform/forms/boxes.h"
#include "platform/forms/modal_loops.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

std::function<void(int)>& ownEnd() {
  static std::function<void(int)> end;
  return end;
}

}  // namespace

void showRuntimeError(const values::RuntimeError& error) {
  Box box;
  box.text = u"Erro em tempo de execução '%1':\n\n%2"_s.arg(error.number()).arg(error.text());
  box.icon = Icon::Critical;
  msgBox(box);
}

void end(int status) {
  if (!ownEnd()) {
    std::fflush(nullptr);
    std::_Exit(status);
  }
  ownEnd()(status);
  modal::leaveAll();
  throw Ended{status};
}

void endPlainly() {
  std::set_terminate([] {
    std::fputs("O programa terminou por um erro que nenhuma caixa pode mostrar.\n", stderr);
    std::_Exit(1);
  });
}

void setEnd(std::function<void(int)> end) { ownEnd() = std::move(end); }

void guarded(const std::function<void()>& handler) {
  try {
    try {
      handler();
    } catch (const values::RuntimeError& error) {
      showRuntimeError(error);
      end(1);
    } catch (const std::bad_alloc&) {
      showRuntimeError({values::kOutOfMemory, values::standardText(values::kOutOfMemory)});
      end(1);
    }
  } catch (const Ended&) {
    // The handler that ended the process goes no further; the loops it ran in are being left.
  }
}

}  // namespace forms
