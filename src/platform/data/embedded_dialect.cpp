#include "platform/data/embedded_dialect.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace data {

std::optional<QString> identityColumn(const QString& sql) {
  if (!sql.contains("@@"_L1)) return std::nullopt;
  static const QRegularExpression whole(
      uR"re(\A\s*select\s+@@identity(?:\s+as\s+(?:'([^']*)'|"([^"]*)"|\[([^\]]*)\]|(\w+)))?\s*;?\s*\z)re"_s,
      QRegularExpression::CaseInsensitiveOption);
  const auto match = whole.match(sql);
  if (!match.hasMatch()) return std::nullopt;
  return match.lastCapturedIndex() > 0 ? match.captured(match.lastCapturedIndex()) : QString(u""_s);
}

QString toEmbeddedDialect(const QString& sql) {
  const QStringView text = QStringView(sql).trimmed();
  if (!text.startsWith("delete"_L1, Qt::CaseInsensitive)) return sql;
  const QStringView rest = text.sliced(6).trimmed();
  if (rest.size() + 6 == text.size()) return sql;  // a longer word
  if (rest.startsWith("from"_L1, Qt::CaseInsensitive) && rest.size() > 4 && rest[4].isSpace()) return sql;
  return "DELETE FROM "_L1 + rest.toString();
}

}  // namespace data
