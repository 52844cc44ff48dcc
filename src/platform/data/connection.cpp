#include "platform/data/connection.h"

#include <utility>

#include "platform/data/session.h"

namespace data {

Connection::Connection() : session_(std::make_unique<Session>()) {}
Connection::~Connection() = default;
Connection::Connection(Connection&& other) noexcept : Connection() { std::swap(session_, other.session_); }
Connection& Connection::operator=(Connection&& other) noexcept {
  std::swap(session_, other.session_);
  other.session_ = std::make_unique<Session>();  // what was here ends
  return *this;
}

void Connection::open(const QString& connectionString, int timeout) {
  session_->open(connectionString, timeout);
}

bool Connection::isOpen() const { return session_->isOpen(); }

void Connection::close() { session_->close(); }

void Connection::execute(const QString& sql) { batch({{sql}}); }

Recordset Connection::query(const QString& sql, Rows rows) { return batch({{sql, rows}}).front(); }

std::vector<Recordset> Connection::batch(const std::vector<Statement>& statements) {
  std::vector<Recordset> results;
  results.reserve(statements.size());
  session_->run(statements, results);
  return results;
}

Asked<Recordset> Connection::ask(QString sql, Rows rows) { return session_->ask({std::move(sql), rows}); }

void Connection::begin() { session_->begin(); }

void Connection::commit() { session_->commit(); }

void Connection::setListener(std::function<void(const QString&)> listener) {
  session_->setListener(std::move(listener));
}

}  // namespace data
