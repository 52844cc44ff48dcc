#pragma once

#include <QString>

/// Path of a configuration file: below the install root where it is there, else in the fixed folder.
[[nodiscard]] QString arquivoConfiguracao(const QString& nome);

/// Finds the install location, reads the three configuration files, opens the connection. Shows a box and
/// ends the program where the files or the server are missing.
void ConectaServidor();
void LeServerAplic();
void LePaths();
