#include <algorithm>

#include "platform/data/asked.h"
#include "platform/values/runtime_error.h"

namespace data {

namespace {

/// What nobody holds any longer was asked by a routine that an error has ended.
bool isForgotten(const std::shared_ptr<Question>& question) { return question.use_count() == 1; }

}  // namespace

std::shared_ptr<Question> Questions::add(Statement statement) {
  if (answered_.empty() && std::ranges::all_of(asked_, isForgotten)) {
    walk_.emplace();
    handedOut_ = 0;
  }
  return asked_.emplace_back(std::make_shared<Question>(Question{std::move(statement), {}, {}, {}}));
}

void Questions::step() {
  if (answered_.empty()) send();
  if (answered_.empty()) return;
  const auto next = std::move(answered_.front());
  answered_.pop_front();
  ++handedOut_;
  if (const auto waiting = std::exchange(next->waiting, {})) waiting.resume();
  if (answered_.empty() && asked_.empty()) walk_.reset();
}

void Questions::send() {
  std::erase_if(asked_, isForgotten);
  if (walk_) walk_->done(handedOut_, handedOut_ + std::ssize(asked_));
  std::vector<Statement> statements;
  for (const auto& question : asked_) {
    statements.push_back(question->statement);
    if (statements.size() == kFullBatch) break;
  }
  std::vector<Recordset> results;
  std::exception_ptr error;
  try {
    send_(statements, results);
  } catch (...) {
    error = std::current_exception();
  }
  for (Recordset& result : results) {
    asked_.front()->answer = std::move(result);
    answered_.push_back(std::move(asked_.front()));
    asked_.pop_front();
  }
  if (error) failAll(error);
}

void Questions::failAll(const std::exception_ptr& error) {
  for (const auto& question : asked_) {
    question->error = error;
    answered_.push_back(question);
  }
  asked_.clear();
}

void Questions::end() {
  failAll(std::make_exception_ptr(
      values::RuntimeError(values::kClosedObject, values::standardText(values::kClosedObject))));
  while (!answered_.empty()) step();  // who asks again then is refused at once
  walk_.reset();
}

}  // namespace data
