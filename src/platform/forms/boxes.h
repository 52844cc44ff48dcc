#pragma once

#include <QString>
#include <functional>
#include <optional>

// Message and input boxes. Every box of the program goes through here, so that tests and roads can answer it.
namespace forms {

enum class Icon { None, Information, Critical };
enum class Buttons { Ok, OkCheck, YesNo, YesNoCancel, RetryCancel };
enum class Answer { Ok, Check, Yes, No, Cancel, Retry };

struct Box {
  QString text;                       ///< lines joined by CR or LF
  std::optional<QString> title = {};  ///< without one: the program's name
  Icon icon = Icon::None;
  Buttons buttons = Buttons::Ok;
  /// What Enter answers; without one the first button, of three No.
  std::optional<Answer> usual = {};
};

/// For so long, in milliseconds, after a question is shown, keys answer nothing: they were typed ahead.
inline constexpr int kTypedAhead = 400;

struct Input {
  QString prompt;
  QString title;
  QString initial;
};

/// Shows a box and waits for its answer. Esc and the box's X are Ok, No of three, Cancel beside Retry, and
/// leave a question of Yes and No where it is. A question is not answered by a letter or a space alone, which
/// are what a user types who has not seen it: Alt with the letter, the arrows, Tab, Enter, Esc and clicks do.
Answer msgBox(const Box& box);

/// From here on a file that another program holds open is asked about: box with Retry and Cancel that names
/// it.
void askAboutHeldFiles();

/// Asks for a line of text. Cancel gives an empty text.
[[nodiscard]] QString inputBox(const Input& input);

/// Lets the user choose a file that is there, beginning in a folder of this machine; or, where it is to be
/// written, name one, beginning with its path, and asks before one that is there is taken. Cancel gives an
/// empty text.
[[nodiscard]] QString fileBox(const QString& title, const QString& start, bool toWrite = false);

/// Answers boxes in place of a user; an empty function brings the real ones back.
void setBoxAnswerer(std::function<Answer(const Box&)> answerer);
void setInputAnswerer(std::function<QString(const Input&)> answerer);

/// How many real ones wait for an answer now.
[[nodiscard]] int boxesWaiting();

}  // namespace forms
