#pragma once

#include <QString>
#include <QStringList>
#include <exception>

// The text of a guided road. Its language: docs/roads.md.
namespace road {

/// A word of a step. What stands in double quotes is one word: \n in it is a line break, \t a tab, \" a quote
/// mark, \\ a backslash; any other backslash is itself.
struct Word {
  QString text;
  QString raw;  ///< as it stands between the quotes: paths have backslashes
  bool quoted = false;
};
using Words = QList<Word>;

struct Step {
  int line = 0;
  QString verb;
  Words words;   ///< after the verb
  QString text;  ///< the whole line
};

struct Road {
  QString file;
  QList<Step> steps;

  /// Index of the first `start` at or after a step; the number of steps if there is none.
  [[nodiscard]] int nextStart(int from) const;
};

/// What is wrong with a road's text, or with what a step found.
class Failure : public std::exception {
 public:
  Failure(QString expected, QString found) : expected_(std::move(expected)), found_(std::move(found)) {}
  [[nodiscard]] const QString& expected() const { return expected_; }
  [[nodiscard]] const QString& found() const { return found_; }

 private:
  QString expected_;
  QString found_;
};

/// Cuts a text into words; raises Failure on a quote that isn't closed.
[[nodiscard]] Words cutWords(QStringView text);

/// Reads the text of a road. On the first line that is no step `failedLine` gets its number and Failure is
/// raised.
[[nodiscard]] Road readRoad(const QString& file, const QString& text, int& failedLine);

/// The words of what an `expect` or a `wait` looks at.
[[nodiscard]] Words conditionOf(const Step& step);

/// Whether a step only looks, or answers boxes, so that it may run while a box waits.
[[nodiscard]] bool isPassive(const Step& step);

}  // namespace road
