#include "documents/document_names.h"

#include "platform/values/numbers.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

QString NumeroDocumento(qint32 id) { return values::format(id, u"000000"); }

QString DiaDaData(const QString& data) { return data.section(u' ', 0, 0); }

QString ArquivoDocumento(const QString& tronco, qint32 id, const QString& extensao) {
  return contexto().PathDocs + tronco + u'_' + NumeroDocumento(id) + extensao;
}
