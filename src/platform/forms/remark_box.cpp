#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <algorithm>

#include "platform/forms/controls.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

const QString kSign = u"qt_more_sign"_s;

/// Three dots in the lower right corner of a box.
class MoreSign : public QWidget {
 public:
  explicit MoreSign(QPlainTextEdit* box) : QWidget(box), box_(box) {
    setObjectName(kSign);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    box->installEventFilter(this);
    const auto again = [this] { place(); };
    connect(box->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            again);
    // The scroll bar keeps silent where the caret moves the text.
    connect(box, &QPlainTextEdit::updateRequest, this, again);
    connect(box->verticalScrollBar(), &QScrollBar::rangeChanged, this, again);
    place();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) place();
    return false;
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), box_->palette().color(QPalette::Highlight));
    painter.setPen(box_->palette().color(QPalette::HighlightedText));
    painter.drawText(rect(), Qt::AlignCenter, kDots);
  }

 private:
  void place() {
    const QFontMetrics metrics(box_->font());
    const int inSight = std::max(1, box_->viewport()->height() / metrics.lineSpacing());
    // A plain text document counts its height in lines.
    const double below =
        box_->document()->size().height() - box_->verticalScrollBar()->value() - static_cast<double>(inSight);
    setVisible(below > 0 && !box_->verticalScrollBar()->isVisible());
    if (isHidden()) return;
    const QSize size(metrics.horizontalAdvance(kDots) + 6, metrics.height());
    setGeometry(QRect(QPoint(), size)
                    .translated(box_->width() - size.width() - 2, box_->height() - size.height() - 2));
  }

  const QString kDots = u"\u2026"_s;
  QPlainTextEdit* box_;
};

}  // namespace

void showFirstLine(QPlainTextEdit* box) {
  box->moveCursor(QTextCursor::Start);
  box->verticalScrollBar()->setValue(0);
}

void markHiddenLines(QPlainTextEdit* box) {
  if (box->findChild<QWidget*>(kSign) != nullptr) return;
  // A box as high as one line shows that line whole, the one that is being typed too.
  box->document()->setDocumentMargin(2);
  new MoreSign(box);
}

}  // namespace forms
