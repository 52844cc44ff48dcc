#pragma once

#include <QString>

#include "run/findings.h"

/// Looks at all that the program needs in an environment ("PRD", "HIST", "DEV"; empty as "PRD"): files and
/// folders, driver, server and login, tables, columns and rights, mail server, fonts, printers. A line for
/// each look. Writes nothing in the database. Whether all is well. A QGuiApplication must be there; the
/// context takes the environment and its connection.
[[nodiscard]] bool verificaInstalacao(const QString& ambiente, const Anota& anota);
