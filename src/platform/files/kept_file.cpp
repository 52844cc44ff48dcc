#include "platform/files/kept_file.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QThreadPool>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <utility>

#include "platform/files/contents.h"
#include "platform/files/process_lock.h"
#include "platform/files/regular_file.h"
#include "platform/values/runtime_error.h"

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace files {

namespace {

constexpr QFile::Permissions kOwnersFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
/// Another program holds a lock for a moment while it looks.
constexpr milliseconds kLockPatience{100};
/// No file of this program's comes near it.
constexpr qint64 kLargest = 100'000'000;
constexpr int kEndPatience = 2000;  // milliseconds

const QString kLockEnding = u".trava"_s;

/// The last line of a file shows that it is whole.
QByteArray lastLine(const QByteArray& content) {
  return "fim\t" + QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex() + '\n';
}

std::unique_ptr<ProcessLock> lockOf(const QString& path) {
  return ProcessLock::take(path + kLockEnding, kLockPatience);
}

KeptFile::Left readLeft(const QString& path) {
  KeptFile::Left left{path, QFileInfo(path).lastModified(), {}, false};
  QFile file;
  if (openRegular(file, path, QIODevice::ReadOnly) != 0 || file.size() > kLargest) return left;
  QByteArray all = file.readAll();
  const QByteArray last = all.sliced(all.lastIndexOf('\n', -2) + 1);
  all.chop(last.size());
  left.whole = last == lastLine(all);
  if (left.whole) left.content = all;
  return left;
}

}  // namespace

/// What the thread holds. Its jobs keep it alive: one that the disk holds up is left when the program ends.
class KeptFile::Keeper {
 public:
  using Wanted = std::optional<QByteArray>;

  Keeper(QString folder, QString ending) : folder_(std::move(folder)), ending_(std::move(ending)) {}

  std::mutex mutex;
  std::shared_ptr<Wanted> wanted;  ///< of the last job, while it waits; under the mutex
  std::atomic<bool> good = true;   ///< whether the disk took what came last

  // In the thread alone.

  void update(const std::shared_ptr<Wanted>& now) {
    {
      const std::lock_guard guard(mutex);
      if (wanted == now) wanted.reset();
    }
    good = now->has_value() ? write(**now) : remove();
    reported_ = !good;
  }

  void look(const std::function<void(const QList<Left>&)>& found) {
    QList<Left> all;
    const auto files = filesThere();
    for (auto file = files.begin(); file != files.end(); ++file) {
      if (file.key() == own_) continue;
      const auto lock = lockOf(file.key());
      if (!lock) continue;
      for (const QString& half : file.value()) QFile::remove(half);
      if (QFileInfo::exists(file.key())) all << readLeft(file.key());
    }
    found(all);
  }

  std::optional<KeptFile::Left> take(const QString& path) {
    auto lock = lockOf(path);
    if (!lock || !QFileInfo::exists(path)) return std::nullopt;
    own_ = path;
    lock_ = std::move(lock);
    return readLeft(path);
  }

  void giveBack() {
    lock_.reset();
    own_.clear();
  }

 private:
  [[nodiscard]] bool write(const QByteArray& content) {
    if (!makeOwn()) return report(u"a pasta não pode ser usada"_s);
    try {
      files::write(own_, content + lastLine(content), Readers::Nobody);
      return true;
    } catch (const values::RuntimeError& error) {
      return report(error.text());
    }
  }

  [[nodiscard]] bool remove() {
    if (!own_.isEmpty() && QFileInfo::exists(own_) && !QFile::remove(own_))
      return report(u"não pode ser removido"_s);
    giveBack();
    return true;
  }

  bool makeOwn() {
    if (lock_ && lock_->holds()) return true;
    // What stands in its place and is no folder is somebody else's, and so is what a link there leads to.
    if (!QDir().mkpath(folder_) || !QFileInfo(folder_).isDir()) return false;
    if (!QFileInfo(folder_).isSymLink()) QFile::setPermissions(folder_, kOwnersFolder);
    // Where the lock was removed by hand the file stays the own one, unless another program has found it.
    lock_.reset();
    if (!own_.isEmpty()) lock_ = lockOf(own_);
    if (lock_) return true;
    const QString name = folder_ + u'/' + QDateTime::currentDateTime().toString(u"yyyyMMdd-hhmmss-zzz"_s) +
                         u'-' + QString::number(QCoreApplication::applicationPid());
    own_ = name + ending_;
    // One that this program gave back in the same millisecond keeps its name.
    for (int next = 2; QFileInfo::exists(own_); ++next) own_ = name + u'-' + QString::number(next) + ending_;
    lock_ = lockOf(own_);
    return lock_ != nullptr;
  }

  /// A fault, once; false.
  bool report(const QString& why) {
    if (!reported_)
      std::fputs(u"Rascunho %1: %2\n"_s.arg(own_.isEmpty() ? folder_ : own_, why).toUtf8().constData(),
                 stderr);
    return false;
  }

  /// Paths of the files that are there, or of which something is, each with what a program leaves of it when
  /// it is killed while it writes.
  QHash<QString, QStringList> filesThere() const {
    // As makeOwn names them, with the ending of a lock or of a file that is not whole yet.
    const QRegularExpression own(u"^(\\d{8}-\\d{6}-\\d{3}-\\d+(?:-\\d+)?%1)(%2|\\.[A-Za-z]{6})?$"_s.arg(
        QRegularExpression::escape(ending_), QRegularExpression::escape(kLockEnding)));
    QHash<QString, QStringList> files;
    for (const QString& name :
         QDir(folder_).entryList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks)) {
      const auto parts = own.match(name);
      if (!parts.hasMatch()) continue;
      QStringList& halves = files[folder_ + u'/' + parts.captured(1)];
      if (parts.hasCaptured(2) && parts.captured(2) != kLockEnding) halves << folder_ + u'/' + name;
    }
    return files;
  }

  QString folder_, ending_;
  QString own_;
  std::unique_ptr<ProcessLock> lock_;
  bool reported_ = false;
};

KeptFile::KeptFile(const QString& folder, const QString& ending)
    : keeper_(std::make_shared<Keeper>(folder, ending)), disk_(std::make_unique<QThreadPool>()) {
  disk_->setMaxThreadCount(1);
}

KeptFile::~KeptFile() {
  giveBack();
  if (!disk_->waitForDone(kEndPatience)) static_cast<void>(disk_.release());
}

void KeptFile::want(std::optional<QByteArray> content) {
  const std::lock_guard guard(keeper_->mutex);
  if (keeper_->wanted) {
    *keeper_->wanted = std::move(content);
    return;
  }
  keeper_->wanted = std::make_shared<Keeper::Wanted>(std::move(content));
  disk_->start([keeper = keeper_, wanted = keeper_->wanted] { keeper->update(wanted); });
}

void KeptFile::post(const std::function<void(Keeper&)>& job) {
  const std::lock_guard guard(keeper_->mutex);
  keeper_->wanted.reset();  // what is wanted after this job may be wanted of another file
  disk_->start([keeper = keeper_, job] { job(*keeper); });
}

bool KeptFile::settle(milliseconds patience) {
  return disk_->waitForDone(static_cast<int>(patience.count())) && keeper_->good;
}

void KeptFile::look(const std::function<void(const QList<Left>&)>& found) {
  post([found](Keeper& keeper) { keeper.look(found); });
}

std::optional<KeptFile::Left> KeptFile::take(const QString& path, milliseconds patience) {
  // A late answer must find a place of its own.
  const auto taken = std::make_shared<std::optional<Left>>();
  post([taken, path](Keeper& keeper) { *taken = keeper.take(path); });
  if (disk_->waitForDone(static_cast<int>(patience.count()))) return *taken;
  giveBack();
  return std::nullopt;
}

void KeptFile::giveBack() { post(&Keeper::giveBack); }

}  // namespace files
