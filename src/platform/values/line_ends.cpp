#include "platform/values/line_ends.h"

namespace values {

using namespace Qt::StringLiterals;

QString withPlainLineEnds(QString text) { return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'); }

QString withWindowsLineEnds(const QString& text) { return withPlainLineEnds(text).replace(u'\n', u"\r\n"_s); }

}  // namespace values
