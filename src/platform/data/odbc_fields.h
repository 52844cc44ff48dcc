#pragma once

#include <QMetaType>

#include "platform/data/result_values.h"

class QSqlQuery;

namespace data {

/// Adds a field of the row on which a query stands to the values of its result, read from the driver itself:
/// Qt's own reading drops a text that takes more bytes than its column has characters. Columns are to be read
/// in their order, each once. declared is the type that Qt reports for the column.
void readOdbcField(const QSqlQuery& query, int column, QMetaType declared, ResultValues& values);

}  // namespace data
