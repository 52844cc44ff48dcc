#pragma once

#include <QString>

namespace sample {

/// Draws the pictures of products, materials and prototypes, the logos, the blank and the "no picture" one,
/// into the folders imagens (small), imagens2 (large, "_g") and web (what the company's site serves) under
/// the given folder. A QGuiApplication must be there, for the fonts. Raises 75 where a file can't be written.
void drawPictures(const QString& folder);

}  // namespace sample
