#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/data/asked.h"
#include "platform/data/engine.h"

namespace data {

/// What a Connection holds, at a place that does not change when the Connection moves.
class Session {
 public:
  Session() : questions_([this](const auto& statements) { return batch(statements); }) {}

  void open(const QString& connectionString, int timeout);
  [[nodiscard]] bool isOpen() const { return engine_ != nullptr; }
  void close();
  Recordset run(const Statement& statement);
  std::vector<Recordset> batch(const std::vector<Statement>& statements);
  [[nodiscard]] Asked<Recordset> ask(Statement statement);
  void begin();
  void commit();
  void setListener(std::function<void(const QString&)> listener) { listener_ = std::move(listener); }

 private:
  [[nodiscard]] bool sendsTogether() const { return engine_ && engine_->sendsTogether(); }
  /// Raises what forbids the use of the connection; passes to the listener what is about to run.
  void announce(const QString& statement);
  /// One request.
  void runTogether(std::span<const Statement> request, std::vector<Recordset>& results);
  /// Runs; keeps an error that ends the use of the connection.
  template <typename Run>
  auto guarded(Run run);

  std::unique_ptr<Engine> engine_;
  bool inTransaction_ = false;
  std::optional<values::RuntimeError> failure_;
  std::function<void(const QString&)> listener_;
  Questions questions_;
};

}  // namespace data
