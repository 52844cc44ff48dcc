#include "support/script.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "hands/hands.h"
#include "platform/forms/process.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace support {

using hands::placeOf;

Script::Script() {
  forms::setBoxAnswerer([this](const forms::Box& box) { return answer(box); });
  forms::setInputAnswerer([this](const forms::Input& input) { return type(input); });
  forms::setModalObserver([this](forms::Form& form) { act(form); });
  forms::setEnd([this](int status) {
    ended_ = true;
    EXPECT_EQ(end_, status) << "the process ended";
  });
}

Script::~Script() {
  forms::setBoxAnswerer({});
  forms::setInputAnswerer({});
  forms::setModalObserver({});
  forms::setEnd({});
  EXPECT_TRUE(boxes_.empty()) << "no box took the answer to: " << boxes_.front().first.toStdString();
  EXPECT_TRUE(inputs_.empty()) << "an answer to an input box was left over";
  EXPECT_TRUE(modals_.empty()) << "a modal form that was expected did not open";
  EXPECT_EQ(end_.has_value(), ended_) << "the process was expected to end";
}

forms::Answer Script::answer(const forms::Box& box) {
  lastBox_ = box;
  if (boxes_.empty()) {
    ADD_FAILURE() << "unexpected box: " << values::withPlainLineEnds(box.text).toStdString();
    return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::No;
  }
  const auto [text, answer] = boxes_.front();
  boxes_.pop_front();
  EXPECT_EQ(values::withPlainLineEnds(box.text), values::withPlainLineEnds(text));
  return answer;
}

QString Script::type(const forms::Input& input) {
  lastInput_ = input;
  if (inputs_.empty()) {
    ADD_FAILURE() << "unexpected input box: " << values::withPlainLineEnds(input.prompt).toStdString();
    return {};
  }
  const std::optional<QString> typed = inputs_.front();
  inputs_.pop_front();
  return typed.value_or(QString());
}

void Script::act(forms::Form& form) {
  settle();
  if (modals_.empty()) {
    ADD_FAILURE() << "unexpected modal form: " << form.objectName().toStdString();
  } else {
    const auto next = modals_.front();
    modals_.pop_front();
    const QString name = form.objectName();
    const QPointer<forms::Form> still(&form);
    next(form);
    if (ended_ || still.isNull() || !still->isVisible()) return;
    ADD_FAILURE() << name.toStdString() << " was left open";
  }
  form.hide();
}

Script& Script::box(const QString& text, forms::Answer answer) {
  boxes_.emplace_back(text, answer);
  return *this;
}

Script& Script::input(const std::optional<QString>& typed) {
  inputs_.push_back(typed);
  return *this;
}

Script& Script::modal(std::function<void(forms::Form&)> act) {
  modals_.push_back(std::move(act));
  return *this;
}

Script& Script::expectEnd(int status) {
  end_ = status;
  return *this;
}

void settle() {
  // Events that handlers queue are few; a second and third pass run what the first one queued.
  for (int pass = 0; pass < 3; ++pass) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void click(QWidget* control) {
  QTest::mouseClick(control, Qt::LeftButton);
  settle();
}

void focus(QWidget* control) {
  control->setFocus(Qt::TabFocusReason);
  settle();
}

void type(QWidget* control, const QString& text) {
  focus(control);
  hands::eraseText(control);
  hands::typeText(control, text);
  settle();
}

void key(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(control, key, modifiers);
  settle();
}

void clickRow(forms::FlexGrid* grid, int row, int column) {
  const auto [widget, at] = placeOf(*grid, row, column);
  QTest::mouseClick(widget, Qt::LeftButton, {}, at);
  settle();
}

void doubleClick(forms::FlexGrid* grid, int row, int column) {
  const auto [widget, at] = placeOf(*grid, row, column);
  QTest::mouseClick(widget, Qt::LeftButton, {}, at);
  QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
  settle();
}

}  // namespace support
