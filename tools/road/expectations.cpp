#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>

#include "driver.h"
#include "hands/hands.h"
#include "outside.h"
#include "platform/values/line_ends.h"
#include "platform/web/web_pane.h"
#include "stage.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

QString quoted(const QString& text) { return u'"' + QString(text).replace(u'\n', u"\\n"_s) + u'"'; }

void require(bool met, const QString& expected, const QString& found) {
  if (!met) throw Failure(expected, found);
}

/// Compares texts whatever their line breaks.
void same(const QString& what, const QString& expected, const QString& found) {
  const QString plain = values::withPlainLineEnds(found);
  require(plain == values::withPlainLineEnds(expected), what + u' ' + quoted(expected), quoted(plain));
}

qint64 numberOf(const Word& word) {
  bool good = false;
  const qint64 number = word.text.toLongLong(&good, 0);
  require(good, u"a number"_s, word.text);
  return number;
}

void sameNumber(const QString& what, const Word& expected, qint64 found) {
  const qint64 number = numberOf(expected);
  require(number == found, u"%1 %2"_s.arg(what).arg(number), QString::number(found));
}

void state(const QString& what, const Words& words, bool found) {
  const QString& wanted = words.at(2).text;
  require(wanted == u"yes"_s || wanted == u"no"_s, u"yes or no"_s, wanted);
  require((wanted == u"yes"_s) == found, u"%1 %2: %3"_s.arg(words.at(1).text, what, wanted),
          found ? u"yes"_s : u"no"_s);
}

QWidget& widgetOf(const Words& words) { return controlNamed<QWidget>(words.at(1).text); }

void form(const Words& words) {
  const QString name = topForm().objectName();
  require(name == words.at(1).text, u"form "_s + words.at(1).text, name);
}

void caption(const Words& words) { same(u"caption"_s, words.at(1).text, topForm().windowTitle()); }

/// A caption may be given with the sign of its access key or without.
void text(const Words& words) {
  const QString& name = words.at(1).text;
  const QWidget& control = widgetOf(words);
  QString found = forms::controlText(&control);
  const bool caption = control.inherits("QAbstractButton") || control.inherits("QLabel");
  if (caption && !words.at(2).text.contains(u'&')) found.remove(u'&');
  same(u"text of "_s + name, words.at(2).text, found);
}

void focus(const Words& words) {
  const QWidget& control = widgetOf(words);
  const QWidget* focused = topForm().focusWidget();
  const bool met = focused != nullptr && (focused == &control || control.isAncestorOf(focused));
  require(met, u"focus on "_s + words.at(1).text, u"on "_s + focusedName());
}

void locked(const Words& words) { state(u"locked"_s, words, forms::isLocked(&widgetOf(words))); }
void enabled(const Words& words) { state(u"enabled"_s, words, widgetOf(words).isEnabled()); }
void visible(const Words& words) { state(u"visible"_s, words, widgetOf(words).isVisible()); }

void checked(const Words& words) {
  state(u"checked"_s, words, controlNamed<QAbstractButton>(words.at(1).text).isChecked());
}

/// A column by its number or its title.
int columnOf(const forms::GridModel& grid, const QString& name) {
  bool number = false;
  const int column = name.toInt(&number);
  if (number) return column;
  for (int i = 0; i < grid.cols(); ++i)
    if (grid.text(0, i) == name) return i;
  throw Failure(u"column "_s + name, u"no such title"_s);
}

void cell(const Words& words) {
  const forms::GridModel& grid = gridNamed(words.at(1).text);
  const qint64 row = words.at(2).text == u"last"_s ? grid.rows() - 1 : numberOf(words.at(2));
  const int column = columnOf(grid, words.at(3).text);
  const QString place = u"cell %1 %2 of %3"_s.arg(row).arg(column).arg(words.at(1).text);
  require(row >= 0 && row < grid.rows() && column < grid.cols(), place,
          u"%1 rows and %2 columns"_s.arg(grid.rows() - 1).arg(grid.cols()));
  same(place, words.at(4).text, grid.text(static_cast<int>(row), column));
}

void rows(const Words& words) {
  sameNumber(u"rows of "_s + words.at(1).text, words.at(2), gridNamed(words.at(1).text).rows() - 1);
}

void clipboard(const Words& words) {
  const QString& begin = words.at(1).text;
  same(u"clipboard"_s, begin, QApplication::clipboard()->text().left(begin.size()));
}

void current(const Words& words) {
  sameNumber(u"current row of "_s + words.at(1).text, words.at(2), gridNamed(words.at(1).text).row());
}

/// The colour that means something: a label's text, any other control's ground.
void colour(const Words& words) {
  const QWidget& control = widgetOf(words);
  const bool label = qobject_cast<const QLabel*>(&control) != nullptr;
  sameNumber(u"colour of "_s + words.at(1).text, words.at(2),
             hands::colourOf(&control, label ? forms::kForeColor : forms::kBackColor));
}

void list(const Words& words) {
  const auto& combo = controlNamed<QComboBox>(words.at(1).text);
  sameNumber(u"entries of "_s + words.at(1).text, words.at(2), combo.count());
  if (words.size() > 3) same(u"first entry"_s, words.at(3).text, combo.itemText(0));
}

void sql(const Words& words) { same(u"value"_s, words.at(2).text, askSql(words.at(1).text)); }

void file(const Words& words) {
  require(words.at(2).text == u"contains"_s, u"contains"_s, words.at(2).text);
  expectFileContains(words.at(1).raw, words.at(3).text);
}

void page(const Words& words) {
  web::WebPane* pane = nullptr;
  if (words.size() > 2) {
    pane = &controlNamed<web::WebPane>(words.at(1).text);
  } else {
    for (auto* known : topForm().findChildren<web::WebPane*>()) {
      if (known->isVisible()) pane = known;
    }
  }
  require(pane != nullptr, u"a page"_s, u"no browser pane in sight"_s);
  const QString shown = pane->pageText().simplified();
  require(shown.contains(words.last().text.simplified()), u"page with "_s + quoted(words.last().text),
          quoted(shown.left(600)));
}

void mail(const Words& words) { expectMail(words.sliced(1)); }

void ended(const Words&) {
  throw Failure(u"ended"_s, u"the program is still running, "_s + topForm().objectName());
}

}  // namespace

bool comesLater(const QString& condition) { return condition == u"page"_s || condition == u"mail"_s; }

void look(const Words& condition) {
  static const QHash<QString, void (*)(const Words&)> known{
      {u"form"_s, form},           {u"caption"_s, caption}, {u"text"_s, text},       {u"focus"_s, focus},
      {u"locked"_s, locked},       {u"enabled"_s, enabled}, {u"visible"_s, visible}, {u"checked"_s, checked},
      {u"cell"_s, cell},           {u"rows"_s, rows},       {u"current"_s, current}, {u"colour"_s, colour},
      {u"clipboard"_s, clipboard}, {u"list"_s, list},       {u"sql"_s, sql},         {u"file"_s, file},
      {u"page"_s, page},           {u"mail"_s, mail},       {u"ended"_s, ended},
  };
  known.value(condition.first().text)(condition);
}

}  // namespace road
