#include "platform/web/html_view.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextOption>
#include <QTimer>

#include "platform/markup/rich_text.h"
#include "platform/paper/printer.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kWidth = 800;     // dots of the layout, as wide as documents are made
constexpr double kPlainSize = 12;  // points
constexpr QMarginsF kPaperMargins(28.35, 28.35, 28.35, 42.5);  // points: 10 mm, 15 below
constexpr double kPrintable = 595.3 - 2 * 28.35;               // points
constexpr int kLong = 20'000;                                  // letters; the layout of fewer is waited for
constexpr QSizeF kInSight(kWidth, 4000);                       // dots; no display shows more at once

/// The page as the toolkit shows it, without the frame that it draws around what has the focus.
class PageItem : public QGraphicsTextItem {
 public:
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override {
    QStyleOptionGraphicsItem plain = *option;
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    QGraphicsTextItem::paint(painter, &plain, widget);
  }
};

/// As much of a page as is laid out, and what is in sight in any case. The page itself lays all out at once.
class Beginning : public QGraphicsItem {
 public:
  explicit Beginning(QTextDocument& document) : document_(document) { setFlag(ItemUsesExtendedStyleOption); }

  void grow(const QSizeF& size) {
    prepareGeometryChange();
    size_ = size;
  }
  [[nodiscard]] QRectF boundingRect() const override { return {{}, size_}; }
  void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) override {
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = option->exposedRect;
    document_.documentLayout()->draw(painter, context);
  }

 private:
  QTextDocument& document_;
  QSizeF size_;
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
  document_.setTextWidth(kWidth);
  pictures_ = new Pictures(document_, folder, folders);
  document_.setHtml(richText);  // laid out from here on, step by step, as wide as it is to be
  connect(pictures_, &Pictures::complete, this, [this] {
    finish();
    document_.markContentsDirty(0, document_.characterCount());  // places take the pictures' sizes
    setDocumentSize(document_.size());
  });
  page_->setFlag(QGraphicsItem::ItemUsesExtendedStyleOption);  // it paints only what is in sight
  page_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
  page_->setDefaultTextColor(Qt::black);
  connect(page_, &QGraphicsTextItem::linkActivated, this,
          [folder, folders](const QString& link) { openLink(addressOf(link, folder), folders); });
  connect(page_, &QGraphicsTextItem::linkHovered, this, [this](const QString& link) {
    viewport()->setCursor(link.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  });
  if (document_.characterCount() < kLong) {
    showPage();
  } else {
    auto beginning = std::make_unique<Beginning>(document_);
    const auto grow = [this, shown = beginning.get()](const QSizeF& laidOut) {
      if (beginning_ == nullptr) return;
      const QSizeF size = laidOut.expandedTo(kInSight);
      shown->grow(size);
      setDocumentSize(size);
      if (document_.lastBlock().layout()->lineCount() > 0) QTimer::singleShot(0, this, &HtmlView::finish);
    };
    scene()->addItem(beginning.get());
    beginning_ = std::move(beginning);
    grow({});
    connect(document_.documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this, grow);
  }
  verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

HtmlView::~HtmlView() {  // before their document
  beginning_.reset();
  delete page_;
}

void HtmlView::finish() {
  if (beginning_ == nullptr) return;
  beginning_.reset();
  showPage();
}

void HtmlView::showPage() {
  page_->setDocument(&document_);
  scene()->addItem(page_);
  setDocumentSize(document_.size());
}

QString HtmlView::text() { return withoutBreaks(document_.toPlainText()); }

QString HtmlView::selection() const { return withoutBreaks(page_->textCursor().selection().toPlainText()); }

bool HtmlView::find(const QString& text, bool backward) {
  finish();
  QTextCursor from = page_->textCursor();
  // A text that is still being typed may go on where it was found.
  if (!backward && withoutBreaks(from.selectedText()).compare(text, Qt::CaseInsensitive) != 0)
    from.setPosition(from.selectionStart());
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
  finish();
  const double width = document_.size().width();
  return paper::print(document_, {kPaperMargins, kPrintable / width, width, foot()}, device);
}

QStringList HtmlView::missingPictures() {
  pictures_->wait();
  return pictures_->missing();
}

}  // namespace web
