#pragma once

#include <QString>
#include <functional>

// What looks at the installation find: its files and folders here, its server and machine in help/check.h.

/// What one look found.
struct Achado {
  QString assunto;    ///< what was looked at
  QString resultado;  ///< what was found, never a password
  QString conselho;   ///< what to do; empty where all is well
};

using Anota = std::function<void(const Achado&)>;

/// The finding as one line.
[[nodiscard]] QString linhaDo(const Achado& achado);

/// Drive C, the three files, and what each of their lines gave. Reads them into the context, and shows no
/// box.
void olhaArquivos(const Anota& anota);

/// The folders that paths.ini names, by the context; that of the documents must take a file.
void olhaPastas(const Anota& anota);

/// What to do where a connection can't be made, by the driver's words.
[[nodiscard]] QString conselhoDaConexao(const QString& palavras);

/// Writes to the log what there is to do about the files and folders, where the start failed. The context
/// stays as it is.
void registraAchados();

/// What the idle screen says of the folders: the first finding with something to do, else nothing.
[[nodiscard]] QString avisoDasPastas();
