#pragma once

#include <vector>

#include "schema/tables.h"

// The tables by subject, each in a file of that name (quote_tables.cpp); tables() is all of them.
namespace schema {

[[nodiscard]] std::vector<Table> quoteTables();
[[nodiscard]] std::vector<Table> catalogueTables();
[[nodiscard]] std::vector<Table> partyTables();
[[nodiscard]] std::vector<Table> companyTables();
[[nodiscard]] std::vector<Table> orderTables();

}  // namespace schema
