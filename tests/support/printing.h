#pragma once

#include <QString>
#include <ostream>

// Lets failed comparisons show texts as texts.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
QT_END_NAMESPACE
