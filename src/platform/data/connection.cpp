#include "platform/data/connection.h"

#include <utility>

#include "platform/data/engine.h"
#include "platform/data/one_statement.h"
#include "platform/files/paths.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// Value of a key of a connection string, empty without it.
QString keyValue(const QString& connectionString, QStringView key) {
  for (const QString& pair : connectionString.split(u';')) {
    const qsizetype equals = pair.indexOf(u'=');
    if (equals >= 0 && QStringView(pair).first(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0)
      return pair.sliced(equals + 1).trimmed();
  }
  return {};
}

}  // namespace

Connection::Connection() = default;
Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;

void Connection::open(const QString& connectionString, int timeout) {
  close();
  if (keyValue(connectionString, u"server").compare(u"(embutido)", Qt::CaseInsensitive) == 0)
    engine_ = openEmbedded(files::resolve(keyValue(connectionString, u"database")));
  else
    engine_ = openOdbc(connectionString, timeout);
}

bool Connection::isOpen() const { return engine_ != nullptr; }

void Connection::close() {
  const auto engine = std::exchange(engine_, nullptr);
  inTransaction_ = false;
  failure_.reset();
  if (engine) engine->close();
}

template <typename Run>
auto Connection::guarded(const QString& statement, Run run) {
  if (failure_) throw values::RuntimeError(*failure_);
  if (!engine_) values::raise(values::kClosedObject);
  if (listener_) listener_(statement);
  try {
    return run();
  } catch (const values::RuntimeError& error) {
    // The server may have rolled the transaction back: what came now would commit by itself.
    if (inTransaction_ || error.number() == values::kConnectionFailed) failure_ = error;
    throw;
  }
}

void Connection::execute(const QString& sql) {
  guarded(sql, [&] {
    requireOneStatement(sql);
    engine_->execute(sql);
  });
}

Recordset Connection::query(const QString& sql) {
  return guarded(sql, [&] {
    requireOneStatement(sql);
    return engine_->query(sql);
  });
}

void Connection::begin() {
  inTransaction_ = true;  // a begin that fails counts too: what came behind it would commit by itself
  guarded(u"BEGIN"_s, [&] { engine_->begin(); });
}

void Connection::commit() {
  guarded(u"COMMIT"_s, [&] { engine_->commit(); });
  inTransaction_ = false;
}

void Connection::setListener(std::function<void(const QString&)> listener) {
  listener_ = std::move(listener);
}

}  // namespace data
