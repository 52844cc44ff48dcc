#pragma once

#include <QStringList>

// Rows in number for the measurements, as statements.
namespace bench {

/// A quote of user 7 with so many assembled lines of five materials each, on the products of the basic rows.
[[nodiscard]] QStringList quoteRows(int idQuote, int lines);
/// Headers of quotes, each with a few honest words.
[[nodiscard]] QStringList quoteHeaders(int firstId, int count);
/// Finished products "ART-00001"…, ids from 10001, some in a foreign currency.
[[nodiscard]] QStringList articleRows(int count);
/// Live prototypes of the collection "Primavera", ids from 50001.
[[nodiscard]] QStringList prototypeRows(int count);

}  // namespace bench
