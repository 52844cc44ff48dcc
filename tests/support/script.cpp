#include "support/script.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "platform/forms/process.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

QString lines(QString text) { return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'); }

}  // namespace

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
    ADD_FAILURE() << "unexpected box: " << lines(box.text).toStdString();
    return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::No;
  }
  const auto [text, answer] = boxes_.front();
  boxes_.pop_front();
  EXPECT_EQ(lines(box.text), lines(text));
  return answer;
}

QString Script::type(const forms::Input& input) {
  lastInput_ = input;
  if (inputs_.empty()) {
    ADD_FAILURE() << "unexpected input box: " << lines(input.prompt).toStdString();
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
  form.hideForm();
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
  QTest::keyClick(control, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(control, Qt::Key_Delete);
  for (const QChar character : text) {
    if (character == u'\n') {
      QTest::keyClick(control, Qt::Key_Return, Qt::ControlModifier);
    } else if (character.unicode() < 128) {
      QTest::keyClick(control, character.toLatin1());
    } else {
      QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
  }
  settle();
}

void key(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(control, key, modifiers);
  settle();
}

namespace {

struct Place {
  QWidget* widget;
  QPoint at;
};

Place placeOf(forms::FlexGrid* grid, int row, int column) {
  while (grid->isColumnHidden(column) && column + 1 < grid->grid().cols()) ++column;
  if (row == 0) {
    QHeaderView* titles = grid->horizontalHeader();
    return {titles->viewport(), {titles->sectionViewportPosition(column) + 10, titles->height() / 2}};
  }
  const QModelIndex index = grid->grid().index(row - 1, column);
  grid->scrollTo(index);
  return {grid->viewport(), grid->visualRect(index).topLeft() + QPoint(5, 5)};
}

}  // namespace

void clickRow(forms::FlexGrid* grid, int row, int column) {
  const Place place = placeOf(grid, row, column);
  QTest::mouseClick(place.widget, Qt::LeftButton, {}, place.at);
  settle();
}

void doubleClick(forms::FlexGrid* grid, int row, int column) {
  const Place place = placeOf(grid, row, column);
  QTest::mouseClick(place.widget, Qt::LeftButton, {}, place.at);
  QTest::mouseDClick(place.widget, Qt::LeftButton, {}, place.at);
  settle();
}

}  // namespace support
