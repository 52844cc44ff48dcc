#include "documents/document_names.h"

#include "run/context.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

QString diaDaData(const QString& data) { return data.section(u' ', 0, 0); }

QString arquivoDocumento(const QString& tronco, qint32 id, const QString& extensao) {
  return contexto().PathDocs + tronco + u'_' + numeroDocumento(id) + extensao;
}
