#include "documents/document_values.h"

#include <memory>

namespace {
std::unique_ptr<DocumentValues>& instance() {
  static auto values = std::make_unique<DocumentValues>();
  return values;
}
}  // namespace

DocumentValues& documento() { return *instance(); }

void reiniciaDocumento() { instance() = std::make_unique<DocumentValues>(); }
