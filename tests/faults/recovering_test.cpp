#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QHash>
#include <QTest>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <memory>
#include <random>
#include <thread>

#include "draft/keeper.h"
#include "draft/screen_fields.h"
#include "entry.h"
#include "fault_case.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "support/printing.h"
#include "support/script.h"

using namespace Qt::StringLiterals;
using faults::Entry;
using sqlserver::TdsServer;

namespace {

constexpr int kNothing = -2;
constexpr int kStored = -1;

/// Milliseconds of the machine's clock.
qint64 now() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

/// What the processes of a test share.
struct Shared {
  static constexpr std::size_t kMost = 400;
  std::atomic<int> begun = -1;  ///< steps; -1 before the program has started
  std::atomic<qint64> begunAt = 0;
  std::array<std::atomic<qint64>, kMost> doneAt{};
  std::atomic<int> from = kNothing;  ///< so many steps were there again
  std::atomic<int> boxes = 0;
  std::atomic<bool> cut = false;  ///< whether the server is gone
};

/// A quote that is entered, each time in a process of its own, beside number 1 that is stored from the start.
class Entered : public faults::FaultCase {
 protected:
  Entered()
      : shared_(*new (mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1,
                           0)) Shared) {
    forms::setInputAnswerer([](const forms::Input&) { return u"E"_s; });
  }
  ~Entered() override {
    forms::setInputAnswerer({});
    munmap(&shared_, sizeof(Shared));
  }

  [[nodiscard]] QString folder() const { return drive() + u"/rascunhos"_s; }
  [[nodiscard]] QString database() const { return server_ ? server_->databasePath() : databasePath(); }
  [[nodiscard]] frmPropCmrcTL& begin() { return server_ ? startOn(*server_) : start(); }
  void useServer() {
    server_ = std::make_unique<TdsServer>();
    server_->setFault(
        [this](const QString&) { return shared_.cut ? TdsServer::Act::Cut : TdsServer::Act::Answer; });
  }

  /// Undisturbed: what the screens hold after each step, what is stored then, and how many statements it
  /// takes.
  void learn() {
    static_cast<void>(begin());
    states_ = {rascunho::retrato()};
    Entry entry;
    entry.after = [this](int number) {
      while (states_.size() < number) states_ << QString();
      states_ << rascunho::retrato();
    };
    contexto().Conexao.setListener([this](const QString&) { ++statements_; });
    // A step has states of its own between its handlers: a letter, then what completes it.
    forms::setRestObserver([this] {
      const QString state = rascunho::retrato();
      if (!between_.contains(state)) between_.insert(state, static_cast<int>(states_.size()) - 1);
    });
    entry.walk(0);
    forms::setRestObserver({});
    contexto().Conexao.setListener({});
    contexto().Conexao.close();
    forms::registry::clear();
    stored_ = rowsOf(database());
    ASSERT_EQ(states_.size(), entry.size() + 1);
    ASSERT_LT(entry.size(), static_cast<int>(Shared::kMost));
  }

  /// The program keeps drafts from here on; what was left is known when this returns.
  static void keep(const QString& place) {
    bool known = false;
    const auto seen =
        QObject::connect(&rascunho::guarda(), &rascunho::Guarda::ofertasMudaram, [&] { known = true; });
    rascunho::guarda().liga(place);
    QElapsedTimer since;
    for (since.start(); !known && since.elapsed() < 10'000;) support::settle();
    QObject::disconnect(seen);
  }
  void enter(int pause, const QString& place) {
    shared_.begun = 0;
    for (auto& at : shared_.doneAt) at = 0;
    keep(place);
    Entry entry;
    entry.before = [this](int number) {
      shared_.begunAt = now();
      shared_.begun = number;
    };
    entry.after = [&, done = 0](int number) mutable {
      while (done < number) shared_.doneAt.at(static_cast<std::size_t>(++done)) = now();
      if (pause > 0) QTest::qWait(pause);
    };
    entry.walk(0);
    shared_.boxes = static_cast<int>(boxes.size());
  }

  /// Starts the program again, recovers what is offered and finishes the entry.
  void recoverAndSave() {
    shared_.from = kNothing;
    auto& screen = again();
    keep(folder());
    Entry entry;
    const auto found = [this, &entry] {
      const QString state = rascunho::retrato();
      auto from = static_cast<int>(states_.indexOf(state));
      if (from < 0) from = between_.value(state, -1);
      if (from < 0) fail("this never was on the screens:\n" + rascunho::retrato().toUtf8());
      shared_.from = from;
      return entry.resumeAt(from);
    };
    entry.reopened = found;
    if (screen.lblRascunho->isVisible()) {
      support::click(screen.cmdRecuperar);
      const bool wasStored = !boxes.isEmpty() && boxes.first().contains(u"já foi gravado"_s);
      if (wasStored) shared_.from = kStored;
      if (wasStored) return;
      entry.walk(shared_.from == kNothing ? found() : entry.next());
    } else if (rowsOf(database()) == stored_) {
      shared_.from = kStored;
    } else {
      entry.walk(0);
    }
    if (screen.cmdSALVAR->isEnabled()) fail("not saved:\n" + boxes.join(u'\n').toUtf8());
  }
  static void fail(const QByteArray& why) {
    std::fputs(why.constData(), stderr);
    _exit(3);
  }

  /// What must hold when a process ended after so many begun steps, of which so many may not be lost.
  void expectRecovered(int begun, int sure) {
    ASSERT_EQ(statusOf(inChild([this] { recoverAndSave(); })), 0);
    const int from = shared_.from;
    if (from >= 0) ++offered_;
    EXPECT_LE(from, begun);
    if (from == kStored) {
      EXPECT_EQ(begun, states_.size() - 1);
    } else {
      // Before anything is typed there is no draft. The same state stands after steps that only look.
      EXPECT_GE(states_.lastIndexOf(states_.at(from == kNothing ? 2 : from)), sure);
    }
    EXPECT_EQ(rowsOf(database()), stored_);
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList());
  }

  template <class Routine>
  static pid_t inChild(Routine routine) {
    const pid_t child = fork();
    if (child != 0) return child;
    alarm(300);
    forms::setEnd({});
    routine();
    rascunho::guarda().desliga();
    _exit(0);
  }
  static int statusOf(pid_t child) {
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
  }

  Shared& shared_;
  std::unique_ptr<TdsServer> server_;
  QStringList states_, stored_;
  QHash<QString, int> between_;  ///< so many steps were done
  int statements_ = 0;
  int offered_ = 0;
};

TEST_F(Entered, IsThereUpToTheLastSecondAfterAKillAtAnyInstant) {
  constexpr int kFew = 20;
  constexpr qint64 kSecond = 1000;
  const int kills = qEnvironmentVariable("ZARIM_KILLS", QString::number(kFew)).toInt();
  const int pause = kills > kFew ? 12 : 3;
  learn();
  const auto enterAgain = [&] {
    static_cast<void>(begin());
    enter(pause, folder());
  };
  const qint64 start = now();
  ASSERT_EQ(statusOf(inChild(enterAgain)), 0);
  const qint64 whole = now() - start;
  const auto last = static_cast<int>(states_.size()) - 1;
  const qint64 saving = shared_.doneAt.at(static_cast<std::size_t>(last)) - shared_.begunAt;

  std::mt19937 random(1);
  const auto within = [&random](qint64 milliseconds) {
    std::this_thread::sleep_for(
        std::chrono::microseconds(std::uniform_int_distribution<qint64>(0, milliseconds * 1000)(random)));
  };
  qint64 worst = 0;
  for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
    shared_.begun = -1;
    const pid_t child = inChild(enterAgain);
    const auto awaitStep = [this, begun = now()](int step) {
      while (shared_.begun < step && now() - begun < 60'000)
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    };
    awaitStep(0);
    // Each fifth falls into the save.
    const bool inSave = kill % 5 == 4;
    if (inSave) awaitStep(last);
    within(inSave ? saving * 2 : whole);
    ::kill(child, SIGKILL);
    const qint64 at = now();
    static_cast<void>(statusOf(child));
    const int begun = shared_.begun;
    const auto done = [&](int step) -> qint64 { return shared_.doneAt.at(static_cast<std::size_t>(step)); };
    int sure = 0;
    while (sure < begun && done(sure + 1) != 0 && done(sure + 1) <= at - kSecond) ++sure;
    SCOPED_TRACE(u"kill %1 at step %2"_s.arg(kill).arg(begun).toStdString());
    expectRecovered(begun, sure);
    if (shared_.from < 0) continue;
    const auto lost = static_cast<int>(states_.lastIndexOf(states_.at(shared_.from))) + 1;
    if (lost <= begun && done(lost) != 0) worst = std::max(worst, at - done(lost));
  }
  RecordProperty("kills", kills);
  RecordProperty("offered", offered_);
  RecordProperty("worstMilliseconds", static_cast<int>(worst));
}

/// The parameter: whether the server goes away. Otherwise a handler fails with an error 13.
class Ended : public Entered, public ::testing::WithParamInterface<bool> {};

TEST_P(Ended, ByAnErrorIsThereWhole) {
  constexpr int kErrors = 8;
  if (GetParam()) useServer();
  learn();
  for (int error = 0; error < kErrors && !HasFailure(); ++error) {
    const int victim = (statements_ - 1) * error / (kErrors - 1);
    const pid_t child = inChild([&] {
      static_cast<void>(begin());
      contexto().Conexao.setListener([&, passed = 0](const QString&) mutable {
        if (passed++ != victim) return;
        if (!GetParam()) throw values::RuntimeError(13, u"Tipos incompatíveis"_s);
        shared_.cut = true;
      });
      enter(0, folder());
    });
    const int status = statusOf(child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << "statement " << victim;
    shared_.cut = false;
    SCOPED_TRACE(u"statement %1, step %2"_s.arg(victim).arg(shared_.begun).toStdString());
    expectRecovered(shared_.begun, shared_.begun - 1);
  }
  RecordProperty("errors", kErrors);
  RecordProperty("offered", offered_);
}

INSTANTIATE_TEST_SUITE_P(Errors, Ended, ::testing::Bool(),
                         [](const auto& one) { return one.param ? "LostServer" : "Handler"; });

TEST_F(Entered, GoesOnWithoutAWordWhereNoDraftCanBeKept) {
  learn();
  const int usual = static_cast<int>(boxes.size());
  const struct {
    const char* what;
    unsigned long flags;
    bool isDisk;
  } places[] = {{"full", 0, true}, {"read-only", MS_RDONLY, true}, {"a file", 0, false}};
  const QString disk = drive() + u"/disco"_s;
  const QByteArray path = disk.toUtf8();
  QDir().mkpath(disk);
  for (const auto& place : places) {
    SCOPED_TRACE(place.what);
    // Only who may mount has such disks.
    if (place.isDisk && mount("tmpfs", path.constData(), "tmpfs", place.flags, "size=4k") != 0) continue;
    QFile filler(disk + u"/x"_s);
    if (filler.open(QIODevice::WriteOnly)) filler.write(QByteArray(8192, 'x'));
    filler.close();
    const QString file = drive() + u"/first.db"_s;
    const auto rights = QFile::permissions(file);
    const auto entered = [&] {
      static_cast<void>(begin());
      enter(0, place.isDisk ? disk : file);
    };
    EXPECT_EQ(statusOf(inChild(entered)), 0);
    EXPECT_EQ(shared_.boxes, usual);
    EXPECT_EQ(QFile::permissions(file), rights);
    EXPECT_EQ(rowsOf(database()), stored_);
    EXPECT_EQ(QDir(disk).entryList({u"*.rascunho*"_s}, QDir::Files | QDir::Hidden), QStringList());
    if (place.isDisk) umount(path.constData());
  }
}

}  // namespace
