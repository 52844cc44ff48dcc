#include "platform/mail/answer_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr qsizetype kShownLines = 4;
constexpr qsizetype kShownLength = 120;
constexpr qsizetype kPiece = 6;  // letters in a row that give a secret away

bool isShown(QChar c) { return c == u'\n' || (c.isPrint() && c.category() != QChar::Other_Format); }

bool givesAway(QStringView word, const QString& secret) {
  const qsizetype length = std::min(kPiece, secret.size());
  for (qsizetype at = 0; at + length <= word.size(); ++at)
    if (secret.contains(word.sliced(at, length), Qt::CaseInsensitive)) return true;
  return false;
}

QString withoutSecrets(QString line, const QStringList& secrets) {
  for (const QString& secret : secrets) line.replace(secret, u"•••"_s, Qt::CaseInsensitive);
  QStringList words = line.split(u' ', Qt::SkipEmptyParts);
  for (QString& word : words)
    if (std::ranges::any_of(secrets, [&word](const QString& secret) { return givesAway(word, secret); }))
      word = u"•••"_s;
  return words.join(u' ');
}

}  // namespace

QString answerText(const QByteArray& answer, const QStringList& secrets) {
  QString text = QString::fromUtf8(answer);
  std::ranges::replace_if(
      text, [](QChar c) { return !isShown(c); }, QChar(u' '));
  QStringList shown;
  for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
    const QString clean = withoutSecrets(line, secrets);
    if (clean.isEmpty()) continue;
    if (shown.size() == kShownLines) {
      shown << u"…"_s;
      break;
    }
    shown << (clean.size() > kShownLength ? clean.first(kShownLength) + u'…' : clean);
  }
  return shown.join(u'\r');
}

}  // namespace mail
