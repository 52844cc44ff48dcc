#include <QStringList>
#include <QUrl>
#include <cmath>
#include <utility>

#include "platform/office/word_processor.h"
#include "platform/paper/text_pieces.h"

namespace office {
namespace {

constexpr double kTwips = 20;  // to a point

QByteArray number(double value) { return QByteArray::number(std::lround(value)); }

class Writer {
 public:
  explicit Writer(const Document& document) : document_(document) {}

  QByteArray write() {
    paper::forEachPart(
        document_.text, [this](const QTextBlock& block) { writeBlock(block, "\\pard", "\\par\n"); },
        [this](const QTextTable& table) { writeTable(table); });
    return head() + body_ + "}\n";
  }

 private:
  static QByteArray escaped(const QString& text) {
    QByteArray out;
    for (const QChar one : text) {
      const char16_t code = one.unicode();
      if (code == u'\\' || code == u'{' || code == u'}')
        out.append('\\').append(static_cast<char>(code));
      else if (code == u'\t')
        out += "\\tab ";
      else if (code >= 0x20 && code < 0x80)
        out.append(static_cast<char>(code));
      else if (code >= 0x80)  // a signed 16-bit number, and a "?" for readers that know no Unicode
        out += "\\u" + QByteArray::number(static_cast<qint16>(code)) + "?";
    }
    return out;
  }

  qsizetype fontIndex(const QString& name) {
    const qsizetype known = fonts_.indexOf(name);
    if (known >= 0) return known;
    fonts_ << name;
    return fonts_.size() - 1;
  }

  QByteArray fontWords(const QTextCharFormat& font) {
    return "\\f" + QByteArray::number(fontIndex(font.fontFamilies().toStringList().value(0))) + "\\fs" +
           number(font.fontPointSize() * 2) + (font.fontWeight() == QFont::Bold ? "\\b" : "\\b0");
  }

  QByteArray head() const {
    QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1046{\\fonttbl";
    for (qsizetype i = 0; i < fonts_.size(); ++i)
      out += "{\\f" + QByteArray::number(i) + "\\fnil " + escaped(fonts_[i]) + ";}";
    out += "}\n{\\info{\\title " + escaped(document_.title) + "}}\n";
    for (const auto& [word, points] : {std::pair("\\paperw", paper::kPageWidth),
                                       {"\\paperh", paper::kPageHeight},
                                       {"\\margl", kMargins.left()},
                                       {"\\margr", kMargins.right()},
                                       {"\\margt", kMargins.top()},
                                       {"\\margb", kMargins.bottom()}})
      out += word + number(points * kTwips);
    return out + "\n";
  }

  void writePicture(const QTextImageFormat& picture) {
    const QByteArray bytes =
        document_.text.resource(QTextDocument::ImageResource, QUrl(picture.name())).toByteArray();
    body_ += "{\\pict\\picwgoal" + number(picture.width() / kDots * kTwips) + "\\pichgoal" +
             number(picture.height() / kDots * kTwips);
    body_ += bytes.startsWith("\x89PNG") ? "\\pngblip\n" : "\\jpegblip\n";
    const QByteArray hex = bytes.toHex();
    for (qsizetype at = 0; at < hex.size(); at += 120) body_ += hex.mid(at, 120) + '\n';
    body_ += "}";
  }

  void writeBlock(const QTextBlock& block, const QByteArray& start, const QByteArray& end) {
    const Qt::Alignment alignment = block.blockFormat().alignment();
    body_ += start;
    body_ += alignment & Qt::AlignHCenter ? "\\qc" : alignment & Qt::AlignRight ? "\\qr" : "\\ql";
    if (block.blockFormat().boolProperty(paper::kKeepWithNext)) body_ += "\\keepn";
    body_ += fontWords(block.charFormat()) + " ";
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      if (format.isImageFormat())
        writePicture(format.toImageFormat());
      else
        body_ += "{" + fontWords(format) + " " + escaped(at.fragment().text()) + "}";
    }
    body_ += end;
  }

  void writeTable(const QTextTable& table) {
    const QTextTableFormat format = table.format();
    QByteArray layout = "\\trgaph108\\trleft-108\\trkeep\\trpaddt45\\trpaddft3\\trpaddb45\\trpaddfb3";
    double right = -108 / kTwips;
    for (const QTextLength& width : format.columnWidthConstraints()) {
      right += width.value(kTextWidth);
      if (format.border() > 0)
        for (const char* side : {"t", "l", "b", "r"})
          layout += QByteArray("\\clbrdr") + side + "\\brdrs\\brdrw10";
      layout += "\\cellx" + number(right * kTwips);
    }
    for (int row = 0; row < table.rows(); ++row) {
      body_ += (row < format.headerRowCount() ? "\\trowd\\trhdr" : "\\trowd") + layout + "\n";
      for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        for (auto at = cell.begin(); !at.atEnd();) {
          const QTextBlock block = at.currentBlock();
          writeBlock(block, "\\pard\\intbl", (++at).atEnd() ? "\\cell\n" : "\\par\n");
        }
      }
      body_ += "\\row\n";
    }
    body_ += "\\pard";
  }

  const Document& document_;
  QStringList fonts_;
  QByteArray body_;
};

}  // namespace

QByteArray toRtf(const Document& document) { return Writer(document).write(); }

}  // namespace office
