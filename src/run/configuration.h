#pragma once

#include <QString>

/// The n-th field (from 1) of a text with fields that end in "^". The text is trimmed and gets a final "^",
/// in the caller's variable too. A field past the end is "."; a number below 1, or an empty text, gives an
/// empty text.
[[nodiscard]] QString PegaCampo(QString& texto, int n);
/// The same for a text that is not to be changed.
[[nodiscard]] QString PegaCampo(const QString& texto, int n);
[[nodiscard]] QString PegaCampoDelimitado(const QString& texto, int n, QChar delimitador);

/// Path of a configuration file: below the install root where it is there, else in the fixed folder.
[[nodiscard]] QString ArquivoConfiguracao(const QString& nome);

/// Finds the install location, reads the three configuration files, opens the connection. Tells the user and
/// ends the program where the files or the server are missing.
void ConectaServidor();
void LeServerAplic();
void LePaths();
