#pragma once

#include <QFile>
#include <QString>

namespace hands {

/// Holds a file open as a word processor does with the document that it edits: nobody else can replace or
/// remove it unharmed.
class HeldFile {
 public:
  explicit HeldFile(const QString& path);
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  /// Whether the system has given it.
  [[nodiscard]] bool holds() const { return holds_; }

 private:
  QFile file_;
  bool holds_ = false;
};

}  // namespace hands
