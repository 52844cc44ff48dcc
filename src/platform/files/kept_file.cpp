#include "platform/files/kept_file.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <mutex>
#include <thread>
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
constexpr milliseconds kEndPatience{2000};

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

/// The thread, what it is asked for, and what it holds. The thread keeps it alive: one that the disk holds up
/// is left when the program ends.
class KeptFile::Keeper : public std::enable_shared_from_this<Keeper> {
 public:
  Keeper(QString folder, QString ending) : folder_(std::move(folder)), ending_(std::move(ending)) {}

  void start() {
    std::thread([self = shared_from_this()] { self->run(); }).detach();
  }
  void end() {
    std::unique_lock guard(mutex_);
    last_ = true;
    changed_.notify_all();
    changed_.wait_for(guard, kEndPatience, [this] { return ended_; });
  }

  /// What the file shall hold from here on; nothing where there shall be none.
  void want(std::optional<QByteArray> content) {
    const std::lock_guard guard(mutex_);
    if (wanted_) {
      *wanted_ = std::move(content);
      return;
    }
    wanted_ = std::make_shared<Wanted>(std::move(content));
    jobs_.emplace_back([this, wanted = wanted_] { update(wanted); });
    changed_.notify_all();
  }
  void post(std::function<void()> job) {
    const std::lock_guard guard(mutex_);
    wanted_.reset();  // what is wanted after this job may be wanted of another file
    jobs_.push_back(std::move(job));
    changed_.notify_all();
  }
  bool waitForDisk(milliseconds patience) {
    std::unique_lock guard(mutex_);
    return changed_.wait_for(guard, patience, [this] { return jobs_.empty() && !busy_; });
  }
  bool isGood() {
    const std::lock_guard guard(mutex_);
    return good_;
  }

  void look(const std::function<void(const QList<Left>&)>& found);
  std::optional<Left> take(const QString& path);
  void giveBack() {
    lock_.reset();
    own_.clear();
  }

 private:
  using Wanted = std::optional<QByteArray>;

  void run();
  void update(const std::shared_ptr<Wanted>& wanted);
  [[nodiscard]] bool write(const QByteArray& content);
  [[nodiscard]] bool remove();
  bool makeOwn();
  void report(const QString& why);
  QHash<QString, QStringList> filesThere() const;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> jobs_;
  std::shared_ptr<Wanted> wanted_;  ///< of the last job, while it waits
  bool busy_ = false;
  bool last_ = false;
  bool ended_ = false;  ///< the lock is free again
  bool good_ = true;    ///< whether the disk took what came last

  // The thread's own.
  QString folder_, ending_;
  QString own_;
  std::unique_ptr<ProcessLock> lock_;
  bool reported_ = false;
};

void KeptFile::Keeper::run() {
  std::unique_lock guard(mutex_);
  while (true) {
    changed_.wait(guard, [this] { return !jobs_.empty() || last_; });
    if (jobs_.empty()) break;
    const auto job = std::move(jobs_.front());
    jobs_.pop_front();
    busy_ = true;
    guard.unlock();
    job();
    guard.lock();
    busy_ = false;
    changed_.notify_all();
  }
  lock_.reset();
  ended_ = true;
  changed_.notify_all();
}

bool KeptFile::Keeper::makeOwn() {
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

void KeptFile::Keeper::update(const std::shared_ptr<Wanted>& wanted) {
  {
    const std::lock_guard guard(mutex_);
    if (wanted_ == wanted) wanted_.reset();
  }
  const bool good = wanted->has_value() ? write(**wanted) : remove();
  reported_ = !good;
  const std::lock_guard guard(mutex_);
  good_ = good;
}

bool KeptFile::Keeper::write(const QByteArray& content) {
  if (!makeOwn()) {
    report(u"a pasta não pode ser usada"_s);
    return false;
  }
  try {
    files::write(own_, content + lastLine(content), Readers::Nobody);
    return true;
  } catch (const values::RuntimeError& error) {
    report(error.text());
    return false;
  }
}

bool KeptFile::Keeper::remove() {
  if (!own_.isEmpty() && QFileInfo::exists(own_) && !QFile::remove(own_)) {
    report(u"não pode ser removido"_s);
    return false;
  }
  giveBack();
  return true;
}

void KeptFile::Keeper::report(const QString& why) {
  if (reported_) return;
  std::fputs((u"Rascunho %1: %2\n"_s.arg(own_.isEmpty() ? folder_ : own_, why)).toUtf8().constData(), stderr);
}

/// Paths of the files that are there, or of which something is, each with what a program leaves of it when it
/// is killed while it writes.
QHash<QString, QStringList> KeptFile::Keeper::filesThere() const {
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

void KeptFile::Keeper::look(const std::function<void(const QList<Left>&)>& found) {
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

std::optional<KeptFile::Left> KeptFile::Keeper::take(const QString& path) {
  auto lock = lockOf(path);
  if (!lock || !QFileInfo::exists(path)) return std::nullopt;
  own_ = path;
  lock_ = std::move(lock);
  return readLeft(path);
}

KeptFile::KeptFile(const QString& folder, const QString& ending)
    : keeper_(std::make_shared<Keeper>(folder, ending)) {
  keeper_->start();
}

KeptFile::~KeptFile() { keeper_->end(); }

void KeptFile::keep(const QByteArray& content) { keeper_->want(content); }

void KeptFile::drop() { keeper_->want(std::nullopt); }

bool KeptFile::settle(milliseconds patience) { return keeper_->waitForDisk(patience) && keeper_->isGood(); }

void KeptFile::look(std::function<void(const QList<Left>&)> found) {
  keeper_->post([keeper = keeper_.get(), found = std::move(found)] { keeper->look(found); });
}

std::optional<KeptFile::Left> KeptFile::take(const QString& path, milliseconds patience) {
  // A late answer must find a place of its own.
  const auto taken = std::make_shared<std::optional<Left>>();
  keeper_->post([keeper = keeper_.get(), taken, path] { *taken = keeper->take(path); });
  if (keeper_->waitForDisk(patience)) return *taken;
  giveBack();
  return std::nullopt;
}

void KeptFile::giveBack() {
  keeper_->post([keeper = keeper_.get()] { keeper->giveBack(); });
}

}  // namespace files
