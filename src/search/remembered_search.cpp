#include "search/remembered_search.h"

namespace pesquisa {

Lembrancas& lembrancas() {
  static Lembrancas todas;
  return todas;
}

void reiniciaLembrancas() { lembrancas() = {}; }

}  // namespace pesquisa
