#pragma once

#include <QMetaType>
#include <QVariant>

class QSqlQuery;

namespace data {

/// A field of the row on which a query stands, read from the driver itself: Qt's own reading drops a text
/// that takes more bytes than its column has characters. Columns are to be read in their order, each once.
/// declared is the type that Qt tells of the column.
[[nodiscard]] QVariant readOdbcField(const QSqlQuery& query, int column, QMetaType declared);

}  // namespace data
