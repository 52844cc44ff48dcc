#pragma once

#include <QString>

#include "road/road_file.h"

namespace road {

/// What a child process leaves for the next: how far it came, and what was set for those that follow.
struct Progress {
  int next = 0;         ///< the step to go on with
  QString clock;        ///< the clock as last set; empty is the system's
  QString commandLine;  ///< of the program that was started last
  bool started = false;
  bool ended = false;  ///< the program has ended
  int status = 0;      ///< with this status
  bool failed = false;

  void write(const QString& file) const;
  [[nodiscard]] static Progress read(const QString& file);
};

/// Reports a failure as "file:line: step", what was expected and what was found.
void report(const Road& road, const Step& step, const Failure& failure);

/// Leads a road: a child process for each `start`, and one without the program for the steps between. Returns
/// the exit status.
int conduct(const Road& road, const QString& pictures);

}  // namespace road
