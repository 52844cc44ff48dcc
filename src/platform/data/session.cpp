#include "platform/data/session.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/data/last_statement.h"
#include "platform/data/odbc_string.h"
#include "platform/data/one_statement.h"
#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace data {

void Session::open(const QString& connectionString, int timeout) {
  close();
  if (isEmbeddedString(connectionString))
    engine_ = openEmbedded(files::resolve(keyValue(connectionString, u"database").value_or(QString())));
  else
    engine_ = openOdbc(connectionString, timeout);
}

void Session::close() {
  const auto engine = std::exchange(engine_, nullptr);
  inTransaction_ = false;
  failure_.reset();
  if (engine) engine->close();
}

void Session::announce(const QString& statement) {
  lastStatement() = statement;
  if (failure_) throw values::RuntimeError(*failure_);
  if (!engine_) values::raise(values::kClosedObject);
  if (listener_) listener_(statement);
}

template <typename Run>
auto Session::guarded(Run run) {
  try {
    try {
      return run();
    } catch (const std::bad_alloc&) {
      throw values::RuntimeError(values::kStatementFailed, u"O resultado não cabe na memória."_s);
    }
  } catch (const values::RuntimeError& error) {
    // The server may have rolled the transaction back: what came now would commit by itself.
    if (inTransaction_ || error.number() == values::kConnectionFailed) failure_ = error;
    throw;
  }
}

Recordset Session::run(const Statement& statement) {
  announce(statement.sql);
  return guarded([&] {
    requireOneStatement(statement.sql);
    return engine_->run(statement);
  });
}

void Session::runTogether(std::span<const Statement> request, std::vector<Recordset>& results) {
  std::size_t count = 0;
  std::optional<values::RuntimeError> refusal;
  try {
    for (; count < request.size(); ++count) {
      announce(request[count].sql);
      requireOneStatement(request[count].sql);
    }
  } catch (const values::RuntimeError& error) {
    refusal = error;
  }
  guarded([&] {
    // An error of those in front comes first.
    if (count > 0) engine_->runTogether(request.first(count), results);
    if (refusal) throw values::RuntimeError(*refusal);
  });
}

std::vector<Recordset> Session::batch(const std::vector<Statement>& statements) {
  std::vector<Recordset> results;
  results.reserve(statements.size());
  try {
    Walk walk;
    while (results.size() < statements.size()) {
      walk.done(std::ssize(results), std::ssize(statements));
      const auto rest = std::span(statements).subspan(results.size());
      if (sendsTogether())
        runTogether(rest.first(std::min(rest.size(), kFullBatch)), results);
      else
        results.push_back(run(rest.front()));
    }
  } catch (const values::RuntimeError& error) {
    if (results.size() < statements.size()) lastStatement() = statements[results.size()].sql;
    throw BatchError(error, static_cast<qsizetype>(results.size()));
  }
  return results;
}

Asked<Recordset> Session::ask(Statement statement) {
  if (!sendsTogether()) co_return run(statement);
  Reading reading(questions_, std::move(statement));
  co_return co_await reading;
}

void Session::begin() {
  inTransaction_ = true;  // a begin that fails counts too: what came after it would commit by itself
  announce(u"BEGIN"_s);
  guarded([&] { engine_->begin(); });
}

void Session::commit() {
  announce(u"COMMIT"_s);
  guarded([&] { engine_->commit(); });
  inTransaction_ = false;
}

}  // namespace data
