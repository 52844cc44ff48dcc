#pragma once

#include <QString>

/// An id in at least six digits, "000123".
[[nodiscard]] QString numeroDocumento(qint32 id);

/// The day of a date text, "05/03/2024" of "05/03/2024 10:30:00".
[[nodiscard]] QString diaDaData(const QString& data);

/// Name of a document's file: PathDocs, the stem, "_", the id in at least six digits, the ending (".html").
[[nodiscard]] QString arquivoDocumento(const QString& tronco, qint32 id, const QString& extensao);
