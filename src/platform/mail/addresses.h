#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace mail {

struct Address {
  QString name;        ///< display name, may be empty
  QByteArray address;  ///< as it goes over the wire: a domain with accents in its ASCII form
};

/// The addresses of a list separated by commas or semicolons: "address", "address (name)" or "name
/// <address>". A separator within quotes or brackets is none; empty entries are left out. Raises
/// values::kMailFailed when an entry can't be read whole, so that nobody is left out unnoticed; `role` names
/// it in the text ("o destinatário").
[[nodiscard]] std::vector<Address> parseAddresses(const QString& list, const QString& role);

}  // namespace mail
