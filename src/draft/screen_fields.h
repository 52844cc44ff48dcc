#pragma once

#include <QString>

// The working copy of a quote as it stands on the screens. One table names the fields and grids that belong
// to it; what they hold is written and put back by it.
namespace rascunho {

/// All fields and grids of the screens that are there, a line for each field and each row, in an order that
/// never changes. A screen that only counts while it is open is left out when it is not.
[[nodiscard]] QString retrato();

/// Whether a screen is part of such a text.
[[nodiscard]] bool temTela(const QString& retrato, QStringView tela);

/// The field of the quote screen that is being typed in, or that was left a moment ago and has not done yet
/// what it does then; empty where that is none of these fields.
[[nodiscard]] QString campoAtual();

/// Puts the fields and grids of one screen back, which must be there.
void repoe(const QString& retrato, QStringView tela);

/// A digest of those fields that come from the database, for a quote that was just loaded: the same stored
/// rows give the same digest, in whatever order they come.
[[nodiscard]] QString resumoDoLido();

/// One line for any text, and back.
[[nodiscard]] QString emUmaLinha(const QString& texto);
[[nodiscard]] QString comoEra(QStringView linha);

}  // namespace rascunho
