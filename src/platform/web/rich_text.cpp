#include "platform/web/rich_text.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <array>
#include <functional>
#include <initializer_list>
#include <numeric>
#include <utility>
#include <vector>

#include "platform/markup/tree.h"

namespace web {

using namespace Qt::StringLiterals;
using markup::attribute;
using markup::childrenOf;

namespace {

constexpr double kPointsToUnit = 0.75;  // a unit is a pixel at 96 to an inch
constexpr double kLine = 1.164;         // height of a line of the plain font, in sizes of it
constexpr double kPlainSize = 16;
constexpr qsizetype kLongestWord = 40;  // letters
constexpr std::size_t kMostColumns = 100;
constexpr int kLargest = 3000;     // units
constexpr int kDeepest = 100;      // elements in each other
constexpr int kDeepestTables = 4;  // each more makes laying out twice as slow

/// Sizes of <font size=1> to <font size=7>, in units.
constexpr std::array<double, 7> kFontSizes{10, 13, 16, 18, 24, 32, 48};

/// What elements become that the toolkit shows. What is in others is shown alone, or not at all.
const QHash<TidyTagId, QString> kShown{{TidyTag_B, u"b"_s},
                                       {TidyTag_STRONG, u"b"_s},
                                       {TidyTag_I, u"i"_s},
                                       {TidyTag_EM, u"i"_s},
                                       {TidyTag_U, u"u"_s},
                                       {TidyTag_S, u"s"_s},
                                       {TidyTag_SMALL, u"small"_s},
                                       {TidyTag_BIG, u"big"_s},
                                       {TidyTag_SUB, u"sub"_s},
                                       {TidyTag_SUP, u"sup"_s},
                                       {TidyTag_H1, u"h1"_s},
                                       {TidyTag_H2, u"h2"_s},
                                       {TidyTag_H3, u"h3"_s},
                                       {TidyTag_H4, u"h4"_s},
                                       {TidyTag_H5, u"h5"_s},
                                       {TidyTag_H6, u"h6"_s},
                                       {TidyTag_UL, u"ul"_s},
                                       {TidyTag_OL, u"ol"_s},
                                       {TidyTag_LI, u"li"_s},
                                       {TidyTag_PRE, u"pre"_s},
                                       {TidyTag_HR, u"hr"_s},
                                       {TidyTag_BR, u"br"_s},
                                       {TidyTag_A, u"a"_s},
                                       {TidyTag_BLOCKQUOTE, u"blockquote"_s},
                                       {TidyTag_SPAN, u"span"_s},
                                       {TidyTag_FONT, u"span"_s},
                                       {TidyTag_DIV, u"div"_s},
                                       {TidyTag_CENTER, u"div align=center"_s},
                                       {TidyTag_P, u"p style='margin-top:16px;margin-bottom:16px'"_s}};
const QSet<TidyTagId> kSilent{TidyTag_TITLE,  TidyTag_SCRIPT,   TidyTag_TEXTAREA,
                              TidyTag_IFRAME, TidyTag_NOFRAMES, TidyTag_XMP};

/// A length as it is written ("30", "30px", "30%"): the number and whether it is of a hundred.
struct Length {
  double value = 0;
  bool percent = false;
};
Length lengthOf(TidyNode node, TidyAttrId name, double otherwise = 0) {
  const QString text = attribute(node, name);
  if (text.isEmpty()) return {otherwise, false};
  qsizetype digits = 0;
  while (digits < text.size() && (text[digits].isDigit() || text[digits] == u'.')) ++digits;
  const bool percent = digits < text.size() && text[digits] == u'%';
  return {std::clamp(text.first(digits).toDouble(), 0.0, percent ? 100.0 : double(kLargest)), percent};
}

int countOf(TidyNode cell, TidyAttrId name) {
  return std::clamp(attribute(cell, name).toInt(), 1, static_cast<int>(kMostColumns));
}

QString number(double value) { return QString::number(value, 'f', 2); }

QString points(double units) { return number(units * kPointsToUnit) + u"pt"_s; }

/// Sizes of a style sheet in points: the toolkit takes pixels whole.
QString inPoints(QString styles) {
  static const QRegularExpression pixels(uR"(([\d.]+)px)"_s, QRegularExpression::CaseInsensitiveOption);
  for (auto found = pixels.match(styles); found.hasMatch();
       found = pixels.match(styles, found.capturedStart() + 1))
    styles.replace(found.capturedStart(), found.capturedLength(), points(found.captured(1).toDouble()));
  return styles;
}

QString styleOf(TidyNode node) { return inPoints(attribute(node, TidyAttr_STYLE)); }

double fontSizeOf(TidyNode node, double around) {
  static const QRegularExpression size(uR"(font-size:\s*([\d.]+)(pt|px))"_s,
                                       QRegularExpression::CaseInsensitiveOption);
  const auto found = size.match(attribute(node, TidyAttr_STYLE));
  if (!found.hasMatch()) return around;
  const double value = found.captured(1).toDouble();
  return found.captured(2).toLower() == u"pt" ? value / kPointsToUnit : value;
}

QString fontStyle(TidyNode font) {
  QString style;
  if (const QString size = attribute(font, TidyAttr_SIZE); !size.isEmpty()) {
    const int step = size.startsWith(u'+') || size.startsWith(u'-') ? 3 + size.toInt() : size.toInt();
    style +=
        u"font-size:"_s + points(kFontSizes[static_cast<std::size_t>(std::clamp(step, 1, 7) - 1)]) + u';';
  }
  for (const auto& [name, property] :
       {std::pair(TidyAttr_FACE, u"font-family:"_s), {TidyAttr_COLOR, u"color:"_s}})
    if (const QString value = attribute(font, name); !value.isEmpty()) style += property + value + u';';
  return style;
}

/// The line ends between two words of a text were typed and stand for themselves; the document's own texts go
/// on further in.
QByteArray withTypedLines(const QByteArray& html) {
  constexpr int kIndent = 6;
  static const QRegularExpression textOrSheet(
      uR"(<(style|script)\b.*?</\1|>[^<]+)"_s,
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression gap(uR"((?<=[^\s>])\s*[\r\n]\s*(?=\S))"_s);
  QString made = QString::fromLatin1(html);  // bytes that stay themselves
  const QString read = made;
  qsizetype done = 0;
  made.clear();
  for (auto texts = textOrSheet.globalMatch(read); texts.hasNext();) {
    const auto text = texts.next();
    if (text.hasCaptured(1)) continue;
    for (auto gaps = gap.globalMatch(text.capturedView()); gaps.hasNext();) {
      const auto found = gaps.next();
      const QString lines = found.captured().replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
      if (lines.size() - lines.lastIndexOf(u'\n') > kIndent) continue;
      const qsizetype at = text.capturedStart() + found.capturedStart();
      made += QStringView(read).sliced(done, at - done);
      made += u"<br>"_s.repeated(lines.count(u'\n'));
      done = at + found.capturedLength();
    }
  }
  return (made + read.sliced(done)).toLatin1();
}

/// With places to break in words that are too long.
QString breakable(const QString& text) {
  QString made;
  qsizetype word = 0;
  for (const QChar one : text) {
    word = one.isSpace() ? 0 : word + 1;
    if (word > kLongestWord) made += kBreakHere;
    if (word > kLongestWord) word = 1;
    made += one;
  }
  return made;
}

class Writer {
 public:
  explicit Writer(const markup::Tree& tree) : tree_(tree) {}

  RichText write() {
    writeChildren(tree_.root(), {});
    return {u"<html><head><style>"_s + inPoints(styles_).remove(u'<') + u"</style></head><body>"_s + out_ +
                u"</body></html>"_s,
            pictures_};
  }

 private:
  /// What an element takes over from those around it.
  struct Around {
    double fontSize = kPlainSize;
    QString align;                ///< of the row
    QString style;                ///< of the row
    std::vector<Length> columns;  ///< widths of the table's
    double height = 0;            ///< of a cell of a table with one row
  };
  using Is = std::function<bool(TidyNode)>;

  void writeChildren(TidyNode parent, const Around& around) {
    for (const TidyNode child : childrenOf(parent)) write(child, around);
  }

  void write(TidyNode one, const Around& around) {
    const TidyTagId tag = tidyNodeGetId(one);
    if (tidyNodeGetType(one) == TidyNode_DocType)
      // Lines of today's browsers; without the type they are as high as their letters.
      standardLines_ = QByteArray(tidyAttrValue(tidyAttrFirst(one))).toUpper().contains("HTML 4.0//");
    else if (tidyNodeIsText(one))
      writeText(tree_.textOf(one));
    else if (tag == TidyTag_STYLE)
      for (const TidyNode sheet : childrenOf(one)) styles_ += tree_.textOf(sheet);
    else if (tag == TidyTag_TABLE && tables_ < kDeepestTables)
      writeTable(one, around);
    else if (tag == TidyTag_IMG)
      writePicture(one);
    else if (tag == TidyTag_P && isEmpty(one))
      writeGap(kPlainSize);
    else if (!kSilent.contains(tag))
      writeElement(one, around);
  }

  [[nodiscard]] bool holds(TidyNode one, const Is& is) const {
    return is(one) || std::ranges::any_of(childrenOf(one), [&](TidyNode child) { return holds(child, is); });
  }
  static bool isTag(TidyNode one, TidyTagId tag) { return tidyNodeGetId(one) == tag; }

  [[nodiscard]] bool isEmpty(TidyNode one) const {
    return !holds(one, [this](TidyNode node) {
      return isTag(node, TidyTag_IMG) || isTag(node, TidyTag_TABLE) ||
             (tidyNodeIsText(node) &&
              std::ranges::count(tree_.textOf(node), u' ') != tree_.textOf(node).size());
    });
  }

  /// Codes and numbers stand in one line, though the toolkit would break them at some signs.
  [[nodiscard]] bool isWord(TidyNode one) const {
    return !holds(one, [this](TidyNode node) {
      const QString text = tidyNodeIsText(node) ? tree_.textOf(node) : QString();
      return isTag(node, TidyTag_TABLE) || text.size() > kLongestWord || text.trimmed().contains(u' ');
    });
  }

  [[nodiscard]] bool holdsPicture(TidyNode one) const {
    return holds(one, [](TidyNode node) { return isTag(node, TidyTag_IMG); });
  }

  void writeAttribute(const QString& name, const QString& value) {
    if (!value.isEmpty()) out_ += u' ' + name + u"=\""_s + value.toHtmlEscaped() + u'"';
  }
  /// Attributes that the toolkit takes as they are.
  void writeAttributes(TidyNode node, std::initializer_list<TidyAttrId> names) {
    for (const TidyAttrId name : names)
      if (const TidyAttr found = tidyAttrGetById(node, name); found != nullptr)
        writeAttribute(QString::fromLatin1(tidyAttrName(found)), attribute(node, name));
  }
  void writeLength(const QString& name, const Length& length) {
    if (length.value > 0)
      writeAttribute(name, QString::number(length.value) + (length.percent ? u"%"_s : QString()));
  }

  void writeGap(double height) {
    out_ += u"<p style=\"margin:0;font-size:1pt;line-height:%1px\">&nbsp;</p>"_s.arg(number(height));
  }

  void writeElement(TidyNode one, const Around& around) {
    const QString tag = kShown.value(tidyNodeGetId(one));
    if (tag.isEmpty() || depth_ > kDeepest) return writeChildren(one, around);
    out_ += u'<' + tag;
    writeAttribute(u"style"_s, (isTag(one, TidyTag_FONT) ? fontStyle(one) : QString()) + styleOf(one));
    writeAttributes(one, {TidyAttr_CLASS, TidyAttr_ALIGN, TidyAttr_HREF});
    out_ += u'>';
    ++depth_;
    writeChildren(one, around);
    --depth_;
    if (tag != u"br" && tag != u"hr") out_ += u"</"_s + tag.section(u' ', 0, 0) + u'>';
  }

  void writePicture(TidyNode one) {
    out_ += u"<img src=\"%1\""_s.arg(pictures_.size());
    pictures_ << attribute(one, TidyAttr_SRC);
    for (const auto& [name, id] : {std::pair(u"width"_s, TidyAttr_WIDTH), {u"height"_s, TidyAttr_HEIGHT}})
      if (const Length length = lengthOf(one, id); !length.percent) writeLength(name, length);
    out_ += u'>';
  }

  static std::vector<TidyNode> rowsOf(TidyNode table) {
    std::vector<TidyNode> rows;
    for (const TidyNode child : childrenOf(table))
      if (isTag(child, TidyTag_TR)) {
        rows.push_back(child);
      } else if (isTag(child, TidyTag_TBODY) || isTag(child, TidyTag_THEAD) || isTag(child, TidyTag_TFOOT)) {
        const auto more = rowsOf(child);
        rows.insert(rows.end(), more.begin(), more.end());
      }
    return rows;
  }

  void writeTable(TidyNode table, Around around) {
    // The toolkit leaves some dots above and below a table's lines: two that follow each other share one.
    const bool follows = out_.endsWith(u"</table>");
    const QString border = attribute(table, TidyAttr_BORDER), color = attribute(table, TidyAttr_BORDERCOLOR);
    const bool bordered = tidyAttrGetById(table, TidyAttr_BORDER) != nullptr && border != u"0";
    const std::vector<TidyNode> rows = rowsOf(table);
    ++tables_;
    around.fontSize = fontSizeOf(table, around.fontSize);
    around.columns = columnsOf(table, rows);
    around.height = rows.size() == 1 ? lengthOf(table, TidyAttr_HEIGHT).value : 0;
    out_ += u"<table border=%1 cellpadding=%2 cellspacing=%3"_s.arg(bordered ? 1 : 0)
                .arg(lengthOf(table, TidyAttr_CELLPADDING, 1).value)
                .arg(bordered ? 0 : lengthOf(table, TidyAttr_CELLSPACING, 2).value);
    // Without hundreds a table with pictures may need more than its width.
    if (!around.columns.empty() || !holdsPicture(table))
      writeLength(u"width"_s, lengthOf(table, TidyAttr_WIDTH));
    writeAttributes(table, {TidyAttr_BGCOLOR, TidyAttr_ALIGN});
    QString style = styleOf(table);
    if (bordered)
      style += u";border-collapse:collapse;border-style:solid;border-color:"_s +
               (color.isEmpty() ? u"#808080"_s : color);
    if (bordered && follows) style += u";margin-top:-4px"_s;
    writeAttribute(u"style"_s, style);
    out_ += u'>';
    for (const TidyNode row : rows) writeRow(row, around);
    --tables_;
    out_ += u"</table>"_s;
  }

  /// As the first cell says that stands in that column alone. Hundreds of a table as wide as a number are
  /// numbers here, since the toolkit gives a column that holds more than its hundreds no room; the widest
  /// column takes what the others leave. Where hundreds leave nothing for a column, all are as wide as what
  /// they hold.
  [[nodiscard]] std::vector<Length> columnsOf(TidyNode table, const std::vector<TidyNode>& rows) const {
    std::vector<Length> columns;
    for (const TidyNode row : rows) {
      std::size_t column = 0;
      for (const TidyNode cell : childrenOf(row)) {
        const std::size_t end = column + spanOf(cell);
        if (end > kMostColumns) break;
        columns.resize(std::max(columns.size(), end));
        if (end == column + 1 && columns[column].value == 0) columns[column] = lengthOf(cell, TidyAttr_WIDTH);
        column = end;
      }
    }
    const auto percents = [](double sum, const Length& one) { return sum + (one.percent ? one.value : 0); };
    const double sum = std::accumulate(columns.begin(), columns.end(), 0.0, percents);
    const bool open = std::ranges::find(columns, 0.0, &Length::value) != columns.end();
    if (sum > (open ? 99 : 101)) return {};
    const Length width = lengthOf(table, TidyAttr_WIDTH);
    if (width.value == 0 || width.percent || columns.empty()) return columns;
    // A picture beside that many columns needs more than its hundreds.
    if (sum > 99 && columns.size() > 5 && holdsPicture(table)) return {};
    if (!open) *std::ranges::max_element(columns, {}, &Length::value) = {};
    for (Length& one : columns)
      if (one.percent) one = {one.value * width.value / 100, false};
    return columns;
  }

  static std::size_t spanOf(TidyNode cell) {
    return static_cast<std::size_t>(countOf(cell, TidyAttr_COLSPAN));
  }

  void writeRow(TidyNode row, Around around) {
    around.align = attribute(row, TidyAttr_ALIGN);
    around.style = styleOf(row);
    around.fontSize = fontSizeOf(row, around.fontSize);
    around.height = std::max(around.height, lengthOf(row, TidyAttr_HEIGHT).value);
    out_ += u"<tr"_s;
    writeAttributes(row, {TidyAttr_BGCOLOR});
    out_ += u'>';
    std::size_t column = 0;
    for (const TidyNode cell : childrenOf(row)) {
      const std::size_t span = spanOf(cell);
      if (column + span > kMostColumns) {
        out_ += u"</tr><tr>"_s;
        column = 0;
      }
      writeCell(cell, around,
                span == 1 && column < around.columns.size() ? around.columns[column] : Length{});
      column += span;
    }
    out_ += u"</tr>"_s;
  }

  void writeCell(TidyNode cell, Around around, const Length& width) {
    const bool empty = isEmpty(cell);
    around.fontSize = fontSizeOf(cell, around.fontSize);
    const QString tag = isTag(cell, TidyTag_TH) ? u"th"_s : u"td"_s;
    out_ += u"<%1 colspan=%2 rowspan=%3"_s.arg(tag)
                .arg(countOf(cell, TidyAttr_COLSPAN))
                .arg(countOf(cell, TidyAttr_ROWSPAN));
    writeLength(u"width"_s, width);
    writeAttributes(cell, {TidyAttr_BGCOLOR});
    const QString align = attribute(cell, TidyAttr_ALIGN), valign = attribute(cell, TidyAttr_VALIGN);
    writeAttribute(u"align"_s, (align.isEmpty() ? around.align : align).toLower());
    writeAttribute(u"valign"_s, valign.isEmpty() ? u"middle"_s : valign.toLower());
    const double height = std::max(around.height, lengthOf(cell, TidyAttr_HEIGHT).value);
    const double line = kLine * around.fontSize;
    QString style = around.style + u';' + styleOf(cell);
    if (standardLines_) style += u";line-height:"_s + number(line) + u"px"_s;
    if (height > line && !empty)
      style += u";padding-top:%1px;padding-bottom:%1px"_s.arg(number((height - line) / 2));
    if (isWord(cell)) style += u";white-space:nowrap"_s;
    writeAttribute(u"style"_s, style);
    out_ += u'>';
    if (empty)
      writeGap(height);
    else
      writeChildren(cell, around);
    out_ += u"</"_s + tag + u'>';
  }

  /// A blank that the library has taken out of an element is as wide as one of the text after it.
  void writeText(const QString& text) {
    if (text == u' ')
      blank_ = text;
    else
      out_ += std::exchange(blank_, {}) + breakable(text).toHtmlEscaped();
  }

  const markup::Tree& tree_;
  QString out_, styles_, blank_;
  QStringList pictures_;
  bool standardLines_ = false;
  int depth_ = 0, tables_ = 0;
};

}  // namespace

std::optional<RichText> richText(const QByteArray& html) {
  const markup::Tree tree(withTypedLines(html), markup::Encoding::Windows1252);
  if (!tree.isWhole()) return {};
  return Writer(tree).write();
}

}  // namespace web
