#include "platform/data/asked.h"

namespace data {

std::shared_ptr<Question> Questions::add(Statement statement) {
  failure_.reset();
  return asked_.emplace_back(std::make_shared<Question>(Question{std::move(statement), {}, {}}));
}

void Questions::step() {
  if (answered_.empty()) send();
  const auto next = std::move(answered_.front());
  answered_.pop_front();
  if (const auto waiting = std::exchange(next->waiting, {})) waiting.resume();
}

void Questions::send() {
  // What nobody holds any longer was asked by a routine that an error has ended.
  std::erase_if(asked_, [](const auto& question) { return question.use_count() == 1; });
  if (asked_.empty()) throw failure_.value_or(values::RuntimeError(values::kClosedObject, {}));
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
    throw;
  }
}

}  // namespace data
