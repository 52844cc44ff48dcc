#pragma once

#include <gtest/gtest.h>
#include <QLabel>
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
  static constexpr char16_t Name[] = u"frmSample";

  frmSample();

  template <class T>
  T* add(T* control, const QString& name) {
    control->setObjectName(name);
    layout_->addWidget(control);
    for (const auto& [event, text] : kEvents) {
      const QString entry = name + text;
      on(control, event, [this, entry] { note(entry); });
    }
    return control;
  }
  void note(const QString& entry) {
    log << entry;
    if (const auto act = acts.value(entry)) act();
  }
  /// What has been logged since the last call.
  QString taken() { return std::exchange(log, {}).join(QLatin1Char(' ')); }

  using forms::Form::enterMovesOn;
  using forms::Form::onKeyPress;
  using forms::Form::removeCloseEntry;
  using forms::Form::selectOnFocus;

  QStringList log;
  QHash<QString, std::function<void()>> acts;  ///< what a handler does, by its entry in the log

 private:
  struct Logged {
    forms::Event event;
    QString text;
  };
  static inline const QList<Logged> kEvents{{forms::Event::GotFocus, QStringLiteral("+")},
                                            {forms::Event::LostFocus, QStringLiteral("-")},
                                            {forms::Event::Click, QStringLiteral("!")}};
  QVBoxLayout* layout_;

 public:
  QLineEdit *txtA, *txtB;
  forms::Combo* cboC;
  QPlainTextEdit* txtLines;
  forms::FlexGrid* Flex;
  QPushButton *cmdOne, *cmdTwo;
  QFrame* frameOver;
  QLineEdit* txtOver;
  QPushButton* cmdClose;

 protected:
  void Form_Load() override { note(QStringLiteral("load")); }
};

/// A modal screen with a button.
class frmOther : public forms::Form {
  Q_OBJECT

 public:
  static constexpr char16_t Name[] = u"frmOther";
  frmOther();
  using forms::Form::on;
  using forms::Form::removeCloseEntry;

  QPushButton* cmdGo;
  static inline int loads = 0;

 protected:
  void Form_Load() override { ++loads; }
};

class FormTest : public ::testing::Test {
 protected:
  FormTest() : sample(forms::form<frmSample>()) {
    sample.showForm();
    support::settle();
    sample.log.clear();
  }
  ~FormTest() override {
    forms::registry::clear();
    support::settle();
  }
  frmSample& sample;
};
