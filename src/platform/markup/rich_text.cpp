#include "platform/markup/rich_text.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringBuilder>
#include <QStringList>
#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

#include "platform/markup/tree.h"

namespace markup {

using namespace Qt::StringLiterals;

namespace {

constexpr double kPointsToUnit = 0.75;  // a unit is a pixel at 96 to an inch
constexpr double kLine = 1.164;         // height of a line of the plain font, in sizes of it
constexpr double kPlainSize = 16;
constexpr qsizetype kLongestWord = 40;  // letters
constexpr unsigned kMostColumns = 100;
constexpr int kLargest = 3000;     // units
constexpr int kDeepest = 100;      // elements in each other
constexpr int kDeepestTables = 4;  // each more makes laying out twice as slow
constexpr int kMostClasses = 16;   // the toolkit compares each element with all of them

/// Sizes of <font size=1> to <font size=7>, in units.
constexpr std::array<double, 7> kFontSizes{10, 13, 16, 18, 24, 32, 48};

/// Elements that the toolkit shows by the same name, and by another one. What is in others is shown alone, or
/// not at all.
const QSet<TidyTagId> kShown{
    TidyTag_B,   TidyTag_STRONG, TidyTag_I,   TidyTag_EM,   TidyTag_U,         TidyTag_S,   TidyTag_SMALL,
    TidyTag_BIG, TidyTag_SUB,    TidyTag_SUP, TidyTag_H1,   TidyTag_H2,        TidyTag_H3,  TidyTag_H4,
    TidyTag_H5,  TidyTag_H6,     TidyTag_UL,  TidyTag_OL,   TidyTag_LI,        TidyTag_PRE, TidyTag_HR,
    TidyTag_BR,  TidyTag_A,      TidyTag_DIV, TidyTag_SPAN, TidyTag_BLOCKQUOTE};
const QHash<TidyTagId, QString> kShownAs{{TidyTag_FONT, u"span"_s},
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

unsigned countOf(TidyNode cell, TidyAttrId name) {
  return std::clamp(attribute(cell, name).toUInt(), 1U, kMostColumns);
}

QString number(double value) { return QString::number(value, 'f', 2); }

QString points(double units) { return number(units * kPointsToUnit) + u"pt"_s; }

/// Sizes of a style sheet in points: the toolkit takes pixels whole.
QString inPoints(QString styles) {
  if (styles.isEmpty()) return styles;
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
  const QString style = attribute(node, TidyAttr_STYLE);
  if (style.isEmpty()) return around;
  const auto found = size.match(style);
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

bool isTag(TidyNode one, TidyTagId tag) { return tidyNodeGetId(one) == tag; }

template <typename Is>
bool holds(TidyNode one, const Is& is) {
  if (is(one)) return true;
  for (TidyNode child = tidyGetChild(one); child != nullptr; child = tidyGetNext(child))
    if (holds(child, is)) return true;
  return false;
}

bool holdsPicture(TidyNode one) {
  return holds(one, [](TidyNode node) { return isTag(node, TidyTag_IMG); });
}

std::vector<TidyNode> rowsOf(TidyNode table) {
  std::vector<TidyNode> rows;
  for (const TidyNode child : childrenOf(table)) {
    if (isTag(child, TidyTag_TR)) rows.push_back(child);
    if (!isTag(child, TidyTag_TBODY) && !isTag(child, TidyTag_THEAD) && !isTag(child, TidyTag_TFOOT))
      continue;
    std::ranges::copy(rowsOf(child), std::back_inserter(rows));
  }
  return rows;
}

/// As the first cell says that stands in that column alone. Hundreds of a table as wide as a number are
/// numbers here, since the toolkit gives a column that holds more than its hundreds no room; the widest
/// column takes what the others leave. Where hundreds leave nothing for a column, all are as wide as what
/// they hold.
std::vector<Length> columnsOf(TidyNode table, const std::vector<TidyNode>& rows) {
  std::vector<Length> columns;
  for (const TidyNode row : rows) {
    std::size_t column = 0;
    for (const TidyNode cell : childrenOf(row)) {
      const std::size_t end = column + countOf(cell, TidyAttr_COLSPAN);
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

class Writer {
 public:
  explicit Writer(const Tree& tree) : tree_(tree) {}

  QString write() {
    writeChildren(tree_.root(), {});
    return u"<html><head><style>"_s % classes_ % u"</style><style>"_s % inPoints(styles_).remove(u'<') %
           u"</style></head><body>"_s % out_ % u"</body></html>"_s;
  }

 private:
  /// What an element takes over from those around it.
  struct Around {
    double fontSize = kPlainSize;
    QString align, style;         ///< of the row
    std::vector<Length> columns;  ///< widths of the table's
    double height = 0;            ///< of a cell of a table with one row
  };

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
      begin(u"img"_s, {{u"src"_s, attribute(one, TidyAttr_SRC)},
                       {u"width"_s, written(lengthOf(one, TidyAttr_WIDTH), false)},
                       {u"height"_s, written(lengthOf(one, TidyAttr_HEIGHT), false)}});
    else if (tag == TidyTag_P && isEmpty(one))
      writeGap(kPlainSize);
    else if (!kSilent.contains(tag))
      writeElement(one, around);
  }

  /// A blank that the library has taken out of an element is as wide as one of the text after it.
  void writeText(const QString& text) {
    if (text == u' ')
      blank_ = text;
    else
      out_ += std::exchange(blank_, {}) + breakable(text).toHtmlEscaped();
  }

  [[nodiscard]] bool isEmpty(TidyNode one) const {
    return !holds(one, [this](TidyNode node) {
      return isTag(node, TidyTag_IMG) || isTag(node, TidyTag_TABLE) ||
             (tidyNodeIsText(node) && tree_.textOf(node) != u' ');
    });
  }

  /// Codes and numbers stand in one line, though the toolkit would break them at some signs.
  [[nodiscard]] bool isWord(TidyNode one) const {
    return !holds(one, [this](TidyNode node) {
      const QString text = tidyNodeIsText(node) ? tree_.textOf(node).trimmed() : QString();
      return isTag(node, TidyTag_TABLE) || text.size() > kLongestWord || text.contains(u' ');
    });
  }

  static QString written(const Length& length, bool percents = true) {
    if (length.value == 0 || (length.percent && !percents)) return {};
    return QString::number(length.value) + (length.percent ? u"%"_s : QString());
  }

  static QString spanOf(TidyNode cell, TidyAttrId name) {
    const unsigned count = countOf(cell, name);
    return count == 1 ? QString() : QString::number(count);
  }

  using Attribute = std::pair<QString, QString>;

  /// An element's beginning, with those attributes that say something.
  void begin(const QString& tag, std::initializer_list<Attribute> attributes) {
    out_ += u'<' % tag;
    for (const auto& [name, value] : attributes)
      if (!value.isEmpty()) out_ += u' ' % name % u"=\""_s % value.toHtmlEscaped() % u'"';
    out_ += u'>';
  }

  /// A style that many elements share is a class, which the toolkit reads once. What the document itself says
  /// of an element (`own`) goes before other attributes and stays a style.
  Attribute styleAttribute(const QString& tag, const QString& style, bool own) {
    if (style.isEmpty() || own) return {u"style"_s, style};
    const QString rule = tag % u'{' % style % u'}';
    qsizetype at = rules_.indexOf(rule);
    if (at < 0 && rules_.size() == kMostClasses) return {u"style"_s, style};
    if (at < 0) {
      at = rules_.size();
      rules_ << rule;
      classes_ += tag % u"._"_s % QString::number(at) % u'{' % style % u'}';
    }
    return {u"class"_s, u'_' % QString::number(at)};
  }

  void writeGap(double height) {
    out_ += u"<p style=\"margin:0;font-size:1pt;line-height:%1px\">&nbsp;</p>"_s.arg(number(height));
  }

  void writeElement(TidyNode one, const Around& around) {
    const TidyTagId id = tidyNodeGetId(one);
    const bool shown = (kShown.contains(id) || kShownAs.contains(id)) && depth_ < kDeepest;
    if (!shown) return writeChildren(one, around);
    if (id == TidyTag_FONT && tidyGetChild(one) == nullptr) return;  // what crossed tags leave
    const QString tag = kShownAs.value(id, QString::fromLatin1(tidyNodeGetName(one)));
    const QString own = styleOf(one), ofClass = attribute(one, TidyAttr_CLASS);
    begin(tag, {styleAttribute(tag, (id == TidyTag_FONT ? fontStyle(one) : QString()) + own,
                               id != TidyTag_FONT || !own.isEmpty() || !ofClass.isEmpty()),
                {u"class"_s, ofClass},
                {u"align"_s, attribute(one, TidyAttr_ALIGN).toLower()},
                {u"href"_s, attribute(one, TidyAttr_HREF)}});
    ++depth_;
    writeChildren(one, around);
    --depth_;
    if (id != TidyTag_BR && id != TidyTag_HR) out_ += u"</"_s + tag.section(u' ', 0, 0) + u'>';
  }

  void writeTable(TidyNode table, Around around) {
    const QString border = attribute(table, TidyAttr_BORDER), color = attribute(table, TidyAttr_BORDERCOLOR);
    const bool bordered = tidyAttrGetById(table, TidyAttr_BORDER) != nullptr && border != u"0";
    const std::vector<TidyNode> rows = rowsOf(table);
    around.fontSize = fontSizeOf(table, around.fontSize);
    around.columns = columnsOf(table, rows);
    around.height = rows.size() == 1 ? lengthOf(table, TidyAttr_HEIGHT).value : 0;
    QString style = styleOf(table);
    if (bordered)
      style += u";border-collapse:collapse;border-style:solid;border-color:"_s +
               (color.isEmpty() ? u"#808080"_s : color);
    // The toolkit leaves some dots above and below a table's lines: two that follow each other share one.
    if (bordered && out_.endsWith(u"</table>")) style += u";margin-top:-4px"_s;
    // Without hundreds a table with pictures may need more than its width.
    const bool wide = around.columns.empty() && holdsPicture(table);
    begin(u"table"_s,
          {{u"border"_s, bordered ? u"1"_s : u"0"_s},
           {u"cellpadding"_s, QString::number(lengthOf(table, TidyAttr_CELLPADDING, 1).value)},
           {u"cellspacing"_s, QString::number(bordered ? 0 : lengthOf(table, TidyAttr_CELLSPACING, 2).value)},
           {u"width"_s, wide ? QString() : written(lengthOf(table, TidyAttr_WIDTH))},
           {u"bgcolor"_s, attribute(table, TidyAttr_BGCOLOR)},
           {u"align"_s, attribute(table, TidyAttr_ALIGN)},
           {u"style"_s, style}});
    ++tables_;
    for (const TidyNode row : rows) writeRow(row, around);
    --tables_;
    out_ += u"</table>"_s;
  }

  void writeRow(TidyNode row, Around around) {
    around.align = attribute(row, TidyAttr_ALIGN);
    around.style = styleOf(row);
    if (!around.style.isEmpty()) around.style += u';';
    around.fontSize = fontSizeOf(row, around.fontSize);
    around.height = std::max(around.height, lengthOf(row, TidyAttr_HEIGHT).value);
    begin(u"tr"_s, {{u"bgcolor"_s, attribute(row, TidyAttr_BGCOLOR)}});
    std::size_t column = 0;
    for (const TidyNode cell : childrenOf(row)) {
      const std::size_t span = countOf(cell, TidyAttr_COLSPAN);
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
    const QString align = attribute(cell, TidyAttr_ALIGN), valign = attribute(cell, TidyAttr_VALIGN);
    const double height = std::max(around.height, lengthOf(cell, TidyAttr_HEIGHT).value);
    const double line = kLine * around.fontSize;
    QString style = around.style + styleOf(cell);
    const bool own = !style.isEmpty();
    if (standardLines_) style += u";line-height:"_s + number(line) + u"px"_s;
    if (height > line && !empty)
      style += u";padding-top:%1px;padding-bottom:%1px"_s.arg(number((height - line) / 2));
    if (isWord(cell)) style += u";white-space:nowrap"_s;
    const QString tag = isTag(cell, TidyTag_TH) ? u"th"_s : u"td"_s;
    begin(tag, {{u"width"_s, written(width)},
                {u"colspan"_s, spanOf(cell, TidyAttr_COLSPAN)},
                {u"rowspan"_s, spanOf(cell, TidyAttr_ROWSPAN)},
                {u"bgcolor"_s, attribute(cell, TidyAttr_BGCOLOR)},
                {u"align"_s, (align.isEmpty() ? around.align : align).toLower()},
                {u"valign"_s, valign.isEmpty() ? u"middle"_s : valign.toLower()},
                styleAttribute(tag, style, own)});
    if (empty)
      writeGap(height);
    else
      writeChildren(cell, around);
    out_ += u"</"_s + tag + u'>';
  }

  const Tree& tree_;
  QString out_, styles_, classes_, blank_;
  QStringList rules_;  // of the classes
  bool standardLines_ = false;
  int depth_ = 0, tables_ = 0;
};

}  // namespace

std::optional<QString> richText(const QByteArray& html) {
  const Tree tree(html, Encoding::Windows1252);
  if (!tree.isWhole()) return {};
  return Writer(tree).write();
}

}  // namespace markup
