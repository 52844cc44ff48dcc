#pragma once

#ifndef Q_MOC_RUN  // which can't read what this one is written with
#include <coroutine>
#endif
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/data/recordset.h"
#include "platform/data/statement.h"
#include "platform/data/walk.h"

// Statements that travel together (docs/architecture.md says why, and what holds). A routine that asks the
// database returns Asked<T> and is a coroutine: it asks, and co_awaits the answers.
//
// clang-format off
//   Asked<GridRow> precoDoItem(data::Recordset item) {
//     auto pedeCodigo = CodigoProduto(item.text(u"idprod"));    // both are asked here,
//     auto pedeUnidade = UnidadeProduto(item.text(u"idprod"));  // before the first is waited for: one request
//     const QString unidade = co_await pedeUnidade;
//     const QString casas = co_await CasasDecimaisUnidade(unidade);
//     const QString codigo = co_await pedeCodigo;
//     co_return linhaDoItem(item, codigo, casas);
//   }
// clang-format on
//
// Calling it starts it: it runs to its first open answer, and its statements wait in the connection's queue.
// The caller starts all its rows, and then waits for each in turn. forEachRow does it for those of a result:
//
//   grade.addRows(waitFor(data::forEachRow(rs, precoDoItem)));
//
// What to keep to (setup/asked.py looks for all of it, clang-tidy for some):
// - A coroutine takes its arguments by value: it goes on when the caller's have long changed. A Recordset
//   passed on is a cheap copy that stays on its row; the name of a column is a Literal.
// - It touches no screen and no file; who takes the answers does, in order. It never waits by waitFor.
// - No co_await inside ?:, and no ?: in what is awaited (its text would be freed twice). None in a chain of
//   <<, in a lambda with captures, inside braces, or with braces in what is awaited: the compiler (g++ 12) is
//   not to be trusted there, and a name for each answer reads better.
namespace data {

/// A statement in the queue, later its answer.
struct Question {
  Statement statement;
  std::optional<Recordset> answer;
  std::exception_ptr error;         ///< in place of the answer
  std::coroutine_handle<> waiting;  ///< who goes on then
};

/// The queue of a connection (connection.cpp): what was asked and is not sent, what was answered and not
/// handed out.
class Questions {
 public:
  /// Adds a result for each statement, up to the first that fails.
  using Send = std::function<void(const std::vector<Statement>&, std::vector<Recordset>&)>;
  explicit Questions(Send send) : send_(std::move(send)) {}

  [[nodiscard]] std::shared_ptr<Question> add(Statement statement);
  /// Lets the next one that has its answer go on; where there is none, sends what waits, at most a full
  /// batch. Who asked in front of a statement that fails has an answer, all others get its error.
  void step();
  /// The connection is closed: who waits gets that error now.
  void end();

 private:
  void send();
  void failAll(const std::exception_ptr& error);

  Send send_;
  std::deque<std::shared_ptr<Question>> asked_, answered_;
  std::optional<Walk> walk_;  ///< from the first question to the last answer
  qsizetype handedOut_ = 0;   ///< answers of this walk
};

/// The answer to a question, when the queue has been sent.
class Reading {
 public:
  Reading(Questions& questions, Statement statement)
      : questions_(&questions), question_(questions.add(std::move(statement))) {}
  ~Reading() { question_->waiting = {}; }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  [[nodiscard]] bool await_ready() const { return false; }
  template <typename Promise>
  void await_suspend(std::coroutine_handle<Promise> waiting) {
    waiting.promise().questions = questions_;
    question_->waiting = waiting;
  }
  [[nodiscard]] Recordset await_resume() {
    if (question_->error) std::rethrow_exception(question_->error);
    return std::move(*question_->answer);
  }

 private:
  Questions* questions_;
  std::shared_ptr<Question> question_;
};

/// A text written out in the code, such as a column's name: it outlives every routine.
class Literal {
 public:
  template <std::size_t Size>
  consteval Literal(const char16_t (&text)[Size]) : text_(text, Size - 1) {}
  constexpr operator QStringView() const { return text_; }
  [[nodiscard]] QString toString() const { return text_.toString(); }

 private:
  QStringView text_;
};

/// What a routine that asks gives back: started, perhaps not finished. Move only; its value is taken once.
/// Destroying it ends the routine where it waits.
template <typename T>
class [[nodiscard]] Asked {
 public:
  struct promise_type {
    struct Finish {
      [[nodiscard]] bool await_ready() const noexcept { return false; }
      std::coroutine_handle<> await_suspend(std::coroutine_handle<promise_type> done) const noexcept {
        if (const auto next = done.promise().waiting) return next;
        return std::noop_coroutine();
      }
      void await_resume() const noexcept {}
    };

    promise_type() = default;  // no aggregate, which would take the routine's arguments for its members

    Asked get_return_object() { return Asked(std::coroutine_handle<promise_type>::from_promise(*this)); }
    std::suspend_never initial_suspend() const noexcept { return {}; }
    Finish final_suspend() const noexcept { return {}; }
    void return_value(T given) { value.emplace(std::move(given)); }
    void unhandled_exception() { error = std::current_exception(); }

    std::optional<T> value;
    std::exception_ptr error;
    std::coroutine_handle<> waiting;  ///< the routine that waits for this one
    Questions* questions = nullptr;   ///< the queue in which this one waits
  };

  Asked(Asked&& other) noexcept : routine_(std::exchange(other.routine_, {})) {}
  Asked& operator=(Asked&& other) noexcept {
    std::swap(routine_, other.routine_);
    return *this;
  }
  ~Asked() {
    if (routine_) routine_.destroy();
  }

  /// The value, for who is no such routine. Sends what waits in the queue until this one has ended.
  [[nodiscard]] friend T waitFor(Asked& asked) {
    while (!asked.routine_.done()) asked.routine_.promise().questions->step();
    return asked.await_resume();
  }
  [[nodiscard]] friend T waitFor(Asked&& asked) { return waitFor(asked); }

  [[nodiscard]] bool await_ready() const { return routine_.done(); }
  template <typename Promise>
  void await_suspend(std::coroutine_handle<Promise> waiting) {
    routine_.promise().waiting = waiting;
    waiting.promise().questions = routine_.promise().questions;
  }
  [[nodiscard]] T await_resume() {
    promise_type& ended = routine_.promise();
    if (ended.error) std::rethrow_exception(ended.error);
    return std::move(*ended.value);
  }

 private:
  explicit Asked(std::coroutine_handle<promise_type> routine) : routine_(routine) {}

  std::coroutine_handle<promise_type> routine_;
};

/// The answers of many, in their order.
template <typename T>
Asked<std::vector<T>> together(std::vector<Asked<T>> asked) {
  std::vector<T> answers;
  answers.reserve(asked.size());
  for (Asked<T>& one : asked) answers.push_back(co_await one);
  co_return answers;
}

/// Starts a routine for each row of a result, so that what all of them ask travels together. The routine is
/// called with the Recordset on the row, and returns an Asked.
template <typename Routine>
[[nodiscard]] auto startEachRow(Recordset rows, const Routine& routine) {
  std::vector<std::invoke_result_t<const Routine&, const Recordset&>> asked;
  const qsizetype count = rows.count();
  asked.reserve(static_cast<std::size_t>(count));
  for (Walk walk; !rows.eof(); rows.moveNext()) {
    walk.done(std::ssize(asked), count);
    asked.push_back(routine(rows));
  }
  return asked;
}

/// What a routine makes of each row of a result, in their order. All rows are started before the first is
/// waited for.
template <typename Routine>
auto forEachRow(Recordset rows, const Routine& routine) {
  return together(startEachRow(std::move(rows), routine));
}

/// An answer that is there already, where a question may not be needed.
template <typename T>
Asked<T> known(T value) {
  co_return value;
}

}  // namespace data
