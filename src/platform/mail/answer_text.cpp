#include "platform/mail/answer_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr qsizetype kShownLines = 4;
constexpr qsizetype kShownLength = 120;
constexpr qsizetype kPiece = 6;          // letters in a row that give a secret away
constexpr qsizetype kShortestSpelt = 4;  // shorter ones are found in any sentence, once blanks don't count
constexpr qsizetype kCodeLength = 4;     // "535 "

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

QString lettersAndDigits(QStringView text) {
  QString bare;
  for (const QChar c : text)
    if (c.isLetterOrNumber()) bare += c.toLower();
  return bare;
}

/// What a server could make of a secret, as letters and digits alone.
QStringList disguisesOf(const QString& secret) {
  const QByteArray bytes = secret.toUtf8();
  QString decimals;
  for (const char byte : bytes) decimals += QString::number(static_cast<uchar>(byte));
  QString reversed;
  for (const QChar c : secret) reversed.prepend(c);
  QStringList all;
  for (const QString& form : {secret, reversed, QString::fromLatin1(bytes.toHex()), decimals,
                              QString::fromLatin1(bytes.toBase64())})
    all << lettersAndDigits(form);
  return all;
}

/// Whether lines say a secret piece by piece, or in other signs; their codes aside.
bool spellsOut(const QStringList& lines, const QStringList& secrets) {
  QString said;
  for (const QString& line : lines) said += lettersAndDigits(QStringView(line).mid(kCodeLength));
  for (const QString& secret : secrets)
    for (const QString& form : disguisesOf(secret))
      if (form.size() >= kShortestSpelt && givesAway(said, form)) return true;
  return false;
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
  if (!spellsOut(shown, secrets)) return shown.join(u'\r');
  return QString::number(answer.left(3).toInt()) + u" •••"_s;
}

}  // namespace mail
