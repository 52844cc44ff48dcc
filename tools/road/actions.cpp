#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "driver.h"
#include "hands/hands.h"
#include "hands/held_file.h"
#include "platform/files/paths.h"
#include "platform/values/line_ends.h"
#include "stage.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

int numberOf(const Word& word) {
  bool good = false;
  const int number = word.text.toInt(&good);
  if (!good) throw Failure(u"a whole number"_s, word.text);
  return number;
}

void requireFocus(const QString& name, const QWidget& control) {
  const QWidget* focused = topForm().focusWidget();
  if (focused != &control && (focused == nullptr || !control.isAncestorOf(focused))) {
    throw Failure(u"the focus on "_s + name, u"on "_s + focusedName());
  }
}

void type(const Words& words) {
  auto& control = controlNamed<QWidget>(words.at(0).text);
  if (topForm().focusWidget() != &control) clickOn(control);
  requireFocus(words.at(0).text, control);
  eraseText();
  typeText(values::withPlainLineEnds(words.at(1).text));
}

void click(const Words& words) { clickOn(controlNamed<QWidget>(words.at(0).text)); }

void key(const Words& words) { pressKey(words.at(0).text); }

void choose(const Words& words) {
  const QString& name = words.at(0).text;
  const QString& text = words.at(1).text;
  auto& combo = controlNamed<QComboBox>(name);
  if (topForm().focusWidget() != &combo) clickOn(combo);
  requireFocus(name, combo);
  pressKey(u"F4"_s);
  if (!combo.view()->isVisible()) throw Failure(name + u" dropped down"_s, u"it stays shut"_s);
  const int entry = combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (entry < 0) {
    QStringList entries;
    for (int i = 0; i < std::min(combo.count(), 10); ++i) entries << combo.itemText(i);
    throw Failure(u"\"%1\" in the list of %2"_s.arg(text, name),
                  u"%1 entries: %2"_s.arg(combo.count()).arg(entries.join(u"; "_s)));
  }
  combo.view()->setCurrentIndex(combo.model()->index(entry, combo.modelColumn(), combo.rootModelIndex()));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

void tab(const Words& words) {
  auto& tabs = controlNamed<QTabWidget>(words.at(0).text);
  const int number = numberOf(words.at(1));
  if (number < 0 || number >= tabs.count()) {
    throw Failure(u"tab %1"_s.arg(number), u"tabs 0 to %1"_s.arg(tabs.count() - 1));
  }
  pressMouse(*tabs.tabBar(), tabs.tabBar()->tabRect(number).center());
}

/// Clicks on a row, or on the title for row 0; without a column on the first visible one.
void clickRow(forms::FlexGrid& grid, int row, int column, bool twice) {
  if (row < 0 || row >= grid.grid().rows()) {
    throw Failure(u"row %1"_s.arg(row), u"rows 0 to %1"_s.arg(grid.grid().rows() - 1));
  }
  const auto [widget, at] = hands::placeOf(grid, row, column);
  pressMouse(*widget, at, twice);
}

void row(const Words& words) {
  clickRow(controlNamed<forms::FlexGrid>(words.at(0).text), numberOf(words.at(1)),
           words.size() > 2 ? numberOf(words.at(2)) : 0, false);
}

void doubleClick(const Words& words) {
  if (words.size() > 1) {
    clickRow(controlNamed<forms::FlexGrid>(words.at(0).text), numberOf(words.at(1)),
             words.size() > 2 ? numberOf(words.at(2)) : 0, true);
    return;
  }
  auto& control = controlNamed<QWidget>(words.at(0).text);
  pressMouse(control, control.isWindow() ? QPoint(3, 3) : control.rect().center(), true);
}

void setChecked(const Words& words, bool wanted) {
  auto& option = controlNamed<QAbstractButton>(words.at(0).text);
  if (option.isChecked() != wanted) clickOn(option);
}

void show(const Words& words) { controlNamed<QWidget>(words.at(0).text).show(); }

std::unique_ptr<hands::HeldFile>& heldFile() {
  static std::unique_ptr<hands::HeldFile> held;
  return held;
}

void hold(const Words& words) {
  heldFile() = std::make_unique<hands::HeldFile>(files::resolve(words.at(0).text));
  if (!heldFile()->holds()) throw Failure(words.at(0).text + u" held open"_s, u"the system refuses"_s);
}

}  // namespace

void act(const Step& step) {
  static const QHash<QString, void (*)(const Words&)> known{
      {u"type"_s, type},
      {u"click"_s, click},
      {u"key"_s, key},
      {u"choose"_s, choose},
      {u"tab"_s, tab},
      {u"row"_s, row},
      {u"doubleclick"_s, doubleClick},
      {u"check"_s, [](const Words& words) { setChecked(words, true); }},
      {u"uncheck"_s, [](const Words& words) { setChecked(words, false); }},
      {u"clipboard"_s, [](const Words& words) { QApplication::clipboard()->setText(words.at(0).text); }},
      {u"hold"_s, hold},
      {u"release"_s, [](const Words&) { heldFile().reset(); }},
      {u"show"_s, show},
  };
  known.value(step.verb)(step.words);
}

}  // namespace road
