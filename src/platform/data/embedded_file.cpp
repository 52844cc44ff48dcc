#include "platform/data/embedded_file.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr qsizetype kHeaderSize = 100;
constexpr qsizetype kPageSizeAt = 16;
constexpr qsizetype kChangeCounterAt = 24;
constexpr qsizetype kPageCountAt = 28;
constexpr qsizetype kPageCountValidForAt = 92;

[[noreturn]] void refuse(const QString& text) { throw values::RuntimeError(values::kConnectionFailed, text); }

quint32 big32(const QByteArray& header, qsizetype at) {
  return qFromBigEndian<quint32>(header.constData() + at);
}

/// Size recorded in the header; 0 if unknown.
qint64 toldSize(const QByteArray& header) {
  if (big32(header, kChangeCounterAt) != big32(header, kPageCountValidForAt)) return 0;
  const quint16 pageSize = qFromBigEndian<quint16>(header.constData() + kPageSizeAt);
  constexpr qint64 kLargestPage = 65536;  // does not fit the field, stands there as 1
  return big32(header, kPageCountAt) * (pageSize == 1 ? kLargestPage : pageSize);
}

/// Whether pages of the file may still stand in its log, which another program moves over as we look.
bool hasLog(const QString& path) { return QFileInfo(path + "-wal"_L1).size() > 0; }

}  // namespace

void checkEmbeddedFile(const QString& path) {
  if (!QFileInfo(path).isFile())
    refuse(
        u"O arquivo de dados não foi encontrado: %1\nVerifique o nome do banco em server.ini."_s.arg(path));
  const bool logBefore = hasLog(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    refuse(u"O arquivo de dados não pode ser lido: %1\nVerifique as permissões do arquivo."_s.arg(path));
  const QByteArray header = file.read(kHeaderSize);
  if (header.size() < kHeaderSize || !header.startsWith(QByteArrayView("SQLite format 3\0", 16)))
    refuse(u"O arquivo não é um banco de dados: %1\nVerifique o nome do banco em server.ini."_s.arg(path));
  if (!logBefore && file.size() < toldSize(header) && !hasLog(path))
    refuse(u"O arquivo de dados está incompleto: %1\nRestaure uma cópia de segurança."_s.arg(path));
}

}  // namespace data
