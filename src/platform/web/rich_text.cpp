#include "platform/web/rich_text.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextDocumentFragment>
#include <algorithm>
#include <array>
#include <numeric>

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kPointsToUnit = 0.75;  // a unit is a pixel at 96 to an inch
constexpr double kLine = 1.164;         // height of a line of the plain font, in sizes of it
constexpr double kPlainSize = 16;
constexpr qsizetype kLongestWord = 40;  // letters
constexpr std::size_t kMostColumns = 100;
constexpr int kLargest = 3000;  // units

/// Sizes of <font size=1> to <font size=7>, in units.
constexpr std::array<double, 7> kFontSizes{10, 13, 16, 18, 24, 32, 48};

/// What an element becomes; empty: what it holds alone is shown.
const QSet<QString> kPlain{u"b"_s,     u"strong"_s, u"i"_s,   u"em"_s,  u"u"_s,         u"s"_s,
                           u"small"_s, u"big"_s,    u"sub"_s, u"sup"_s, u"h1"_s,        u"h2"_s,
                           u"h3"_s,    u"h4"_s,     u"h5"_s,  u"h6"_s,  u"ul"_s,        u"ol"_s,
                           u"li"_s,    u"pre"_s,    u"hr"_s,  u"br"_s,  u"blockquote"_s};

/// A length as it is written ("30", "30px", "30%"): the number and whether it is of a hundred.
struct Length {
  double value = 0;
  bool percent = false;
};
Length lengthOf(const QString& text) {
  qsizetype digits = 0;
  while (digits < text.size() && (text[digits].isDigit() || text[digits] == u'.')) ++digits;
  const bool percent = digits < text.size() && text[digits] == u'%';
  return {std::clamp(text.first(digits).toDouble(), 0.0, percent ? 100.0 : double(kLargest)), percent};
}

int countOf(const QString& text) { return std::clamp(text.toInt(), 1, static_cast<int>(kMostColumns)); }

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

QString quoted(QString text) { return u'"' + text.replace(u'"', u"&quot;"_s) + u'"'; }

class Writer {
 public:
  explicit Writer(const HtmlTree& tree) : tree_(tree) {}

  RichText write() {
    out_ = u"<html><head><style>"_s + inPoints(tree_.styles).remove(u'<') + u"</style></head><body>"_s;
    writeChildren(tree_.nodes.front(), {});
    return {out_ + u"</body></html>"_s, pictures_};
  }

 private:
  /// What an element takes over from those around it.
  struct Around {
    double fontSize = kPlainSize;
    QString align;                ///< of the row
    std::vector<Length> columns;  ///< widths of the table's
    double height = 0;            ///< of a cell of a table with one row
  };

  [[nodiscard]] const HtmlNode& node(int index) const { return tree_.nodes[static_cast<std::size_t>(index)]; }

  void writeChildren(const HtmlNode& parent, const Around& around) {
    for (const int child : parent.children) writeNode(node(child), around);
  }

  void writeNode(const HtmlNode& one, const Around& around) {
    if (one.tag.isEmpty()) return writeText(one.text);
    if (one.tag == u"table") return writeTable(one, around);
    if (one.tag == u"img") return writePicture(one);
    if (one.tag == u"p" && isEmpty(one)) return writeGap(kPlainSize);
    writeElement(one, around);
  }

  [[nodiscard]] bool isEmpty(const HtmlNode& one) const {
    return one.tag != u"img" && one.tag != u"table" && one.text.trimmed().isEmpty() &&
           std::all_of(one.children.begin(), one.children.end(),
                       [this](int child) { return isEmpty(node(child)); });
  }

  /// Codes and numbers stand in one line, though the toolkit would break them at some signs.
  [[nodiscard]] bool isWord(const HtmlNode& one) const {
    const QString text = one.text.trimmed();
    return one.tag != u"table" && text.size() <= kLongestWord &&
           std::ranges::none_of(text, [](QChar sign) { return sign.isSpace(); }) &&
           std::ranges::all_of(one.children, [this](int child) { return isWord(node(child)); });
  }

  [[nodiscard]] bool holdsPicture(const HtmlNode& one) const {
    return one.tag == u"img" ||
           std::ranges::any_of(one.children, [this](int child) { return holdsPicture(node(child)); });
  }

  void writeGap(double height) {
    out_ += u"<p style=\"margin:0;font-size:1pt;line-height:%1px\">&nbsp;</p>"_s.arg(number(height));
  }

  static QString shared(const HtmlNode& one) {
    QString written;
    const QString style = inPoints(one.attribute(u"style")), align = one.attribute(u"align");
    if (one.has(u"class")) written += u" class="_s + quoted(one.attribute(u"class"));
    if (!style.isEmpty()) written += u" style="_s + quoted(style);
    if (!align.isEmpty()) written += u" align="_s + quoted(align.toLower());
    return written;
  }

  void writeElement(const HtmlNode& one, const Around& around) {
    QString tag = one.tag, attributes = shared(one);
    if (tag == u"font") {
      tag = u"span"_s;
      attributes = u" style="_s + quoted(fontStyle(one));
    } else if (tag == u"a") {
      if (one.has(u"href")) attributes += u" href="_s + quoted(one.attribute(u"href"));
    } else if (tag == u"center") {
      tag = u"div"_s;
      attributes = u" align=\"center\""_s;
    } else if (tag == u"p") {
      attributes += u" style=\"margin-top:16px;margin-bottom:16px\""_s;
    } else if (tag != u"span" && tag != u"div" && !kPlain.contains(tag)) {
      return;
    }
    out_ += u'<' + tag + attributes + u'>';
    writeChildren(one, around);
    if (tag != u"br" && tag != u"hr") out_ += u"</"_s + tag + u'>';
  }

  static QString fontStyle(const HtmlNode& one) {
    QString style;
    const QString size = one.attribute(u"size"), face = one.attribute(u"face"),
                  color = one.attribute(u"color");
    if (!size.isEmpty()) {
      const int step = size.startsWith(u'+') || size.startsWith(u'-') ? 3 + size.toInt() : size.toInt();
      style +=
          u"font-size:"_s + points(kFontSizes[static_cast<std::size_t>(std::clamp(step, 1, 7) - 1)]) + u';';
    }
    if (!face.isEmpty()) style += u"font-family:"_s + face + u';';
    if (!color.isEmpty()) style += u"color:"_s + color + u';';
    return style + inPoints(one.attribute(u"style"));
  }

  void writePicture(const HtmlNode& one) {
    QString address = one.attribute(u"src");
    if (address.contains(u'&'))
      address = QTextDocumentFragment::fromHtml(address.replace(u'<', u"&lt;"_s)).toPlainText();
    out_ += u"<img src=\"%1\""_s.arg(pictures_.size());
    pictures_ << address;
    for (const auto* side : {u"width", u"height"}) {
      const Length length = lengthOf(one.attribute(side));
      if (length.value > 0 && !length.percent)
        out_ += u' ' + QString::fromUtf16(side) + u'=' + number(length.value);
    }
    out_ += u'>';
  }

  void writeTable(const HtmlNode& table, Around around) {
    // The toolkit leaves some dots above and below a table's lines: two that follow each other share one.
    const bool follows = out_.endsWith(u"</table>");
    const bool bordered = table.has(u"border") && table.attribute(u"border") != u"0";
    const double padding = table.has(u"cellpadding") ? lengthOf(table.attribute(u"cellpadding")).value : 1;
    around.fontSize = fontSizeOf(table, around.fontSize);
    around.columns = columnsOf(table);
    around.height = table.children.size() == 1 ? lengthOf(table.attribute(u"height")).value : 0;
    const QString color = table.has(u"bordercolor") ? table.attribute(u"bordercolor") : u"#808080"_s;
    const double spacing = table.has(u"cellspacing") ? lengthOf(table.attribute(u"cellspacing")).value : 2;
    out_ += u"<table cellpadding=\"%1\""_s.arg(padding);
    out_ += bordered ? u" border=1 cellspacing=0"_s : u" border=0 cellspacing=%1"_s.arg(spacing);
    // Without hundreds a table with pictures may need more than its width.
    if (!around.columns.empty() || !holdsPicture(table)) out_ += written(lengthOf(table.attribute(u"width")));
    for (const auto* name : {u"bgcolor", u"align"})
      if (table.has(name)) out_ += u' ' + QString::fromUtf16(name) + u'=' + quoted(table.attribute(name));
    out_ += u" style="_s +
            quoted(inPoints(table.attribute(u"style")) +
                   (bordered ? u";border-collapse:collapse;border-style:solid;border-color:"_s + color
                             : QString()) +
                   (bordered && follows ? u";margin-top:-4px"_s : QString())) +
            u'>';
    for (const int row : table.children)
      if (node(row).tag == u"tr") writeRow(node(row), around);
    out_ += u"</table>"_s;
  }

  static QString written(const Length& width) {
    return width.value > 0 ? u" width=\"%1%2\""_s.arg(width.value).arg(width.percent ? u"%"_s : QString())
                           : QString();
  }

  /// As the first cell says that stands in that column alone. Hundreds of a table as wide as a number are
  /// numbers here, since the toolkit gives a column that holds more than its hundreds no room; the widest
  /// column takes what the others leave. Where hundreds leave nothing for a column, all are as wide as what
  /// they hold.
  [[nodiscard]] std::vector<Length> columnsOf(const HtmlNode& table) const {
    std::vector<Length> columns;
    for (const int row : table.children) {
      std::size_t column = 0;
      for (const int child : node(row).children) {
        const std::size_t end = column + spanOf(node(child));
        if (end > kMostColumns) break;
        columns.resize(std::max(columns.size(), end));
        if (end == column + 1 && columns[column].value == 0)
          columns[column] = lengthOf(node(child).attribute(u"width"));
        column = end;
      }
    }
    const auto percents = [](double sum, const Length& one) { return sum + (one.percent ? one.value : 0); };
    const double sum = std::accumulate(columns.begin(), columns.end(), 0.0, percents);
    const bool open = std::ranges::find(columns, 0.0, &Length::value) != columns.end();
    if (sum > (open ? 99 : 101)) return {};
    const Length width = lengthOf(table.attribute(u"width"));
    if (width.value == 0 || width.percent || columns.empty()) return columns;
    // A picture beside that many columns needs more than its hundreds.
    if (sum > 99 && columns.size() > 5 && holdsPicture(table)) return {};
    if (!open) *std::ranges::max_element(columns, {}, &Length::value) = {};
    for (Length& one : columns)
      if (one.percent) one = {one.value * width.value / 100, false};
    return columns;
  }

  static std::size_t spanOf(const HtmlNode& cell) {
    return static_cast<std::size_t>(countOf(cell.attribute(u"colspan")));
  }

  void writeRow(const HtmlNode& row, Around around) {
    around.align = row.attribute(u"align");
    around.fontSize = fontSizeOf(row, around.fontSize);
    around.height = std::max(around.height, lengthOf(row.attribute(u"height")).value);
    out_ += u"<tr"_s;
    if (row.has(u"bgcolor")) out_ += u" bgcolor="_s + quoted(row.attribute(u"bgcolor"));
    out_ += u'>';
    std::size_t column = 0;
    for (const int child : row.children) {
      const std::size_t span = spanOf(node(child));
      if (column + span > kMostColumns) {
        out_ += u"</tr><tr>"_s;
        column = 0;
      }
      writeCell(node(child), row, around,
                span == 1 && column < around.columns.size() ? around.columns[column] : Length{});
      column += span;
    }
    out_ += u"</tr>"_s;
  }

  void writeCell(const HtmlNode& cell, const HtmlNode& row, Around around, const Length& width) {
    around.fontSize = fontSizeOf(cell, around.fontSize);
    out_ += u'<' + cell.tag;
    out_ += written(width);
    for (const auto* name : {u"colspan", u"rowspan"})
      if (cell.has(name))
        out_ += u' ' + QString::fromUtf16(name) + u'=' + QString::number(countOf(cell.attribute(name)));
    if (cell.has(u"bgcolor")) out_ += u" bgcolor="_s + quoted(cell.attribute(u"bgcolor"));
    const QString align = cell.has(u"align") ? cell.attribute(u"align") : around.align;
    if (!align.isEmpty()) out_ += u" align="_s + quoted(align.toLower());
    const QString valign = cell.has(u"valign") ? cell.attribute(u"valign") : u"middle"_s;
    out_ += u" valign="_s + quoted(valign.toLower());
    const double height = std::max(around.height, lengthOf(cell.attribute(u"height")).value);
    const double line = kLine * around.fontSize;
    QString style = inPoints(row.attribute(u"style")) + u';' + inPoints(cell.attribute(u"style"));
    if (tree_.standardLines) style += u";line-height:"_s + number(line) + u"px"_s;
    if (height > line && !isEmpty(cell))
      style += u";padding-top:%1px;padding-bottom:%1px"_s.arg(number((height - line) / 2));
    if (isWord(cell)) style += u";white-space:nowrap"_s;
    out_ += u" style="_s + quoted(style) + u'>';
    if (isEmpty(cell))
      writeGap(height);
    else
      writeChildren(cell, around);
    out_ += u"</"_s + cell.tag + u'>';
  }

  static double fontSizeOf(const HtmlNode& one, double around) {
    static const QRegularExpression size(uR"(font-size:\s*([\d.]+)(pt|px))"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const auto found = size.match(one.attribute(u"style"));
    if (!found.hasMatch()) return around;
    const double value = found.captured(1).toDouble();
    return found.captured(2).toLower() == u"pt" ? value / kPointsToUnit : value;
  }

  void writeText(const QString& text) {
    if (text.trimmed().isEmpty() && out_.endsWith(u"</table>")) return;
    static const QRegularExpression openReference(uR"(&([a-zA-Z]{2,8}|#\d{1,7})(?![a-zA-Z0-9;]))"_s);
    QString shown = text;
    shown.replace(openReference, u"&\\1;"_s).replace(u'>', u"&gt;"_s);
    out_ += breakable(withTypedLines(shown));
  }

  /// Line ends between two texts were typed. The document's own texts go on further in.
  static QString withTypedLines(const QString& text) {
    constexpr int kIndent = 6;
    static const QRegularExpression gap(uR"((?<=\S)\s*[\r\n]\s*(?=\S))"_s);
    QString made;
    qsizetype done = 0;
    for (auto gaps = gap.globalMatch(text); gaps.hasNext();) {
      const auto found = gaps.next();
      const QString lines = found.captured().replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
      if (lines.size() - lines.lastIndexOf(u'\n') > kIndent) continue;
      made += QStringView(text).sliced(done, found.capturedStart() - done);
      made += u"<br>"_s.repeated(lines.count(u'\n'));
      done = found.capturedEnd();
    }
    made += QStringView(text).sliced(done);
    return made;
  }

  static QString breakable(const QString& text) {
    if (text.size() <= kLongestWord) return text;
    QString made;
    qsizetype word = 0;
    bool reference = false;
    for (const QChar one : text) {
      if (one == u'&') reference = true;
      if (one.isSpace() || one == u'<')
        word = 0;
      else if (!reference && ++word > kLongestWord) {
        made += kBreakHere;
        word = 1;
      }
      if (one == u';') reference = false;
      made += one;
    }
    return made;
  }

  const HtmlTree& tree_;
  QString out_;
  QStringList pictures_;
};

}  // namespace

RichText richText(const HtmlTree& tree) { return Writer(tree).write(); }

}  // namespace web
