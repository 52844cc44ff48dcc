#pragma once

#include <QString>
#include <QStringList>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"

// How every lookup asks: one statement, one column of its first row.
namespace consulta {

/// A statement with a place for its key: what stands before it, and after it.
struct Consulta {
  QStringView antes;
  data::Literal coluna;
  QStringView depois = u"";
};

/// The key goes out in quotes, trimmed.
data::Asked<QString> porTexto(const Consulta& consulta, const QString& chave);
/// The key goes out as a bare number.
data::Asked<QString> porNumero(const Consulta& consulta, const QString& chave);
/// A statement without a key.
data::Asked<QString> semChave(const Consulta& consulta);

/// Forms of a key in a statement.
[[nodiscard]] QString entreAspas(const QString& chave);
[[nodiscard]] QString numero(const QString& chave);

/// Columns of the current row as "^" fields, a "^" inside turned into a blank; empty where there is no row.
[[nodiscard]] QString emCampos(const data::Recordset& rs, const QStringList& colunas);

}  // namespace consulta
