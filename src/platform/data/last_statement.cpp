#include "platform/data/last_statement.h"

namespace data {

QString& lastStatement() {
  static QString statement;
  return statement;
}

}  // namespace data
