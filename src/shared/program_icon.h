#pragma once

#include <QIcon>
#include <QImage>

// The program's own picture: a sheet of a quote with a ribbon around it. Drawn by code, so that every size is
// sharp.

/// side in pixels.
[[nodiscard]] QImage imagemDoPrograma(int lado);

/// The sizes that window managers ask for.
[[nodiscard]] QIcon iconeDoPrograma();
