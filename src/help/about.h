#pragma once

#include <QString>

/// What support asks first, a line each: version, build, database, environment, user. Never a password or a
/// whole connection string.
[[nodiscard]] QString textoSobre();

/// Shows it in a box that can be copied, with a button that looks at the installation.
void mostraSobre();
