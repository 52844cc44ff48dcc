#pragma once

#include <QString>
#include <QUrl>

// The user's manual: HTML pages beside the program, one for each task.

/// Name of the page of a screen by the form's name ("frmPedHTML": "documentos.html"); the first page for a
/// form that has none.
[[nodiscard]] QString paginaDoManual(const QString& formulario);

/// Address of a page where the manual is installed or was built beside the program; empty where there is
/// none.
[[nodiscard]] QUrl enderecoDoManual(const QString& pagina);

/// Opens the page of a screen in the system's browser; says so where there is no manual.
void abreManual(const QString& formulario);
