#pragma once

#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <ostream>
#include <set>
#include <vector>

#include "schema/tables.h"

// The engines that the contract suite runs against. Each says how it is reached, how its tables are made and
// what it does not do as the server does.
namespace contract {

enum class Trait {
  CaseOfAccents,   ///< "É" equals "é"
  PaddedEquality,  ///< trailing blanks don't count
  EmptyIsZero,     ///< '' into a whole-number column is 0
  Refusal,         ///< what does not fit a column's type is refused
  Dates,           ///< "yyyymmdd hh:mm" is a date
  Identity,        ///< `@@identity`
  BareDelete,      ///< DELETE without FROM
  Rollback,        ///< what was not committed is gone
  AllOfUnicode,    ///< keeps characters outside code page 1252
};

class Engine {
 public:
  virtual ~Engine() = default;
  [[nodiscard]] virtual QString connectionString() = 0;
  [[nodiscard]] virtual QStringList createTable(const schema::Table& table) = 0;
  [[nodiscard]] virtual std::set<Trait> lacks() const { return {}; }
};

struct EngineKind {
  const char* name;
  std::function<std::unique_ptr<Engine>()> make;
};

inline void PrintTo(const EngineKind& kind, std::ostream* out) { *out << kind.name; }

[[nodiscard]] const std::vector<EngineKind>& engines();

}  // namespace contract
