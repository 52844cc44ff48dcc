#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/data/asked.h"
#include "platform/data/engine.h"
#include "platform/values/runtime_error.h"

namespace data {

/// What a Connection holds, at a place that does not change when the Connection moves.
class Session {
 public:
  Session() : questions_([this](const auto& statements, auto& results) { run(statements, results); }) {}
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void open(const QString& connectionString, int timeout);
  [[nodiscard]] bool isOpen() const { return engine_ != nullptr; }
  void close();
  /// Adds a result for each statement, up to the first that fails.
  void run(const std::vector<Statement>& statements, std::vector<Recordset>& results);
  [[nodiscard]] Asked<Recordset> ask(Statement statement);
  void begin();
  void commit();
  void setListener(std::function<void(const QString&)> listener) { listener_ = std::move(listener); }

 private:
  /// Raises what forbids the use of the connection; passes to the listener what is about to run.
  void announce(const QString& statement);
  /// A full batch at most.
  void runTogether(std::span<const Statement> request, std::vector<Recordset>& results);
  /// Raises an error of a statement; keeps one that ends the use of the connection.
  [[noreturn]] void fail(const values::RuntimeError& error, const QString& statement);

  std::unique_ptr<Engine> engine_;
  bool inTransaction_ = false;
  std::optional<values::RuntimeError> failure_;
  std::function<void(const QString&)> listener_;
  Questions questions_;
};

}  // namespace data
