#pragma once

#include <QString>
#include <QStringList>

/// Path of a configuration file: below the install root where it is there, else in the fixed folder.
[[nodiscard]] QString arquivoConfiguracao(const QString& nome);

/// File beside server.ini that marks a sample company and lists the files that its installer made.
inline const QString kMarcaDaAmostra = QStringLiteral("amostra.txt");

/// Whether the company that the program works for is a sample one.
[[nodiscard]] bool ehAmostra();

// The environments in the order of their lines in server.ini. An empty one works as the first.
inline const QStringList kAmbientes{QStringLiteral("PRD"), QStringLiteral("HIST"), QStringLiteral("DEV")};

/// The line of an environment, trimmed; what stands after the third line belongs to none.
[[nodiscard]] QString linhaDoAmbiente(const QStringList& linhas, const QString& ambiente);

/// Takes the seven fields of a line into the context. Raises 13 where the seventh says neither true nor
/// false.
void tomaCamposDoServidor(const QString& linha);

/// The connection string of the context's fields, with the password; empty where their kind has none.
[[nodiscard]] QString cadeiaDeConexao();

/// Finds the install location, reads the three configuration files, opens the connection. Shows a box and
/// ends the program where the files or the server are missing.
void ConectaServidor();
void LeServerAplic();
void LePaths();
