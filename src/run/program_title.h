#pragma once

#include <QString>

/// Stands above boxes and begins the titles of the windows.
inline const QString kTitulo = QStringLiteral("Zarim 1.2");
