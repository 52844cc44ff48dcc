#include "platform/data/embedded_text.h"

#include <sqlite3.h>

#include <QChar>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A letter as it counts in comparisons: its capital without the accent, then the accent.
struct Weight {
  char32_t letter;
  char32_t accent;
  friend bool operator==(const Weight&, const Weight&) = default;
};

Weight weigh(char32_t character) {
  const char32_t capital = QChar::toUpper(character);
  const QString parts = QChar::decomposition(capital);
  if (parts.size() == 2 && QChar::decompositionTag(capital) == QChar::Canonical &&
      parts[1].category() == QChar::Mark_NonSpacing)
    return {parts[0].unicode(), parts[1].unicode()};
  return {capital, 0};
}

constexpr char32_t kTabled = 0x250;

const std::array<Weight, kTabled>& weights() {
  static const auto table = [] {
    std::array<Weight, kTabled> made{};
    for (char32_t character = 0; character < kTabled; ++character) made[character] = weigh(character);
    return made;
  }();
  return table;
}

/// Walks the characters of a UTF-8 text; a byte that is no part of one counts for itself.
class Walker {
 public:
  explicit Walker(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

  [[nodiscard]] bool atEnd() const { return at_ == end_; }

  char32_t next() {
    const auto first = static_cast<unsigned char>(*at_++);
    if (first < 0xC0) return first;
    const int following = first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    auto character = static_cast<char32_t>(first & (0x3F >> following));
    for (int i = 0; i < following && at_ != end_ && (*at_ & 0xC0) == 0x80; ++i)
      character = (character << 6) | static_cast<char32_t>(*at_++ & 0x3F);
    return character;
  }

  Weight nextWeight() {
    const char32_t character = next();
    return character < kTabled ? weights()[character] : weigh(character);
  }

 private:
  const char* at_;
  const char* end_;
};

std::string_view withoutTrailingBlanks(std::string_view text) {
  const auto last = text.find_last_not_of(' ');
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view view(const void* bytes, int size) {
  return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

std::string_view view(sqlite3_value* value) {
  const void* bytes = sqlite3_value_text(value);
  return bytes ? view(bytes, sqlite3_value_bytes(value)) : std::string_view();
}

int compareTexts(std::string_view left, std::string_view right) {
  Walker a(withoutTrailingBlanks(left));
  Walker b(withoutTrailingBlanks(right));
  int byAccent = 0;
  while (!a.atEnd() && !b.atEnd()) {
    const Weight one = a.nextWeight();
    const Weight other = b.nextWeight();
    if (one.letter != other.letter) return one.letter < other.letter ? -1 : 1;
    if (byAccent == 0 && one.accent != other.accent) byAccent = one.accent < other.accent ? -1 : 1;
  }
  if (a.atEnd() != b.atEnd()) return a.atEnd() ? -1 : 1;
  return byAccent;
}

bool isLike(std::string_view text, std::string_view pattern) {
  Walker at(text);
  Walker wanted(pattern);
  std::optional<Walker> retryText, retryPattern;  // where the last % may take one character more
  while (true) {
    if (!wanted.atEnd()) {
      const Walker before = wanted;
      const char32_t sign = wanted.next();
      if (sign == U'%') {
        retryText = at;
        retryPattern = wanted;
        continue;
      }
      if (!at.atEnd()) {
        Walker again = before;
        const Weight have = at.nextWeight();
        if (sign == U'_' || again.nextWeight() == have) continue;
      }
    } else if (at.atEnd()) {
      return true;
    }
    if (!retryText || retryText->atEnd()) return false;
    retryText->next();
    at = *retryText;
    wanted = *retryPattern;
  }
}

int compareDates(std::string_view left, std::string_view right) {
  const auto whole = [](std::string_view text) {
    auto date = std::to_array("00000000 00:00:00");
    text.copy(date.data(), date.size() - 1);
    return date;
  };
  const auto order = whole(left) <=> whole(right);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

void likeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
    return sqlite3_result_null(context);
  sqlite3_result_int(context, isLike(view(arguments[1]), view(arguments[0])));
}

void isDateFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(
      context, sqlite3_value_type(arguments[0]) == SQLITE_NULL || storedDate(view(arguments[0])).has_value());
}

/// -1 where there is no digit.
int digits(std::string_view text, std::size_t at, std::size_t count) {
  int number = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    if (text[i] < '0' || text[i] > '9') return -1;
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

template <int (*Compare)(std::string_view, std::string_view)>
int collation(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return Compare(view(left, leftSize), view(right, rightSize));
}

}  // namespace

QString toEmbeddedDialect(const ReadStatement& statement) {
  QString sql = statement.given.sql;
  const auto& [verb, next] = statement.first;
  const qsizetype at = next.text.data() - QStringView(sql).data();
  if (verb.isWord(u"DELETE") && next.kind != SqlToken::Kind::End && !next.isWord(u"FROM"))
    sql.insert(at, u"FROM "_s);
  if (verb.isWord(u"SELECT") && next.isWord(u"@@IDENTITY"))
    sql.replace(at, next.text.size(), u"nullif(last_insert_rowid(), 0)"_s);
  return sql;
}

std::optional<StoredDate> storedDate(std::string_view text) {
  const bool hasTime = text.size() == 14 || text.size() == 17;
  if (text.size() != 8 && !(hasTime && text[8] == ' ' && text[11] == ':')) return {};
  const bool hasSeconds = text.size() == 17;
  if (hasSeconds && text[14] != ':') return {};
  const QDate date(digits(text, 0, 4), digits(text, 4, 2), digits(text, 6, 2));
  const QTime time(hasTime ? digits(text, 9, 2) : 0, hasTime ? digits(text, 12, 2) : 0,
                   hasSeconds ? digits(text, 15, 2) : 0);
  if (!date.isValid() || date.year() < 0 || !time.isValid()) return {};
  return StoredDate{date, time};
}

void registerTextRules(sqlite3* database) {
  sqlite3_create_collation(database, "ZARIM", SQLITE_UTF8, nullptr, collation<compareTexts>);
  sqlite3_create_collation(database, "ZARIM_DATE", SQLITE_UTF8, nullptr, collation<compareDates>);
  constexpr int kPure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  sqlite3_create_function(database, "like", 2, kPure, nullptr, likeFunction, nullptr, nullptr);
  sqlite3_create_function(database, "zarim_is_date", 1, kPure, nullptr, isDateFunction, nullptr, nullptr);
}

}  // namespace data
