#pragma once

#include <QString>
#include <QWidget>

/// Longest text that a column of the quote's tables takes ("nome_clie"), 0 without a limit: what the
/// connection says, asked once, else what src/schema does.
[[nodiscard]] int tamanhoDaColuna(QStringView coluna);

/// Keeps a box of text or a combo to so many characters.
void limita(QWidget* campo, int maximo);

/// Keeps a box of text or a combo to what the column takes in which it is stored.
void limitaPelaColuna(QWidget* campo, QStringView coluna);
