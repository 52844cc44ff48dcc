#pragma once

#include <QString>

/// The day of a date text, "05/03/2024" of "05/03/2024 10:30:00".
[[nodiscard]] QString diaDaData(const QString& data);

/// Name of a document's file: PathDocs, the stem, "_", the id in at least six digits, the ending (".html").
[[nodiscard]] QString arquivoDocumento(const QString& tronco, qint32 id, const QString& extensao);
