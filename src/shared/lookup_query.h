#pragma once

#include <QString>
#include <QStringList>

#include "platform/data/asked.h"
#include "platform/data/recordset.h"

// How every lookup asks: one statement, one column of its first row.
namespace lookup {

/// A statement with a place for its key: what stands before it, and after it.
struct Query {
  QStringView before;
  QStringView column;
  QStringView after = u"";
};

/// The key goes out in quotes, trimmed.
data::Asked<QString> byText(const Query& query, const QString& key);
/// The key goes out as a bare number.
data::Asked<QString> byNumber(const Query& query, const QString& key);
/// A statement without a key.
data::Asked<QString> only(const Query& query);

/// Forms of a key in a statement.
[[nodiscard]] QString quoted(const QString& key);
[[nodiscard]] QString number(const QString& key);

/// Columns of the current row as "^" fields, a "^" inside turned into a blank; empty where there is no row.
[[nodiscard]] QString asFields(const data::Recordset& rs, const QStringList& columns);

}  // namespace lookup
