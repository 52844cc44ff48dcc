#include "platform/web/html_view.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextOption>

#include "platform/markup/rich_text.h"
#include "platform/paper/printer.h"
#include "platform/paper/text_pieces.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kWidth = 800;     // dots of the layout, as wide as documents are made
constexpr double kPlainSize = 12;  // points
constexpr QMarginsF kPaperMargins(28.35, 28.35, 28.35, 42.5);  // points: 10 mm, 15 below
constexpr double kPrintable = 595.3 - 2 * 28.35;               // points

/// The page as the toolkit shows it, without the frame that it draws around what has the focus.
class PageItem : public QGraphicsTextItem {
 public:
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
    QStyleOptionGraphicsItem plain = *option;
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    QGraphicsTextItem::paint(painter, &plain, widget);
  }
};

QString withoutBreaks(QString text) { return text.remove(markup::kBreakHere).replace(QChar::Nbsp, u' '); }

}  // namespace

HtmlView::HtmlView(const QString& richText, const QString& folder, const PictureFolders& folders,
                   QWidget* parent)
    : DocumentView(1.0, parent), page_(new PageItem) {
  QFont font;
  font.setFamilies({u"DejaVu Sans"_s, u"Verdana"_s});
  font.setPointSizeF(kPlainSize);
  font.setHintingPreference(QFont::PreferNoHinting);
  document_.setDefaultFont(font);
  paper::layOutForAnyDevice(document_);
  QTextOption option = document_.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);  // columns are as wide as their words
  document_.setDefaultTextOption(option);
  document_.setHtml(richText);
  pictures_ = new Pictures(document_, folder, folders);
  document_.setTextWidth(kWidth);  // laid out from here on
  const auto layOut = [this] { setDocumentSize(document_.size()); };
  connect(pictures_, &Pictures::complete, this, [this, layOut] {
    document_.markContentsDirty(0, document_.characterCount());  // places take the pictures' sizes
    layOut();
  });

  page_->setFlag(QGraphicsItem::ItemUsesExtendedStyleOption);  // it paints only what is in sight
  page_->setDocument(&document_);
  page_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
  page_->setDefaultTextColor(Qt::black);
  connect(page_, &QGraphicsTextItem::linkActivated, this,
          [folder, folders](const QString& link) { openLink(addressOf(link, folder), folders); });
  connect(page_, &QGraphicsTextItem::linkHovered, this, [this](const QString& link) {
    viewport()->setCursor(link.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  });
  scene()->addItem(page_);
  layOut();
  verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

HtmlView::~HtmlView() { delete page_; }  // before its document

QString HtmlView::text() { return withoutBreaks(document_.toPlainText()); }

QString HtmlView::selection() const { return withoutBreaks(page_->textCursor().selection().toPlainText()); }

bool HtmlView::find(const QString& text, bool backward) {
  QTextCursor from = page_->textCursor();
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags{};
  QTextCursor found = text.isEmpty() ? QTextCursor() : document_.find(text, from, flags);
  if (found.isNull() && !text.isEmpty()) {
    from.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    found = document_.find(text, from, flags);
  }
  if (found.isNull()) {
    from.clearSelection();
    page_->setTextCursor(from);
    return false;
  }
  page_->setTextCursor(found);
  const QTextBlock block = found.block();
  const int at = found.selectionStart() - block.position();
  const QTextLine line = block.layout()->lineForTextPosition(at);
  ensureVisible(QRectF(
      document_.documentLayout()->blockBoundingRect(block).topLeft() + QPointF(line.cursorToX(at), line.y()),
      QSizeF(1, line.height())));
  return true;
}

bool HtmlView::paint(QPagedPaintDevice& device) {
  pictures_->wait();
  const double width = document_.size().width();
  const paper::Sheet sheet{kPaperMargins, kPrintable / width, width, foot()};
  const double height = paper::pageHeight(sheet);
  return paper::print(document_, paper::paginate(paper::piecesOf(document_, height), height), sheet, device);
}

QStringList HtmlView::missingPictures() {
  pictures_->wait();
  return pictures_->missing();
}

}  // namespace web
