#include "documents/document_values.h"

#include <memory>

namespace {
std::unique_ptr<ValoresDoDocumento>& instancia() {
  static auto valores = std::make_unique<ValoresDoDocumento>();
  return valores;
}
}  // namespace

ValoresDoDocumento& documento() { return *instancia(); }

void reiniciaDocumento() { instancia() = std::make_unique<ValoresDoDocumento>(); }
