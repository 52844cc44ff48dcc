#pragma once

#include <QHash>
#include <QPointer>
#include <QSet>
#include <deque>
#include <vector>

#include "platform/forms/form.h"

class QKeyEvent;
class QMouseEvent;

namespace forms {

/// What a form keeps about its controls: handlers, focus, frames that open over it.
class Form::Private {
 public:
  Private(Form& owner, const QString& itsName) : form(owner), name(itsName) {}

  struct OverFrame {
    QWidget* frame;
    int left, top;  ///< twips
    QAbstractButton* closeButton;
    QPointer<QWidget> before;  ///< what had the focus
  };
  struct FocusEvent {
    QPointer<QWidget> control;
    Event event;
  };
  using Handlers = std::vector<std::function<void()>>;

  /// Sets up what all controls share and watches them; again before each showing, for controls made since.
  void prepareControls();
  /// Shows the form and gives it its first focus.
  void present();
  void run(QWidget* control, Event event);

  /// The control of the form that a widget with the focus belongs to.
  [[nodiscard]] QWidget* controlOf(QWidget* widget) const;
  /// Queues the events of a focus that has moved within the form.
  void noteFocus(QWidget* now);
  void postFlush();
  [[nodiscard]] bool hasJustGotFocus(QWidget* control) const;
  void gotFocus(QWidget* control);

  // Each returns whether the event goes no further.
  bool mousePressed(QWidget* watched, QMouseEvent* event);
  bool keyPressed(QWidget* watched, QKeyEvent* event);
  bool enterPressed(QWidget* control, QKeyEvent* event);
  bool characterTyped(QWidget* watched, QKeyEvent* event);

  [[nodiscard]] OverFrame* overFrame(const QWidget* frame);
  [[nodiscard]] OverFrame* openFrame();
  void placeOverFrame(const OverFrame& over);

  Form& form;
  QString name;
  QHash<QWidget*, QHash<Event, Handlers>> handlers;
  QHash<QWidget*, std::function<char16_t(char16_t)>> keyFilters;
  QSet<QWidget*> enterMoves;
  QSet<QWidget*> selects;
  std::vector<OverFrame> overFrames;

  QPointer<QWidget> current;
  std::deque<FocusEvent> waiting;
  bool flushing = false;
  bool flushPosted = false;
  bool resending = false;
  bool shown = false;
  bool closable = true;
  bool mainWindow = false;
  QEventLoop* loop = nullptr;
};

inline size_t qHash(Event event, size_t seed = 0) { return ::qHash(static_cast<int>(event), seed); }

namespace registry {
/// Takes a form out and gives it back; empty where it isn't there.
[[nodiscard]] std::unique_ptr<Form> take(Form* form);
void noteShown(Form* form);
void noteHidden(Form* form);
}  // namespace registry

/// Calls the observer of modal forms, if there is one; whether there was.
bool observeModal(Form& form);

}  // namespace forms
