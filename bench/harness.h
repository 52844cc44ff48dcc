#pragma once

#include <QStringList>
#include <functional>
#include <string>

#include "support/company.h"

// What all measurements share: a company of their own, the statements that a handler ran, and the floor,
// which is the same statements straight on the SQLite library.
namespace bench {

/// A company in a temporary folder, with basic rows. Boxes are answered with their first button, the end of
/// the process ends the measurement.
class Bench : public support::Company {
 public:
  Bench();
  ~Bench() override;

  using support::Company::ask;
  using support::Company::drive;
  using support::Company::sql;
  /// All statements on one connection, in one transaction.
  void fill(const QStringList& sqls);
  /// Shows the quote screen as the start does.
  void start();

 private:
  void TestBody() override {}
};

/// One measurement: what is made ready before each run and not timed, and what is timed.
struct Measurement {
  std::string name;
  int size = 0;
  std::function<void()> prepare;
  std::function<void()> handler;
  int runs = 7;
  /// Beside the statements, what the floor does too (writing the same files), timed.
  std::function<void()> floorExtra = {};
};

/// Runs the handler and the floor in turn, each on the database as it stood before the first run, and keeps
/// the medians.
void measure(Bench& company, const Measurement& measurement);

/// Keeps a figure that was measured in another way, for the last lines.
struct Times {
  double wall = 0;  // milliseconds
  double cpu = 0;   // milliseconds of this process
};
void record(const std::string& name, int size, Times time, Times floor);
/// Keeps a line of another kind.
void addLine(const std::string& line);
/// Prints one line for each measurement: name, size, time, floor, ratio; last the ratio of the processor's
/// share, which other programs on the machine don't touch.
void printSummary();

[[nodiscard]] Times timeOf(const std::function<void()>& call);
[[nodiscard]] double median(std::vector<double> values);
[[nodiscard]] Times median(const std::vector<Times>& times);

}  // namespace bench
