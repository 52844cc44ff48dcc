#pragma once

#include <QByteArray>
#include <QStringList>

namespace mail {

/// A server's answer for an error box: its first lines, cut to a length that fits, without control
/// characters. A word that holds a piece of a secret, in whatever case, is blotted out; of an answer that
/// spells one out, or says it in numbers or backwards, the code alone is shown. Empty for an empty answer.
[[nodiscard]] QString answerText(const QByteArray& answer, const QStringList& secrets);

}  // namespace mail
