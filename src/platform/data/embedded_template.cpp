#include "platform/data/embedded_template.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

namespace data {

namespace {

bool isWordCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '@' || (c & 0x80);
}

bool same(std::string_view word, std::string_view capitals) {
  return std::ranges::equal(word, capitals, [](char one, char other) {
    return std::toupper(static_cast<unsigned char>(one)) == other;
  });
}

template <std::size_t Size>
bool isOneOf(std::string_view word, const std::array<std::string_view, Size>& list) {
  return std::ranges::any_of(list, [&](std::string_view capitals) { return same(word, capitals); });
}

class Scanner {
 public:
  explicit Scanner(const QByteArray& sql) : sql_(sql.constData(), static_cast<std::size_t>(sql.size())) {
    result_.text.reserve(sql.size());
  }

  std::optional<Template> scan() {
    constexpr std::array<std::string_view, 4> kVerbs{"SELECT", "INSERT", "UPDATE", "DELETE"};
    skipBlanks();
    if (!isOneOf(wordAt(at_), kVerbs)) return std::nullopt;
    while (at_ < sql_.size())
      if (!token()) return std::nullopt;
    return std::move(result_);
  }

 private:
  void skipBlanks() {
    while (at_ < sql_.size() && std::isspace(static_cast<unsigned char>(sql_[at_]))) copy(1);
  }

  std::string_view wordAt(std::size_t start) const {
    std::size_t end = start;
    while (end < sql_.size() && isWordCharacter(sql_[end])) ++end;
    return sql_.substr(start, end - start);
  }

  void copy(std::size_t count) {
    result_.text.append(sql_.data() + at_, static_cast<qsizetype>(count));
    at_ += count;
  }

  /// Takes one token; false where the text can't have a template.
  bool token() {
    const char c = sql_[at_];
    if (std::isspace(static_cast<unsigned char>(c))) return copy(1), true;
    if (c == '\'') return quoted();
    if (c == '"') return name('"');
    if (c == '[') return name(']');
    if (isWordCharacter(c)) return word();
    const std::string_view pair = sql_.substr(at_, 2);
    if (c == ';' || c == '?' || c == ':' || c == '`' || pair == "--" || pair == "/*") return false;
    before_ = sql_.substr(at_, 1);
    return copy(1), true;
  }

  bool word() {
    const std::string_view found = wordAt(at_);
    constexpr std::size_t kSafeDigits = 18;
    const bool number = found.size() <= kSafeDigits &&
                        std::ranges::all_of(found, [](char c) { return c >= '0' && c <= '9'; });
    const std::size_t end = at_ + found.size();
    if (number && isComparison() && (end == sql_.size() || sql_[end] != '.')) {
      result_.values.emplace_back(
          QByteArrayView(found.data(), static_cast<qsizetype>(found.size())).toLongLong());
      result_.text += '?';
      at_ = end;
    } else {
      copy(found.size());
    }
    before_ = found;
    return true;
  }

  bool name(char last) {
    const std::size_t end = sql_.find(last, at_ + 1);
    if (end == std::string_view::npos) return false;
    before_ = sql_.substr(at_, 1);
    copy(end + 1 - at_);
    return true;
  }

  bool quoted() {
    QByteArray value;
    std::size_t start = at_ + 1;
    std::size_t end = sql_.find('\'', start);
    while (end != std::string_view::npos && end + 1 < sql_.size() && sql_[end + 1] == '\'') {
      value.append(sql_.data() + start, static_cast<qsizetype>(end + 1 - start));
      start = end + 2;
      end = sql_.find('\'', start);
    }
    if (end == std::string_view::npos) return false;
    constexpr std::array<std::string_view, 4> kBefore{"(", ",", "LIKE", "AND"};
    if (isComparison() || isOneOf(before_, kBefore)) {
      value.append(sql_.data() + start, static_cast<qsizetype>(end - start));
      result_.values.emplace_back(std::move(value));
      result_.text += '?';
      at_ = end + 1;
    } else {
      copy(end + 1 - at_);
    }
    before_ = "'";
    return true;
  }

  [[nodiscard]] bool isComparison() const { return before_ == "=" || before_ == "<" || before_ == ">"; }

  std::string_view sql_;
  std::size_t at_ = 0;
  std::string_view before_;  // the token before this one, blanks passed over
  Template result_;
};

}  // namespace

std::optional<Template> templateOf(const QByteArray& sql) { return Scanner(sql).scan(); }

}  // namespace data
