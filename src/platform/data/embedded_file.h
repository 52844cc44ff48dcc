#pragma once

#include <QString>

namespace data {

/// Looks at an embedded file before it is opened: raises -2147467259 when it is missing, is no database, or
/// is shorter than it says it is.
void checkEmbeddedFile(const QString& path);

}  // namespace data
