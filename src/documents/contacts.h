#pragma once

#include <QString>

namespace empresa {

/// Site and e-mail of the letterheads.
struct Contatos {
  QString site, email;
};

/// Those of the installation's file casa.ini ("site^e-mail^", one line); the house's own where there is no
/// such file or field.
[[nodiscard]] Contatos contatos();

}  // namespace empresa
