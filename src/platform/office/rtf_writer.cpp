#include "platform/office/rtf_writer.h"

#include <QStringList>
#include <cmath>

namespace office {
namespace {

constexpr double kTwips = 20;  // to a point

QByteArray number(double value) { return QByteArray::number(std::lround(value)); }

class Writer {
 public:
  explicit Writer(const Document& document) : document_(document) {}

  QByteArray write() {
    for (const Block& block : document_.blocks) {
      if (const auto* table = std::get_if<Table>(&block))
        writeTable(*table);
      else
        writeParagraph(std::get<Paragraph>(block), "\\pard", "\\par\n");
    }
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

  QByteArray fontWords(const Font& font) {
    return "\\f" + QByteArray::number(fontIndex(font.name)) + "\\fs" + number(font.size * 2) +
           (font.bold ? "\\b" : "\\b0");
  }

  QByteArray head() const {
    QByteArray out = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1046{\\fonttbl";
    for (qsizetype i = 0; i < fonts_.size(); ++i)
      out += "{\\f" + QByteArray::number(i) + "\\fnil " + escaped(fonts_[i]) + ";}";
    out += "}\n{\\info{\\title " + escaped(document_.title) + "}}\n";
    out += "\\paperw" + number(document_.pageWidth * kTwips) + "\\paperh" +
           number(document_.pageHeight * kTwips);
    out += "\\margl" + number(document_.leftMargin * kTwips) + "\\margr" +
           number(document_.rightMargin * kTwips);
    out += "\\margt" + number(document_.topMargin * kTwips) + "\\margb" +
           number(document_.bottomMargin * kTwips);
    return out + "\n";
  }

  void writePicture(const Picture& picture) {
    body_ +=
        "{\\pict\\picwgoal" + number(picture.width * kTwips) + "\\pichgoal" + number(picture.height * kTwips);
    body_ += picture.png ? "\\pngblip\n" : "\\jpegblip\n";
    const QByteArray hex = picture.bytes.toHex();
    for (qsizetype at = 0; at < hex.size(); at += 120) body_ += hex.mid(at, 120) + '\n';
    body_ += "}";
  }

  void writeParagraph(const Paragraph& paragraph, const QByteArray& start, const QByteArray& end) {
    body_ += start;
    body_ += paragraph.alignment & Qt::AlignHCenter ? "\\qc"
             : paragraph.alignment & Qt::AlignRight ? "\\qr"
                                                    : "\\ql";
    if (paragraph.keepWithNext) body_ += "\\keepn";
    body_ += fontWords(paragraph.font) + " ";
    for (const auto& part : paragraph.content) {
      if (const auto* run = std::get_if<Run>(&part))
        body_ += "{" + fontWords(run->font) + " " + escaped(run->text) + "}";
      else
        writePicture(std::get<Picture>(part));
    }
    body_ += end;
  }

  void writeTable(const Table& table) {
    QByteArray layout = "\\trgaph108\\trleft-108\\trkeep\\trpaddt45\\trpaddft3\\trpaddb45\\trpaddfb3";
    double right = -108 / kTwips;
    for (const double width : table.widths) {
      right += width;
      if (table.grid)
        for (const char* side : {"t", "l", "b", "r"})
          layout += QByteArray("\\clbrdr") + side + "\\brdrs\\brdrw10";
      layout += "\\cellx" + number(right * kTwips);
    }
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      body_ += (row < table.headings ? "\\trowd\\trhdr" : "\\trowd") + layout + "\n";
      for (const Cell& cell : table.rows[row])
        for (std::size_t i = 0; i < cell.paragraphs.size(); ++i)
          writeParagraph(cell.paragraphs[i], "\\pard\\intbl",
                         i + 1 < cell.paragraphs.size() ? "\\par\n" : "\\cell\n");
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
