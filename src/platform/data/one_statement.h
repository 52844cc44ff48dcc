#pragma once

#include <array>

#include "platform/data/statement.h"

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

/// Whether they are the same whatever the case; not of empty ones.
[[nodiscard]] inline bool isSameWord(QStringView one, QStringView other) {
  constexpr char16_t kCase = 0x20;  // what a capital letter lacks
  return one.size() == other.size() && (one[0].unicode() | kCase) == (other[0].unicode() | kCase) &&
         one.compare(other, Qt::CaseInsensitive) == 0;
}

/// A piece of a statement, as it is written there. The default is the end of the text.
struct SqlToken {
  enum class Kind : quint8 {
    End,
    Word,      ///< a keyword or a bare name; `@@identity` is one too
    Number,    ///< "12", "1.5", ".5", "1e5", "0xFF"
    Text,      ///< '…' with its quotes; two quotes in a row are one of the text
    Name,      ///< "…" or […] with its marks
    Sign,      ///< one of ( ) , . ; = < > + - * / % ! | & ~ ^
    Unpaired,  ///< a text or a name that doesn't end, up to the end of the statement
    Strange,   ///< a comment's beginning, or what is read in different ways by different databases
  };
  Kind kind = Kind::End;
  QStringView text;

  [[nodiscard]] bool isSign(char16_t sign) const { return kind == Kind::Sign && text[0] == sign; }
  /// Whether it is this word, whatever the case.
  [[nodiscard]] bool isWord(QStringView word) const { return kind == Kind::Word && isSameWord(text, word); }
};

/// A statement as it goes to an engine, with what the one look at its text has found.
struct ReadStatement {
  Statement given;
  Statements read = Statements::One;
  std::array<SqlToken, 2> first;  ///< its first pieces, in the text of `given`

  /// Whether it gives rows, which sets its result apart from the counts that others leave on the way.
  [[nodiscard]] bool isSelect() const { return first[0].isWord(u"SELECT"); }
  /// Whether it only writes, and so gives no rows.
  [[nodiscard]] bool isWrite() const {
    return first[0].isWord(u"INSERT") || first[0].isWord(u"UPDATE") || first[0].isWord(u"DELETE");
  }
  /// Whether it can stand beside others in one request without spoiling or swallowing them.
  [[nodiscard]] bool mayTravel() const { return read == Statements::One; }
};

/// Reads a text as the strictest database would: a server wants no ";" between two statements. In one pass.
/// The grammar is that of the statements this program makes (SELECT with subselects and UNION, INSERT with
/// VALUES or SELECT, UPDATE, DELETE, and those that make tables): of others, some are taken for More.
[[nodiscard]] ReadStatement readStatement(Statement statement);

/// The same; raises -2147217900 on what is More, and on a text with a NUL or half of a surrogate pair, where
/// drivers may stop reading.
[[nodiscard]] ReadStatement readOneStatement(Statement statement);

}  // namespace data
