#pragma once

#include <QDate>

#include "platform/data/connection.h"
#include "schema/tables.h"

namespace sample {

/// Creates the schema and the sample rows in one transaction, on a database without tables. Dates of the rows
/// count from the given day. Raises what the connection raises.
void fill(data::Connection& connection, schema::Dialect dialect, QDate day);

}  // namespace sample
