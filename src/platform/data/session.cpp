#include "platform/data/session.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/data/odbc_string.h"
#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace data {

Session::~Session() {
  engine_ = nullptr;
  questions_.end();
}

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
  questions_.end();
  if (engine) engine->close();
}

void Session::announce(const QString& statement) {
  if (failure_) throw values::RuntimeError(*failure_);
  if (!engine_) values::raise(values::kClosedObject);
  if (listener_) listener_(statement);
}

void Session::fail(const values::RuntimeError& error, const QString& statement) {
  const values::RuntimeError known(error.number(), error.text(),
                                   error.statement().isEmpty() ? statement : error.statement());
  // The server may have rolled the transaction back: what came now would commit by itself.
  if (engine_ && (inTransaction_ || error.number() == values::kConnectionFailed)) failure_ = known;
  throw known;
}

void Session::runTogether(std::span<const Statement> request, std::vector<Recordset>& results) {
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

void Session::run(const std::vector<Statement>& statements, std::vector<Recordset>& results) {
  Walk walk;
  const std::size_t before = results.size();
  while (results.size() - before < statements.size()) {
    const std::size_t done = results.size() - before;
    walk.done(static_cast<qsizetype>(done), std::ssize(statements));
    const auto rest = std::span(statements).subspan(done);
    runTogether(rest.first(std::min(rest.size(), kFullBatch)), results);
  }
}

Asked<Recordset> Session::ask(Statement statement) {
  if (!engine_ || !engine_->sendsTogether()) {
    std::vector<Recordset> results;
    runTogether({&statement, 1}, results);
    co_return std::move(results.front());
  }
  Reading reading(questions_, std::move(statement));
  co_return co_await reading;
}

void Session::begin() {
  inTransaction_ = true;  // a begin that fails counts too: what came after it would commit by itself
  try {
    announce(u"BEGIN"_s);
    engine_->begin();
  } catch (const values::RuntimeError& error) {
    fail(error, u"BEGIN"_s);
  }
}

void Session::commit() {
  try {
    announce(u"COMMIT"_s);
    engine_->commit();
  } catch (const values::RuntimeError& error) {
    fail(error, u"COMMIT"_s);
  }
  inTransaction_ = false;
}

}  // namespace data
