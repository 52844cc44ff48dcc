#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QString>
#include <deque>
#include <optional>

#include "road/road_file.h"

namespace road {

/// What a box showed.
struct SeenBox {
  QString text, title, icon;
  QStringList buttons;
};

/// The boxes that come up, and the answers that wait for them.
class Answers {
 public:
  void queueButton(const QString& button) { waiting_.push_back({button, false}); }
  /// What is typed into an input box; nullopt cancels.
  void queueInput(const std::optional<QString>& typed) { waiting_.push_back({typed, true}); }
  [[nodiscard]] bool empty() const { return waiting_.empty(); }

  /// Notes a box the first time it is met.
  void note(QDialog* box);
  /// Answers the box with real events; raises Failure when the answer is none of its own.
  void give(QDialog* box);
  /// A step of the user's begins: the boxes before it are no longer of interest.
  void forgetBoxes();
  /// Looks for a box since the last step of the user's, each once, in their order: "text" [title "…"]
  /// [icon …] [buttons "…"].
  void expect(const Words& words);

 private:
  struct Answer {
    std::optional<QString> text;
    bool typed;
  };
  std::deque<Answer> waiting_;
  QPointer<QDialog> noted_;
  QList<SeenBox> seen_;
  qsizetype matched_ = 0;
};

}  // namespace road
