#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <vector>

#include "answers.h"
#include "conductor.h"

namespace road {

/// Walks the steps of one child process from the event loop, so that modal forms and boxes keep stepping.
class Driver : public QObject {
  Q_OBJECT

 public:
  Driver(Road road, QString progressFile, QString pictures);

  /// Starts the program, or without it walks the steps up to the next start. The exit status of the process.
  int run(QApplication& application);

 private:
  void schedule(int milliseconds = 0);
  void tick();
  /// Whether the program waits for its user: no handler at work, no loop being left, no wait pointer.
  [[nodiscard]] bool idle() const;
  void step();
  void perform(const Step& step);
  /// Whether a condition came true; false as long as it may still do so.
  bool conditionMet(const Step& step);
  void schedulePoll();
  /// Whether the visible browser panes show all they have to: they load and paint by themselves.
  bool pagesStand();
  void walkWithoutProgram();
  void programEnded(int status);
  void requireAnswersTaken(const Step& step);
  [[noreturn]] void fail(const Step& step, const Failure& failure);
  /// Leaves at once: what the program has not committed is lost, as at its own end.
  [[noreturn]] void leave();

  Road road_;
  QString progressFile_;
  QString pictures_;
  Progress progress_;
  int limit_ = 0;  ///< the step that this process doesn't do any more
  Answers answers_;
  std::vector<int> working_;  ///< depth of loops at which each step at work began
  bool scheduled_ = false;
  int quietTicks_ = 0;
  QElapsedTimer waiting_;
  QImage lastPages_;  ///< what they showed when they were looked at last
  QElapsedTimer pagesSince_;
};

/// Does a step of the user's (actions.cpp).
void act(const Step& step);

/// Raises Failure when what a step expects isn't there. Boxes and the end are the driver's
/// (expectations.cpp).
void look(const Words& condition);

/// Whether what is expected may come by itself a little later: pages load, mail arrives
/// (expectations.cpp).
[[nodiscard]] bool comesLater(const QString& condition);

}  // namespace road
