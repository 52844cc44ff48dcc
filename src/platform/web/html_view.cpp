#include "platform/web/html_view.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextOption>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/paper/printer.h"
#include "platform/web/rich_text.h"
#include "platform/web/text_pieces.h"
#include "platform/web/waiting.h"

namespace web {

using namespace Qt::StringLiterals;

namespace {

constexpr double kWidth = 800;     // dots of the layout, as wide as documents are made
constexpr double kMargin = 8;      // dots around it
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

QFont plainFont() {
  QFont font;
  font.setFamilies({u"DejaVu Sans"_s, u"Verdana"_s});
  font.setPointSizeF(kPlainSize);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QString withoutBreaks(QString text) { return text.remove(kBreakHere).replace(QChar::Nbsp, u' '); }

}  // namespace

HtmlView::HtmlView(const RichText& rich, const QString& folder, const PictureFolders& folders,
                   QWidget* parent)
    : DocumentView(parent), folders_(folders), view_(new QGraphicsView(this)), page_(new PageItem) {
  pictures_ = new Pictures(rich.pictures, folder, folders, this);
  connect(pictures_, &Pictures::complete, this, [this] {
    document_.markContentsDirty(0, document_.characterCount());  // places take the pictures' sizes
    layOut();
  });
  document_.setDefaultFont(plainFont());
  paper::layOutForAnyDevice(document_);
  document_.documentLayout()->registerHandler(QTextFormat::ImageObject, pictures_);
  QTextOption option = document_.defaultTextOption();
  option.setWrapMode(QTextOption::WordWrap);  // columns are as wide as their words
  document_.setDefaultTextOption(option);
  document_.setTextWidth(kWidth);
  document_.setHtml(rich.html);

  page_->setFlag(QGraphicsItem::ItemUsesExtendedStyleOption);  // it paints only what is in sight
  page_->setDocument(&document_);
  page_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
  page_->setDefaultTextColor(Qt::black);
  connect(page_, &QGraphicsTextItem::linkActivated, this,
          [this, folder](const QString& link) { openLink(addressOf(link, folder), folders_); });
  connect(page_, &QGraphicsTextItem::linkHovered, this, [this](const QString& link) {
    view_->viewport()->setCursor(link.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  });
  auto* scene = new QGraphicsScene(this);
  scene->setItemIndexMethod(QGraphicsScene::NoIndex);
  scene->addItem(page_);
  view_->setScene(scene);
  view_->setFrameShape(QFrame::NoFrame);
  view_->setBackgroundBrush(Qt::white);
  view_->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
  view_->setTransformationAnchor(QGraphicsView::NoAnchor);
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  view_->setAcceptDrops(false);
  view_->installEventFilter(this);
  view_->viewport()->installEventFilter(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(view_);
  setFocusProxy(view_);
  layOut();
  view_->verticalScrollBar()->setValue(view_->verticalScrollBar()->minimum());
}

HtmlView::~HtmlView() { delete page_; }  // before its document

void HtmlView::layOut() {
  const QSizeF size = document_.size();
  view_->setSceneRect(-kMargin, -kMargin, size.width() + 2 * kMargin, size.height() + 2 * kMargin);
  if (fit_) fitWidth();
}

QString HtmlView::text() { return withoutBreaks(document_.toPlainText()); }

bool HtmlView::find(const QString& text, bool backward) {
  QTextCursor from = page_->textCursor();
  if (text.isEmpty()) {
    from.clearSelection();
    page_->setTextCursor(from);
    return false;
  }
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags{};
  QTextCursor found = document_.find(text, from, flags);
  if (found.isNull()) {
    from.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    found = document_.find(text, from, flags);
  }
  if (found.isNull()) {
    find({}, false);
    return false;
  }
  page_->setTextCursor(found);
  const QTextBlock block = found.block();
  const QTextLine line = block.layout()->lineForTextPosition(found.selectionStart() - block.position());
  const double x = line.cursorToX(found.selectionStart() - block.position());
  view_->ensureVisible(
      QRectF(document_.documentLayout()->blockBoundingRect(block).topLeft() + QPointF(x, line.y()),
             QSizeF(1, line.height())));
  return true;
}

void HtmlView::copySelection() const {
  const QString selected = page_->textCursor().selection().toPlainText();
  if (!selected.isEmpty()) QApplication::clipboard()->setText(withoutBreaks(selected));
}

bool HtmlView::paint(QPagedPaintDevice& device) {
  waitForPictures();
  const double width = document_.size().width();
  const paper::Sheet sheet{kPaperMargins, kPrintable / width, width, foot()};
  return paper::print(
      document_, paper::paginate(piecesOf(document_, paper::pageHeight(sheet)), paper::pageHeight(sheet)),
      sheet, device);
}

void HtmlView::waitForPictures() {
  if (pictures_->isComplete()) return;
  QEventLoop loop;
  connect(pictures_, &Pictures::complete, &loop, &QEventLoop::quit);
  waitIn(loop);
}

QStringList HtmlView::missingPictures() {
  waitForPictures();
  return pictures_->missing();
}

void HtmlView::setZoom(double factor) {
  fit_ = false;
  applyZoom(factor);
}

void HtmlView::fitWidth() {
  fit_ = true;
  const QRectF page = view_->sceneRect();
  const QSize room = view_->maximumViewportSize();
  const double whole = room.width() / page.width();
  const bool scrolls = page.height() * std::min(1.0, whole) > room.height();
  const int scrollBar = scrolls ? view_->verticalScrollBar()->sizeHint().width() : 0;
  applyZoom(std::clamp((room.width() - scrollBar) / page.width(), kSmallestFit, 1.0));
}

void HtmlView::applyZoom(double factor) {
  const QPointF corner = view_->mapToScene(QPoint(0, 0));
  view_->setTransform(QTransform::fromScale(factor, factor));
  // What stands at the top stays there.
  view_->verticalScrollBar()->setValue(qRound(corner.y() * factor));
  view_->horizontalScrollBar()->setValue(qRound(corner.x() * factor));
  Q_EMIT zoomChanged(factor);
}

void HtmlView::resizeEvent(QResizeEvent* event) {
  DocumentView::resizeEvent(event);
  if (fit_) fitWidth();
}

bool HtmlView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_ && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    copySelection();
    return true;
  }
  // The pane zooms.
  if (event->type() == QEvent::Wheel &&
      static_cast<QWheelEvent*>(event)->modifiers().testFlag(Qt::ControlModifier)) {
    event->ignore();
    return true;
  }
  return DocumentView::eventFilter(watched, event);
}

}  // namespace web
