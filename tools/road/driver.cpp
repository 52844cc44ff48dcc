#include "driver.h"

#include <QDir>
#include <QTimer>
#include <cstdio>
#include <utility>

#include "outside.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/values/dates.h"
#include "platform/values/runtime_error.h"
#include "platform/web/web_pane.h"
#include "quote/program.h"
#include "stage.h"

using namespace Qt::StringLiterals;

namespace road {

namespace {

constexpr int kBusyPause = 3;
constexpr int kPollPause = 25;
constexpr qint64 kWaitPatience = 60'000;
constexpr qint64 kLaterPatience = 15'000;
constexpr qint64 kPagePause = 1'200;  // a page that has not changed for so long is painted

/// Modal forms and boxes whose loops run.
int depth() { return forms::modalDepth() + forms::boxesWaiting(); }

int modalFormsShown() {
  int count = 0;
  for (const forms::Form* form : forms::registry::shown()) count += form->isModal() ? 1 : 0;
  return count;
}

void setClock(const QString& when) {
  if (when.isEmpty()) return;
  values::setClock([date = values::toDate(when)] { return date; });
}

/// Whether a picture has one colour, except for its edges.
bool isPlain(const QImage& picture) {
  const QImage inner = picture.copy(picture.rect().adjusted(16, 16, -16, -16)).scaled(40, 40);
  for (int y = 0; y < inner.height(); ++y)
    for (int x = 0; x < inner.width(); ++x)
      if (inner.pixel(x, y) != inner.pixel(0, 0)) return false;
  return true;
}

QString commandLineOf(const Step& step) {
  QStringList words;
  for (const Word& word : step.words) words << word.text;
  return words.join(u' ');
}

}  // namespace

Driver::Driver(Road road, QString progressFile, QString pictures)
    : road_(std::move(road)),
      progressFile_(std::move(progressFile)),
      pictures_(std::move(pictures)),
      progress_(Progress::read(progressFile_)) {}

int Driver::run(QApplication& application) {
  waiting_.start();
  setClock(progress_.clock);
  const Step& first = road_.steps.at(progress_.next);
  if (first.verb != u"start"_s) {
    limit_ = road_.nextStart(progress_.next);
    walkWithoutProgram();
    leave();
  }
  limit_ = road_.nextStart(progress_.next + 1);
  progress_.commandLine = commandLineOf(first);
  progress_.started = true;
  progress_.ended = false;
  ++progress_.next;
  progress_.write(progressFile_);
  setCommandLine(progress_.commandLine);
  forms::setEnd([this](int status) { programEnded(status); });
  schedule();
  programEnded(executaPrograma(application, progress_.commandLine));
  return 0;
}

void Driver::schedule(int milliseconds) {
  if (scheduled_) return;
  scheduled_ = true;
  // One shot each: a timer that is at work would not fire again in a loop within.
  QTimer::singleShot(milliseconds, this, &Driver::tick);
}

bool Driver::idle() const {
  const bool box = waitingBox() != nullptr;
  if (!working_.empty() && depth() <= working_.back()) return false;
  if (forms::boxesWaiting() > (box ? 1 : 0) || forms::modalDepth() > modalFormsShown()) return false;
  if (box) return true;
  if (forms::WaitPointer::isWorking()) return false;
  const QList<forms::Form*> shown = forms::registry::shown();
  if (shown.isEmpty()) return false;
  if (QApplication::activePopupWidget() == nullptr && !shown.last()->isActiveWindow()) {
    shown.last()->activateWindow();
    return false;
  }
  return true;
}

void Driver::tick() {
  scheduled_ = false;
  if (!idle()) {
    quietTicks_ = 0;
    schedule(kBusyPause);
    return;
  }
  // What the last step has queued runs before the next one.
  schedule();
  if (++quietTicks_ < 2) return;
  quietTicks_ = 0;
  step();
}

void Driver::step() {
  working_.push_back(depth());
  const Step& before = road_.steps.at(progress_.next - 1);
  QDialog* box = waitingBox();
  if (box != nullptr) answers_.note(box);
  if (box != nullptr && !answers_.empty()) {
    try {
      answers_.give(box);
    } catch (const Failure& failure) {
      fail(before, failure);
    }
    working_.pop_back();
    return;
  }
  const bool over = progress_.next == limit_;
  const Step& step = over ? before : road_.steps.at(progress_.next);
  if (box != nullptr && (over || !(isPassive(step) || step.verb == u"key"_s))) {
    Answers unanswered;
    unanswered.note(box);
    try {
      unanswered.expect({{u"\n"_s, {}, false}});
    } catch (const Failure& failure) {
      fail(step, Failure(u"no box, or an answer to it"_s, failure.found()));
    }
  }
  if (over) {
    requireAnswersTaken(before);
    leave();
  }
  perform(step);
  working_.pop_back();
}

void Driver::perform(const Step& step) {
  try {
    if (step.verb == u"expect"_s || step.verb == u"wait"_s) {
      if (!conditionMet(step)) return;
    }
    if (step.verb == u"screenshot"_s && !pagesStand()) return schedulePoll();
    ++progress_.next;
    progress_.write(progressFile_);
    waiting_.restart();
    if (step.verb == u"expect"_s || step.verb == u"wait"_s) return;

    const QString word = step.words.isEmpty() ? QString() : step.words.first().text;
    if (step.verb == u"clock"_s) {
      progress_.clock = word;
      setClock(word);
    } else if (step.verb == u"sql"_s) {
      runSql(word);
    } else if (step.verb == u"answer"_s) {
      answers_.queueButton(word);
    } else if (step.verb == u"input"_s) {
      const bool cancel = word == u"cancel"_s && !step.words.first().quoted;
      answers_.queueInput(cancel ? std::nullopt : std::optional(word));
    } else if (step.verb == u"screenshot"_s) {
      takePicture(QDir(pictures_).filePath(word + u".png"_s));
    } else {
      if (step.verb != u"key"_s || waitingBox() == nullptr) answers_.forgetBoxes();
      act(step);
    }
  } catch (const Failure& failure) {
    fail(step, failure);
  } catch (const values::RuntimeError& error) {
    fail(step, Failure(u"no error"_s, error.text()));
  }
}

bool Driver::conditionMet(const Step& step) {
  const Words condition = conditionOf(step);
  const QString& what = condition.first().text;
  const bool waits = step.verb == u"wait"_s || comesLater(what) || what == u"ended"_s;
  try {
    if (what == u"box"_s) {
      answers_.expect(condition.sliced(1));
    } else {
      look(condition);
    }
    return true;
  } catch (const Failure&) {
    const qint64 patience = step.verb == u"wait"_s ? kWaitPatience : kLaterPatience;
    if (!waits || waiting_.elapsed() > patience) throw;
  }
  schedulePoll();
  return false;
}

void Driver::schedulePoll() {
  QTimer::singleShot(kPollPause, this, [this] { schedule(); });
}

bool Driver::pagesStand() {
  QList<web::WebPane*> panes;
  for (auto* pane : topForm().findChildren<web::WebPane*>())
    if (pane->isVisible()) panes << pane;
  if (panes.isEmpty() || waiting_.elapsed() > kLaterPatience) return true;
  panes.first()->stands();
  const QImage now = panes.first()->grab().toImage();
  if (now == lastPages_ && !isPlain(now))
    return std::min(pagesSince_.elapsed(), waiting_.elapsed()) > kPagePause;
  lastPages_ = now;
  pagesSince_.start();
  return false;
}

void Driver::walkWithoutProgram() {
  while (progress_.next < limit_) {
    const Step& step = road_.steps.at(progress_.next);
    setCommandLine(progress_.started             ? progress_.commandLine
                   : limit_ < road_.steps.size() ? commandLineOf(road_.steps.at(limit_))
                                                 : QString());
    const Words condition = step.verb == u"expect"_s ? conditionOf(step) : Words();
    const bool ended = !condition.isEmpty() && condition.first().text == u"ended"_s;
    if (ended) {
      const QString status = progress_.ended ? QString::number(progress_.status) : u"not started"_s;
      const bool right = progress_.ended && (condition.size() == 1 || condition.at(1).text == status);
      if (!right)
        fail(step,
             Failure(condition.size() == 1 ? u"ended"_s : u"ended with "_s + condition.at(1).text, status));
      ++progress_.next;
      progress_.write(progressFile_);
    } else {
      perform(step);
    }
  }
}

void Driver::programEnded(int status) {
  requireAnswersTaken(road_.steps.at(progress_.next - 1));
  progress_.ended = true;
  progress_.status = status;
  leave();
}

void Driver::requireAnswersTaken(const Step& step) {
  if (!answers_.empty()) fail(step, Failure(u"a box for each answer"_s, u"an answer that no box took"_s));
}

void Driver::fail(const Step& step, const Failure& failure) {
  report(road_, step, failure);
  try {
    if (!forms::registry::shown().isEmpty()) takePicture(QDir(pictures_).filePath(u"failed.png"_s));
  } catch (const Failure&) {
    // The failure that was reported counts.
  }
  progress_.failed = true;
  leave();
}

void Driver::leave() {
  progress_.write(progressFile_);
  std::fflush(nullptr);
  forms::endAtOnce(progress_.failed ? 1 : 0);
}

}  // namespace road
