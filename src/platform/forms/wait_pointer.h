#pragma once

namespace forms {

/// The wait pointer while it lives. Work on many rows (data::Walk) shows how far it is after a second, in the
/// middle of the active window.
class WaitPointer {
 public:
  WaitPointer();
  ~WaitPointer();
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;

  /// Work that failed leaves the pointer as it is, until the user's next key or click.
  void stay();

  /// Whether one lives: the program works. One that stays after its work doesn't count.
  [[nodiscard]] static bool isWorking();

 private:
  bool stays_ = false;
};

}  // namespace forms
