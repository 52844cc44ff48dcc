#include "platform/web/html_tree.h"

#include <QSet>
#include <algorithm>
#include <array>

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kDeepest = 100;  // elements in each other
constexpr int kDeepestTables = 4;      // each more makes laying out twice as slow
constexpr std::size_t kAgain = 5;      // formats that go on after one that ended across them

const QSet<QString> kVoid{u"br"_s, u"hr"_s, u"img"_s, u"meta"_s, u"link"_s, u"base"_s, u"input"_s};
const QSet<QString> kFormats{u"b"_s,    u"strong"_s, u"i"_s,   u"em"_s,  u"u"_s,   u"s"_s, u"font"_s,
                             u"span"_s, u"small"_s,  u"big"_s, u"sub"_s, u"sup"_s, u"a"_s};
/// What they hold is no text of the document.
const QSet<QString> kSilent{u"script"_s, u"style"_s,    u"title"_s, u"textarea"_s,
                            u"iframe"_s, u"noframes"_s, u"xmp"_s};
const QSet<QString> kBlocks{u"p"_s,  u"div"_s, u"center"_s, u"h1"_s, u"h2"_s, u"h3"_s,  u"h4"_s,
                            u"h5"_s, u"h6"_s,  u"ul"_s,     u"ol"_s, u"li"_s, u"pre"_s, u"blockquote"_s};

bool isCell(const QString& tag) { return tag == u"td" || tag == u"th"; }

/// The characters that windows-1252 has in the place of controls.
QString fromWindows1252(const QByteArray& bytes) {
  constexpr std::array<char16_t, 32> kOwn{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                          0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                          0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                          0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  QString text = QString::fromLatin1(bytes);
  for (QChar& one : text)
    if (one.unicode() >= 0x80 && one.unicode() < 0xA0) one = kOwn[one.unicode() - 0x80U];
  return text;
}

class Reader {
 public:
  explicit Reader(const QByteArray& html) : html_(fromWindows1252(html)) {
    tree_.nodes.emplace_back();
    open_ = {0};
  }

  HtmlTree read() {
    while (at_ < html_.size()) {
      qsizetype tag = html_.indexOf(u'<', at_);
      // A sign before anything but a name is a sign.
      while (tag >= 0 && tag + 1 < html_.size() && !QStringView(u"!/?").contains(html_[tag + 1]) &&
             !isLetter(html_[tag + 1]))
        tag = html_.indexOf(u'<', tag + 1);
      if (tag < 0) tag = html_.size();
      addText(html_.sliced(at_, tag - at_));
      at_ = tag;
      if (at_ < html_.size()) readTag();
    }
    return std::move(tree_);
  }

 private:
  static bool isLetter(QChar one) { return (one >= u'a' && one <= u'z') || (one >= u'A' && one <= u'Z'); }

  [[nodiscard]] const QString& tagOf(int node) const {
    return tree_.nodes[static_cast<std::size_t>(node)].tag;
  }
  [[nodiscard]] const QString& top() const { return tagOf(open_.back()); }

  void skipTo(QStringView end) {
    const qsizetype found = html_.indexOf(end, at_);
    at_ = found < 0 ? html_.size() : found + end.size();
  }

  void readTag() {
    if (QStringView(html_).sliced(at_).startsWith(u"<!--")) {
      // "<!-->" is a whole comment, too.
      at_ += 2;
      return skipTo(u"-->");
    }
    if (html_[at_ + 1] == u'!' || html_[at_ + 1] == u'?') {
      const qsizetype from = at_;
      skipTo(u">");
      if (QStringView(html_).sliced(from, at_ - from).contains(u"HTML 4.0//", Qt::CaseInsensitive))
        tree_.standardLines = true;
      return;
    }
    const bool closes = html_[at_ + 1] == u'/';
    at_ += closes ? 2 : 1;
    const qsizetype from = at_;
    while (at_ < html_.size() && !html_[at_].isSpace() && html_[at_] != u'>' && html_[at_] != u'/') ++at_;
    HtmlNode node;
    node.tag = html_.sliced(from, at_ - from).toLower();
    readAttributes(node);
    if (closes) return end(node.tag);
    if (kSilent.contains(node.tag)) return skipSilent(node.tag);
    begin(std::move(node));
  }

  void readAttributes(HtmlNode& node) {
    while (at_ < html_.size() && html_[at_] != u'>') {
      if (html_[at_].isSpace() || html_[at_] == u'/') {
        ++at_;
        continue;
      }
      const qsizetype from = at_++;
      while (at_ < html_.size() && !html_[at_].isSpace() && !QStringView(u"=>/").contains(html_[at_])) ++at_;
      const QString name = html_.sliced(from, at_ - from).toLower();
      while (at_ < html_.size() && html_[at_].isSpace()) ++at_;
      const QString value = at_ < html_.size() && html_[at_] == u'=' ? readValue() : QString();
      if (!node.has(name)) node.attributes.emplace_back(name, value);
    }
    ++at_;
  }

  QString readValue() {
    ++at_;
    while (at_ < html_.size() && html_[at_].isSpace()) ++at_;
    if (at_ >= html_.size()) return {};
    const QChar quote = html_[at_];
    const qsizetype from = at_ + 1;
    if (quote == u'"' || quote == u'\'') {
      const qsizetype found = html_.indexOf(quote, from);
      at_ = found < 0 ? html_.size() : found + 1;
      return html_.sliced(from, std::max(from, at_ - 1) - from);
    }
    while (at_ < html_.size() && !html_[at_].isSpace() && html_[at_] != u'>') ++at_;
    return html_.sliced(from - 1, at_ - from + 1);
  }

  void skipSilent(const QString& tag) {
    const qsizetype found = html_.indexOf(u"</"_s + tag, at_, Qt::CaseInsensitive);
    const qsizetype end = found < 0 ? html_.size() : found;
    if (tag == u"style") tree_.styles += QStringView(html_).sliced(at_, end - at_);
    at_ = end;
  }

  int add(HtmlNode node, int parent, bool beforeLast = false) {
    const int made = static_cast<int>(tree_.nodes.size());
    tree_.nodes.push_back(std::move(node));
    auto& children = tree_.nodes[static_cast<std::size_t>(parent)].children;
    children.insert(beforeLast && !children.empty() ? children.end() - 1 : children.end(), made);
    return made;
  }

  /// Where in open_ the innermost element of these names is, not further out than the cell at hand.
  template <typename Names>
  [[nodiscard]] std::size_t innermost(Names is, bool beyondCells = false) const {
    for (std::size_t i = open_.size(); i-- > 1;) {
      if (is(tagOf(open_[i]))) return i;
      if (!beyondCells && (isCell(tagOf(open_[i])) || tagOf(open_[i]) == u"table")) break;
    }
    return 0;
  }
  [[nodiscard]] std::size_t innermostTable() const {
    return innermost([](const QString& tag) { return tag == u"table"; }, true);
  }

  [[nodiscard]] bool isBetweenCells() const { return top() == u"table" || top() == u"tr"; }

  /// In front of the table whose cells it stands between.
  void addOutside(HtmlNode node) { add(std::move(node), open_[innermostTable() - 1], true); }

  void addText(const QString& text) {
    if (text.isEmpty()) return;
    HtmlNode node;
    node.text = text;
    if (!isBetweenCells())
      add(std::move(node), open_.back());
    else if (!text.trimmed().isEmpty())
      addOutside(std::move(node));
  }

  void begin(HtmlNode node) {
    const QString tag = node.tag;
    if (tag == u"table")
      beginTable(std::move(node));
    else if (tag == u"tr" || isCell(tag))
      beginInTable(std::move(node));
    else if (isBetweenCells()) {
      if (tag == u"img") addOutside(std::move(node));
    } else if (kVoid.contains(tag)) {
      add(std::move(node), open_.back());
    } else if (kFormats.contains(tag) || kBlocks.contains(tag)) {
      if (kBlocks.contains(tag)) end(u"p"_s);
      if (tag == u"li" || tag == u"a") end(tag);
      push(std::move(node));
    }
  }

  void push(HtmlNode node) {
    const int made = add(std::move(node), open_.back());
    if (open_.size() < kDeepest) open_.push_back(made);
  }

  void beginTable(HtmlNode node) {
    if (isBetweenCells()) end(u"table"_s);
    const auto tables =
        std::count_if(open_.begin(), open_.end(), [this](int one) { return tagOf(one) == u"table"; });
    if (tables >= kDeepestTables || open_.size() + 4 > kDeepest) return;
    if (tree_.standardLines) end(u"p"_s);
    push(std::move(node));
  }

  void beginInTable(HtmlNode node) {
    const std::size_t table = innermostTable();
    if (table == 0) return;
    const bool cell = isCell(node.tag);
    const bool inRow = table + 1 < open_.size() && tagOf(open_[table + 1]) == u"tr";
    open_.resize(table + (cell && inRow ? 2 : 1));
    if (cell && !inRow) {
      HtmlNode row;
      row.tag = u"tr"_s;
      push(std::move(row));
    }
    push(std::move(node));
  }

  void end(const QString& tag) {
    const auto is = [&tag](const QString& one) { return one == tag; };
    if (tag == u"table" || tag == u"tr" || isCell(tag)) {
      const std::size_t table = innermostTable(), found = innermost(is, true);
      if (found != 0 && found >= table) open_.resize(found);
      return;
    }
    const std::size_t found = innermost(is);
    if (found == 0) return;
    // What was begun inside of it and isn't ended goes on after it.
    std::vector<HtmlNode> again;
    if (kFormats.contains(tag))
      for (std::size_t i = found + 1; i < open_.size(); ++i) {
        const HtmlNode& one = tree_.nodes[static_cast<std::size_t>(open_[i])];
        if (kFormats.contains(one.tag) && again.size() < kAgain)
          again.push_back({one.tag, {}, one.attributes, {}});
      }
    open_.resize(found);
    for (HtmlNode& one : again) push(std::move(one));
  }

  QString html_;
  qsizetype at_ = 0;
  HtmlTree tree_;
  std::vector<int> open_;  // from the root inwards
};

}  // namespace

QString HtmlNode::attribute(QStringView name) const {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [name](const auto& one) { return one.first == name; });
  return found == attributes.end() ? QString() : found->second.trimmed();
}

bool HtmlNode::has(QStringView name) const {
  return std::any_of(attributes.begin(), attributes.end(),
                     [name](const auto& one) { return one.first == name; });
}

HtmlTree readHtml(const QByteArray& html) { return Reader(html).read(); }

}  // namespace web
