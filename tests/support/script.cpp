#include "support/script.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <deque>

#include "platform/forms/process.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

QString lines(QString text) { return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'); }

}  // namespace

struct Script::State {
  struct Expected {
    QString text;
    forms::Answer answer;
  };
  std::deque<Expected> boxes;
  std::deque<std::optional<QString>> inputs;
  std::deque<std::function<void(forms::Form&)>> modals;
  std::optional<int> end;
  bool ended = false;
  forms::Box lastBox;
  forms::Input lastInput;

  forms::Answer answer(const forms::Box& box) {
    lastBox = box;
    if (boxes.empty()) {
      ADD_FAILURE() << "unexpected box: " << lines(box.text).toStdString();
      return box.buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::No;
    }
    const Expected expected = boxes.front();
    boxes.pop_front();
    EXPECT_EQ(lines(box.text), lines(expected.text));
    return expected.answer;
  }

  QString type(const forms::Input& input) {
    lastInput = input;
    if (inputs.empty()) {
      ADD_FAILURE() << "unexpected input box: " << lines(input.prompt).toStdString();
      return {};
    }
    const std::optional<QString> typed = inputs.front();
    inputs.pop_front();
    return typed.value_or(QString());
  }

  void act(forms::Form& form) {
    settle();
    if (modals.empty()) {
      ADD_FAILURE() << "unexpected modal form: " << form.objectName().toStdString();
    } else {
      const auto next = modals.front();
      modals.pop_front();
      const QString name = form.objectName();
      const QPointer<forms::Form> still(&form);
      next(form);
      if (ended || still.isNull() || !still->isVisible()) return;
      ADD_FAILURE() << name.toStdString() << " was left open";
    }
    form.hideForm();
  }
};

Script::Script() : state_(std::make_unique<State>()) {
  State* state = state_.get();
  forms::setBoxAnswerer([state](const forms::Box& box) { return state->answer(box); });
  forms::setInputAnswerer([state](const forms::Input& input) { return state->type(input); });
  forms::setModalObserver([state](forms::Form& form) { state->act(form); });
  forms::setEnd([state](int status) {
    state->ended = true;
    if (!state->end) {
      ADD_FAILURE() << "the process ended with status " << status;
    } else {
      EXPECT_EQ(status, *state->end);
    }
  });
}

Script::~Script() {
  forms::setBoxAnswerer({});
  forms::setInputAnswerer({});
  forms::setModalObserver({});
  forms::setEnd({});
  EXPECT_TRUE(state_->boxes.empty()) << "no box took the answer to: "
                                     << state_->boxes.front().text.toStdString();
  EXPECT_TRUE(state_->inputs.empty()) << "an answer to an input box was left over";
  EXPECT_TRUE(state_->modals.empty()) << "a modal form that was expected did not open";
  EXPECT_EQ(state_->end.has_value(), state_->ended) << "the process was expected to end";
}

Script& Script::box(const QString& text, forms::Answer answer) {
  state_->boxes.push_back({text, answer});
  return *this;
}

Script& Script::input(const std::optional<QString>& typed) {
  state_->inputs.push_back(typed);
  return *this;
}

Script& Script::modal(std::function<void(forms::Form&)> act) {
  state_->modals.push_back(std::move(act));
  return *this;
}

Script& Script::expectEnd(int status) {
  state_->end = status;
  return *this;
}

const forms::Box& Script::lastBox() const { return state_->lastBox; }
const forms::Input& Script::lastInput() const { return state_->lastInput; }

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
