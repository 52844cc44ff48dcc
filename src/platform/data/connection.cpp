#include "platform/data/connection.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/data/engine.h"
#include "platform/data/odbc_string.h"
#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

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
      values::RuntimeError(values::kClosedObject, values::kClosedObject.text.toString())));
  while (!answered_.empty()) step();  // who asks again then is refused at once
  walk_.reset();
}

Connection::Connection()
    : questions_([this](const auto& statements, auto& results) { run(statements, results); }) {}

Connection::Connection(const QString& connectionString, int timeout) : Connection() {
  open(connectionString, timeout);
}

Connection::~Connection() { drop(); }

void Connection::open(const QString& connectionString, int timeout) {
  close();
  if (isEmbeddedString(connectionString))
    engine_ = openEmbedded(files::resolve(keyValue(connectionString, u"database").value_or(QString())));
  else
    engine_ = openOdbc(connectionString, timeout);
}

void Connection::close() {
  const auto engine = std::move(engine_);
  drop();
  if (engine) engine->close();
}

void Connection::drop() {
  engine_ = nullptr;
  inTransaction_ = false;
  failure_.reset();
  questions_.end();
}

void Connection::announce(const QString& statement) {
  if (failure_) throw values::RuntimeError(*failure_);
  if (!engine_) values::raise(values::kClosedObject);
  if (listener_) listener_(statement);
}

void Connection::fail(const values::RuntimeError& error, const QString& statement) {
  const values::RuntimeError known(error.number(), error.text(),
                                   error.statement().isEmpty() ? statement : error.statement());
  // The server may have rolled the transaction back: what came now would commit by itself.
  if (engine_ && (inTransaction_ || error.number() == values::kConnectionFailed)) failure_ = known;
  throw known;
}

void Connection::runTogether(std::span<const Statement> request, std::vector<Recordset>& results) {
  const std::size_t before = results.size();
  std::vector<ReadStatement> good;
  std::optional<values::RuntimeError> refusal;
  try {
    for (const Statement& statement : request) {
      announce(statement.sql);
      good.push_back(readOneStatement(statement));
    }
  } catch (const values::RuntimeError& error) {
    refusal = error;
  }
  const auto failing = [&] { return request[std::min(results.size() - before, request.size() - 1)].sql; };
  try {
    // An error of those in front comes first.
    if (!good.empty()) engine_->run(good, results);
    if (refusal) throw values::RuntimeError(*refusal);
  } catch (const std::bad_alloc&) {
    fail({values::kStatementFailed, u"O resultado não cabe na memória."_s}, failing());
  } catch (const values::RuntimeError& error) {
    fail(error, failing());
  }
}

void Connection::run(const std::vector<Statement>& statements, std::vector<Recordset>& results) {
  for (Walk walk; results.size() < statements.size();) {
    walk.done(std::ssize(results), std::ssize(statements));
    const auto rest = std::span(statements).subspan(results.size());
    runTogether(rest.first(std::min(rest.size(), kFullBatch)), results);
  }
}

std::vector<Recordset> Connection::batch(const std::vector<Statement>& statements) {
  std::vector<Recordset> results;
  results.reserve(statements.size());
  run(statements, results);
  return results;
}

void Connection::execute(const QString& sql) { batch({{sql}}); }

Recordset Connection::query(const QString& sql, Rows rows) { return batch({{sql, rows}}).front(); }

Asked<Recordset> Connection::ask(QString sql, Rows rows) {
  if (!engine_ || !engine_->sendsTogether()) co_return query(sql, rows);
  Reading reading(questions_, {std::move(sql), rows});
  co_return co_await reading;
}

void Connection::control(const QString& word, void (Engine::*command)()) {
  try {
    announce(word);
    (engine_.get()->*command)();
  } catch (const values::RuntimeError& error) {
    fail(error, word);
  }
}

void Connection::begin() {
  inTransaction_ = true;  // a begin that fails counts too: what came after it would commit by itself
  control(u"BEGIN"_s, &Engine::begin);
}

void Connection::commit() {
  control(u"COMMIT"_s, &Engine::commit);
  inTransaction_ = false;
}

}  // namespace data
