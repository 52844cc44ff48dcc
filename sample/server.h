#pragma once

#include "sample/company.h"

namespace sample {

/// Puts schema and rows on the server that the server.ini of an installation names for production; its
/// database must be the named one. With fresh the tables that are there go first, unless they hold rows that
/// aren't the sample's. Raises 75 with a sentence that says why where it refuses, and what the connection
/// raises; ends the program with a message when the server doesn't answer.
void fillServer(const QString& folder, const QString& database, const Wishes& wishes, bool fresh);

}  // namespace sample
