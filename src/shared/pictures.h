#pragma once

#include <QString>
#include <QStringList>

// Where the pictures of products and prototypes are.

/// Path of the first image of a code that exists (plain, "W2", "S3"), or ArqSemImagem.
[[nodiscard]] QString LocalizaImagemProduto(const QString& codigo);
/// The folders of pictures that documents show and link to, as the configuration names them.
[[nodiscard]] QStringList pastasDeFiguras();
/// Whether one of the three images exists.
[[nodiscard]] bool LocalizaImagemPrototipo(const QString& codigo);
