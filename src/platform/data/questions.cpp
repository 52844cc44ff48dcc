#include "platform/data/asked.h"

#include <algorithm>

namespace data {

namespace {

/// What nobody holds any longer was asked by a routine that an error has ended.
bool isForgotten(const std::shared_ptr<Question>& question) { return question.use_count() == 1; }

}  // namespace

std::shared_ptr<Question> Questions::add(Statement statement) {
  failure_.reset();
  if (answered_.empty() && std::ranges::all_of(asked_, isForgotten)) {
    walk_.emplace();
    handedOut_ = 0;
  }
  return asked_.emplace_back(std::make_shared<Question>(Question{std::move(statement), {}, {}}));
}

void Questions::step() {
  if (answered_.empty()) send();
  const auto next = std::move(answered_.front());
  answered_.pop_front();
  ++handedOut_;
  if (const auto waiting = std::exchange(next->waiting, {})) waiting.resume();
  if (answered_.empty() && asked_.empty()) walk_.reset();
}

void Questions::send() {
  std::erase_if(asked_, isForgotten);
  if (asked_.empty()) throw failure_.value_or(values::RuntimeError(values::kClosedObject, {}));
  if (walk_) walk_->done(handedOut_, handedOut_ + std::ssize(asked_));
  std::vector<Statement> statements;
  for (const auto& question : asked_) {
    statements.push_back(question->statement);
    if (statements.size() == kFullBatch) break;
  }
  try {
    std::vector<Recordset> results = send_(statements);
    for (Recordset& result : results) {
      asked_.front()->answer = std::move(result);
      answered_.push_back(std::move(asked_.front()));
      asked_.pop_front();
    }
  } catch (const values::RuntimeError& error) {
    failure_ = error;
    asked_.clear();
    walk_.reset();
    throw;
  }
}

}  // namespace data
