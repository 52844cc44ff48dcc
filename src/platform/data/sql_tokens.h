#pragma once

#include <QString>

namespace data {

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
  [[nodiscard]] bool isWord(QStringView word) const {
    return kind == Kind::Word && text.size() == word.size() && text.compare(word, Qt::CaseInsensitive) == 0;
  }
};

/// Walks through the text of a statement, in one pass. It must outlive the walk.
class SqlTokens {
 public:
  explicit SqlTokens(QStringView sql) : sql_(sql) {}
  /// The next piece, blanks passed over.
  [[nodiscard]] SqlToken next();

 private:
  [[nodiscard]] SqlToken take(SqlToken::Kind kind, qsizetype end);
  [[nodiscard]] SqlToken enclosed(SqlToken::Kind kind, QChar last);
  [[nodiscard]] SqlToken word();
  [[nodiscard]] SqlToken number();
  [[nodiscard]] QChar at(qsizetype place) const { return place < sql_.size() ? sql_[place] : QChar(); }

  QStringView sql_;
  qsizetype at_ = 0;
};

}  // namespace data
