#include "road/road_file.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace road {

namespace {

struct Shape {
  qsizetype least, most;  ///< words after the verb
  QString usage;
  bool passive;
};

constexpr qsizetype kAny = 1000;

const QHash<QString, Shape>& shapes() {
  static const QHash<QString, Shape> known{
      {u"start"_s, {0, kAny, u"start COMMANDLINE"_s, false}},
      {u"clock"_s, {1, 1, u"clock \"dd/mm/yyyy hh:mm\""_s, true}},
      {u"sql"_s, {1, 1, u"sql \"statement\""_s, true}},
      {u"type"_s, {2, 2, u"type CONTROL \"text\""_s, false}},
      {u"key"_s, {1, 1, u"key NAME"_s, false}},
      {u"click"_s, {1, 1, u"click CONTROL"_s, false}},
      {u"choose"_s, {2, 2, u"choose COMBO \"text\""_s, false}},
      {u"tab"_s, {2, 2, u"tab TABS n"_s, false}},
      {u"row"_s, {2, 3, u"row GRID n [col]"_s, false}},
      {u"doubleclick"_s, {1, 3, u"doubleclick GRID n [col]"_s, false}},
      {u"check"_s, {1, 1, u"check OPTION"_s, false}},
      {u"uncheck"_s, {1, 1, u"uncheck OPTION"_s, false}},
      {u"clipboard"_s, {1, 1, u"clipboard \"text\""_s, true}},
      {u"hold"_s, {1, 1, u"hold \"path\""_s, false}},
      {u"release"_s, {0, 0, u"release"_s, true}},
      {u"show"_s, {1, 1, u"show CONTROL"_s, false}},
      {u"answer"_s, {1, 1, u"answer \"button\""_s, true}},
      {u"input"_s, {1, 1, u"input \"text\" or input cancel"_s, true}},
      {u"wait"_s, {1, kAny, u"wait \"condition\""_s, true}},
      {u"expect"_s, {1, kAny, u"expect …"_s, true}},
      {u"screenshot"_s, {1, 1, u"screenshot NAME"_s, true}},
  };
  return known;
}

const QHash<QString, Shape>& expectShapes() {
  static const QHash<QString, Shape> known{
      {u"form"_s, {1, 1, u"expect form NAME"_s, true}},
      {u"caption"_s, {1, 1, u"expect caption \"text\""_s, true}},
      {u"text"_s, {2, 2, u"expect text CONTROL \"value\""_s, true}},
      {u"focus"_s, {1, 1, u"expect focus CONTROL"_s, true}},
      {u"locked"_s, {2, 2, u"expect locked CONTROL yes|no"_s, true}},
      {u"enabled"_s, {2, 2, u"expect enabled CONTROL yes|no"_s, true}},
      {u"visible"_s, {2, 2, u"expect visible CONTROL yes|no"_s, true}},
      {u"checked"_s, {2, 2, u"expect checked CONTROL yes|no"_s, true}},
      {u"cell"_s, {4, 4, u"expect cell GRID row col \"value\""_s, true}},
      {u"rows"_s, {2, 2, u"expect rows GRID n"_s, true}},
      {u"current"_s, {2, 2, u"expect current GRID n"_s, true}},
      {u"colour"_s, {2, 2, u"expect colour CONTROL n"_s, true}},
      {u"clipboard"_s, {1, 1, u"expect clipboard \"text\""_s, true}},
      {u"list"_s, {2, 3, u"expect list COMBO n [\"first\"]"_s, true}},
      {u"box"_s, {1, 7, u"expect box \"text\" [title \"…\"] [icon …] [buttons \"…\"]"_s, true}},
      {u"sql"_s, {2, 2, u"expect sql \"statement\" \"value\""_s, true}},
      {u"file"_s, {3, 3, u"expect file \"path\" contains \"text\""_s, true}},
      {u"page"_s, {1, 2, u"expect page [PANE] \"text\""_s, true}},
      {u"mail"_s, {2, 14, u"expect mail [from|to|subject|contains|attachment \"text\"]… [count n]"_s, true}},
      {u"ended"_s, {0, 1, u"expect ended [status]"_s, true}},
  };
  return known;
}

/// A quoted word; `at` stands after its opening quote and is moved past the closing one.
Word quotedWord(QStringView text, qsizetype& at) {
  static const QHash<QChar, QChar> escapes{{u'n', u'\n'}, {u't', u'\t'}, {u'"', u'"'}, {u'\\', u'\\'}};
  Word word{{}, {}, true};
  while (at < text.size() && text.at(at) != u'"') {
    QChar character = text.at(at++);
    word.raw += character;
    if (character == u'\\' && at < text.size() && escapes.contains(text.at(at))) {
      word.raw += text.at(at);
      character = escapes.value(text.at(at++));
    }
    word.text += character;
  }
  if (at == text.size()) throw Failure(u"a closing quote"_s, text.toString());
  ++at;
  return word;
}

void checkShape(const QHash<QString, Shape>& known, const QString& verb, const Words& words,
                const QString& text) {
  const auto shape = known.constFind(verb);
  if (shape == known.cend()) throw Failure(u"a step that exists"_s, verb);
  if (words.size() < shape->least || words.size() > shape->most) {
    throw Failure(shape->usage, text);
  }
}

Step readStep(int number, const QString& text) {
  Step step{number, {}, cutWords(text), text};
  step.verb = step.words.takeFirst().text;
  checkShape(shapes(), step.verb, step.words, text);
  if (step.verb == u"expect"_s || step.verb == u"wait"_s) {
    const Words condition = conditionOf(step);
    checkShape(expectShapes(), condition.first().text, condition.sliced(1), text);
  }
  return step;
}

}  // namespace

Words cutWords(QStringView text) {
  Words words;
  qsizetype at = 0;
  while (at < text.size()) {
    if (text.at(at).isSpace()) {
      ++at;
    } else if (text.at(at) == u'"') {
      words << quotedWord(text, ++at);
    } else {
      const qsizetype from = at;
      while (at < text.size() && !text.at(at).isSpace() && text.at(at) != u'"') ++at;
      const QString plain = text.sliced(from, at - from).toString();
      words << Word{plain, plain, false};
    }
  }
  return words;
}

Road readRoad(const QString& file, const QString& text, int& failedLine) {
  Road road{file, {}};
  failedLine = 0;
  for (const QString& line : text.split(u'\n')) {
    ++failedLine;
    const QString step = line.trimmed();
    if (!step.isEmpty() && !step.startsWith(u'#')) road.steps << readStep(failedLine, step);
  }
  return road;
}

int Road::nextStart(int from) const {
  int index = from;
  while (index < steps.size() && steps.at(index).verb != u"start"_s) ++index;
  return index;
}

Words conditionOf(const Step& step) {
  // The condition of a wait may stand in quotes as a whole.
  Words condition = step.words.size() == 1 ? cutWords(step.words.first().text) : step.words;
  if (condition.isEmpty()) throw Failure(u"a condition"_s, step.text);
  return condition;
}

bool isPassive(const Step& step) { return shapes().value(step.verb).passive; }

}  // namespace road
