#include "platform/files/contents.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>
#include <QThread>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/files/paths.h"
#include "platform/files/regular_file.h"
#include "platform/values/line_ends.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;

namespace files {

namespace {

using values::raise;

/// What a failed operation on a file means for the program; by the system's number of the error.
[[noreturn]] void raiseFor(int fault, const QString& path) {
  if (!QFileInfo(QFileInfo(path).path()).isDir()) raise(values::kPathNotFound, path);
  if (fault == EACCES || fault == EPERM) raise(values::kPermissionDenied, path);
  if (fault == ENOSPC || fault == EFBIG) raise(values::kDiskFull, path);
  raise(values::kPathFileAccess, path);
}

int faultOf(QFileDevice::FileError error) {
  if (error == QFileDevice::PermissionsError) return EACCES;
  return error == QFileDevice::ResourceError ? ENOSPC : EIO;
}

void openOrRaise(QFile& file, const QString& path, QIODevice::OpenMode mode) {
  if (const int fault = openRegular(file, path, mode); fault != 0) raiseFor(fault, path);
}

std::function<bool(const QString&)> heldFileQuestion;

/// Waits until no other program holds a file: a virus scanner lets go by itself, a word processor doesn't.
void waitUntilFree(const QString& found, const QString& path) {
  constexpr std::chrono::milliseconds kNap{20}, kScan{500};
  for (QDeadlineTimer scan(kScan); isHeld(found); std::this_thread::sleep_for(kNap)) {
    if (!scan.hasExpired()) continue;
    const bool here = qApp != nullptr && QThread::currentThread() == qApp->thread();
    if (!here || !heldFileQuestion) raise(values::kPermissionDenied, path);
    if (!heldFileQuestion(path)) throw values::Cancelled();
    scan = QDeadlineTimer(kScan);
  }
}

/// Windows-1252 differs from Latin-1 in these 32 places only.
constexpr std::u16string_view kWindows1252 =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
    u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";

QString decode(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  QString text = decoder(bytes);
  if (!decoder.hasError()) return text;
  text = QString::fromLatin1(bytes);
  for (QChar& c : text)
    if (c >= QChar(0x80) && c < QChar(0xA0)) c = kWindows1252[c.unicode() - 0x80U];
  return text;
}

}  // namespace

void setHeldFileQuestion(std::function<bool(const QString&)> question) {
  heldFileQuestion = std::move(question);
}

void remove(const QString& path) {
  const QString found = resolve(path);
  if (!QFileInfo(found).isFile() && !QFileInfo(found).isSymLink()) raise(values::kFileNotFound, path);
  waitUntilFree(found, path);
  QFile file(found);
  if (!file.remove())
    raise(lastFault() == EACCES ? values::kPermissionDenied : values::kPathFileAccess, path);
}

void removeIfThere(const QString& path) {
  // Another program may take it away, and put a new one there, between the look and the removal.
  constexpr int kTries = 20;
  for (int tries = 1; exists(path); ++tries) {
    try {
      return remove(path);
    } catch (const values::RuntimeError&) {
      if (tries == kTries) throw;
    }
  }
}

QByteArray readAll(const QString& path) {
  const QString found = resolve(path);
  if (!QFileInfo(QFileInfo(found).path()).isDir()) raise(values::kPathNotFound, path);
  if (!QFileInfo::exists(found)) raise(values::kFileNotFound, path);
  QFile file;
  openOrRaise(file, found, QIODevice::ReadOnly);
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) raiseFor(faultOf(file.error()), found);
  return bytes;
}

QStringList readLines(const QString& path) {
  QString text = values::withPlainLineEnds(decode(readAll(path)));
  if (text.endsWith(u'\n'))
    text.chop(1);
  else if (text.isEmpty())
    return {};
  return text.split(u'\n');
}

void append(const QString& path, const QByteArray& bytes) {
  const QString found = resolve(path);
  const bool begun = !QFileInfo::exists(found);
  QFile file;
  openOrRaise(file, found, QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
  const qint64 before = file.size();
  if (file.write(bytes) == bytes.size()) return;
  const int fault = lastFault();
  if (begun)
    QFile::remove(found);
  else
    file.resize(before);
  raiseFor(fault, found);
}

void replace(const QString& from, const QString& path) {
  const QString found = resolve(path);
  waitUntilFree(found, path);
  std::error_code fault;
  std::filesystem::rename(QFileInfo(resolve(from)).filesystemFilePath(),
                          QFileInfo(found).filesystemFilePath(), fault);
  if (fault) raiseFor(fault.default_error_condition().value(), found);
}

void write(const QString& path, const QByteArray& bytes, Readers readers) {
  const QString found = resolve(path);
  waitUntilFree(found, path);
  QSaveFile file(found);  // the old content stays until the new one is whole
  if (!file.open(QIODevice::WriteOnly)) raiseFor(faultOf(file.error()), found);
  if (readers == Readers::Nobody) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
  // A commit alone would put half a file in place of the old one where the disk is full.
  if (file.write(bytes) != bytes.size() || !file.flush()) raiseFor(lastFault(), found);
  if (!file.commit()) raiseFor(faultOf(file.error()), found);
}

}  // namespace files
