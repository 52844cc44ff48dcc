#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include "platform/forms/form.h"
#include "platform/forms/rest.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

// Keys between a search's text and its results, and lists that are pasted into a box of one line.
namespace forms {

void Form::resultsUnder(std::initializer_list<QWidget*> above, std::function<FlexGrid*()> grid) {
  searches_.push_back({above, std::move(grid)});
}

void Form::onLinesPasted(QLineEdit* box, std::function<void(const QStringList&)> handler) {
  lineTakers_[box] = std::move(handler);
}

void Form::onTablePasted(std::initializer_list<QWidget*> controls,
                         const std::function<void(const QStringList&)>& handler) {
  for (QWidget* control : controls) tableTakers_.insert(control, handler);
}

bool Form::resultKeyPressed(QWidget* watched, const QKeyEvent* event) {
  if ((event->modifiers() & ~Qt::KeypadModifier) != 0) return false;
  for (const Search& search : searches_) {
    FlexGrid* grid = search.grid();
    if (event->key() == Qt::Key_Up && watched == grid && grid->grid().row() <= 1) {
      focus(search.above.front());
      return true;
    }
    if (event->key() != Qt::Key_Down || !search.above.contains(watched)) continue;
    if (grid->grid().rows() > 1) {
      if (grid->grid().row() < 1) grid->grid().setRow(1);
      focus(grid);
    }
    return true;
  }
  return false;
}

bool Form::pasteLines(QWidget* control) {
  const auto* box = qobject_cast<QLineEdit*>(control);
  if (box != nullptr && box->isReadOnly()) return false;
  QString text = QApplication::clipboard()->text();
  auto handler = text.contains(QLatin1Char('\t')) ? tableTakers_.value(control) : nullptr;
  const bool rows = static_cast<bool>(handler);
  if (!handler && box != nullptr && lineTakers_.contains(control)) {
    const QString pasted = text;
    text = box->text();
    const int start = box->hasSelectedText() ? box->selectionStart() : box->cursorPosition();
    text.replace(start, box->selectedText().size(), pasted);
    if (values::withPlainLineEnds(text).contains(QLatin1Char('\n'))) handler = lineTakers_.value(control);
  }
  if (!handler) return false;
  QStringList lines = values::withPlainLineEnds(text).split(QLatin1Char('\n'));
  // Rows keep their number, so blank ones stay.
  if (!rows) lines.removeIf([](const QString& line) { return line.trimmed().isEmpty(); });
  handle([&] { handler(lines); }, objectName() + u'.' + control->objectName() + u"_Paste"_s);
  return true;
}

bool Form::pasteMenu(QLineEdit* box, const QContextMenuEvent* event) {
  if (!lineTakers_.contains(box) && !tableTakers_.contains(box)) return false;
  const std::unique_ptr<QMenu> menu(box->createStandardContextMenu());
  const QString key = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
  for (QAction* action : menu->actions()) {
    if (!action->text().endsWith(key)) continue;
    action->disconnect(box);
    QObject::connect(action, &QAction::triggered, box, [this, box] {
      if (!pasteLines(box)) box->paste();
    });
  }
  menu->exec(event->globalPos());
  return true;
}

}  // namespace forms
