#pragma once

#include <QString>

// The look at a statement before it is sent. Texts go into statements as they are, so a quote mark in one can
// end it early; what stands after must not become a statement of its own.
namespace data {

/// How a database would read a text.
enum class Statements : quint8 {
  One,   ///< one statement, or a broken one; a ";" at its end is no second one
  More,  ///< possibly more than one: a second statement's word, a ";", a comment, or something that databases
         ///< read in different ways stands outside quotes
  Unpaired,  ///< a quote without its pair: every database refuses the text, with what follows in a batch
};

/// Reads a text as the strictest database would: a server wants no ";" between two statements. In one pass.
/// The grammar is that of the statements this program makes (SELECT with subselects and UNION, INSERT with
/// VALUES or SELECT, UPDATE, DELETE, and those that make tables): of others, some are taken for More.
[[nodiscard]] Statements statementsIn(QStringView sql);

/// Raises -2147217900 on what is More, and on a text with a NUL or half of a surrogate pair, where drivers
/// may stop reading.
void requireOneStatement(const QString& sql);

}  // namespace data
