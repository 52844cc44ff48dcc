#include "documents/document_names.h"

#include "platform/values/numbers.h"
#include "run/context.h"

using namespace Qt::StringLiterals;

QString numeroDocumento(qint32 id) { return values::format(id, u"000000"); }

QString diaDaData(const QString& data) { return data.section(u' ', 0, 0); }

QString arquivoDocumento(const QString& tronco, qint32 id, const QString& extensao) {
  return contexto().PathDocs + tronco + u'_' + numeroDocumento(id) + extensao;
}
