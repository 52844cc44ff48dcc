#pragma once

#include <gtest/gtest.h>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "platform/forms/boxes.h"
#include "platform/forms/form.h"
#include "support/script.h"

/// A screen with one control of each kind, which writes down the events that reach it.
class frmSample : public forms::Form {
  Q_OBJECT

 public:
  frmSample() {
    static constexpr forms::GridColumn kColumns[] = {
        {u"ID", 0}, {u"Nome", 2000}, {u"Valor", 1000, forms::kRight}};
    Flex->grid().layOut(kColumns);
    on(Flex, forms::Event::DoubleClick, [this] { note(QStringLiteral("Flex!!")); });
  }

  using forms::Form::onLinesPasted;
  using forms::Form::rememberMeasures;

  void note(const QString& entry) {
    log << entry;
    if (const auto act = acts.value(entry)) act();
  }
  /// What has been logged since the last call.
  QString taken() { return std::exchange(log, {}).join(QLatin1Char(' ')); }

  QStringList log;
  QHash<QString, std::function<void()>> acts;  ///< what a handler does, by its entry in the log

 private:
  template <class T>
  T* add(T* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    layout_->addWidget(control);
    using enum forms::Event;
    for (const auto& [event, sign] : {std::pair(GotFocus, '+'), {LostFocus, '-'}, {Click, '!'}})
      on(control, event, [this, entry = control->objectName() + QLatin1Char(sign)] { note(entry); });
    return control;
  }
  QVBoxLayout* layout_ = new QVBoxLayout(this);

 public:
  QLineEdit* txtA = add(new QLineEdit, "txtA");
  forms::Combo* cboC = add(new forms::Combo, "cboC");
  QPlainTextEdit* txtLines = add(new QPlainTextEdit, "txtLines");
  forms::FlexGrid* Flex = add(new forms::FlexGrid, "Flex");
  QPushButton* cmdOne = add(new QPushButton(QStringLiteral("&One")), "cmdOne");
  QPushButton* cmdTwo = add(new QPushButton(QStringLiteral("&Two")), "cmdTwo");
};

/// A modal screen with a button.
class frmOther : public forms::Form {
  Q_OBJECT

 public:
  frmOther() {}
  using forms::Form::escClicks;
  using forms::Form::on;
  using forms::Form::removeCloseEntry;

  QPushButton* cmdGo = new QPushButton(this);
  static inline int loads = 0;

 protected:
  void Form_Load() override { ++loads; }
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    sample.showForm();
    support::settle();
    sample.log.clear();
  }
  ~FormTest() override {
    forms::registry::clear();
    support::settle();
  }
  frmSample& sample = forms::form<frmSample>();
};
