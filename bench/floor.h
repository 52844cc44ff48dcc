#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "harness.h"

namespace bench {

/// The time of statements on the SQLite library itself: each prepared, stepped through, its columns read, and
/// finalized, on a file opened as the program opens it. The opening is not counted.
class Floor {
 public:
  explicit Floor(const QStringList& statements);
  /// On a copy of the file.
  [[nodiscard]] Times run(const QString& databasePath) const;

 private:
  std::vector<QByteArray> statements_;
};

}  // namespace bench
