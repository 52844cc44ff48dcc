#pragma once

#include <QHash>
#include <QPointer>
#include <QSet>
#include <deque>
#include <vector>

#include "platform/forms/form.h"

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace forms {

/// Set on controls that are laid out of the chain of Tab and Enter: access keys and the mouse reach them.
inline constexpr char kOffChain[] = "offChain";

/// What a form keeps about its controls: handlers, focus, frames that open over it.
class Form::Private {
 public:
  explicit Private(Form& owner) : form(owner) {}

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
  struct Search {
    QList<QWidget*> above;
    std::function<FlexGrid*()> grid;
  };
  using Handlers = std::vector<std::function<void()>>;

  /// Name of the class.
  [[nodiscard]] QString name() const { return QString::fromLatin1(form.metaObject()->className()); }

  // form.cpp

  /// Sets up what all controls share and watches them; again before each showing, for controls made since.
  void prepareControls();
  /// Shows the form and gives it its first focus.
  void present();
  /// The window's X or Esc.
  void close();

  // Events and keys (form_events.cpp, form_keys.cpp); those that return a bool: whether the event goes no
  // further.

  void run(QWidget* control, Event event);
  /// Runs a handler at the edge of the event loop; `where` is its name for support.
  static void handle(const std::function<void()>& handler, const QString& where, QWidget* left = nullptr);
  bool mousePressed(QWidget* watched, QMouseEvent* event);
  bool keyPressed(QWidget* watched, QKeyEvent* event);
  bool enterPressed(QWidget* control, QKeyEvent* event);
  bool characterTyped(QWidget* watched, QKeyEvent* event);
  bool resultKeyPressed(QWidget* watched, const QKeyEvent* event);
  bool pasteLines(QWidget* control);
  bool pasteMenu(QLineEdit* box, const QContextMenuEvent* event);

  // form_focus.cpp

  /// The control of the form that a widget with the focus belongs to.
  [[nodiscard]] QWidget* controlOf(QWidget* widget) const;
  /// Queues the events of a focus that has moved within the form.
  void noteFocus(QWidget* now);
  void postFlush();
  [[nodiscard]] bool hasJustGotFocus(QWidget* control) const;
  void gotFocus(QWidget* control);

  // form_frames.cpp

  [[nodiscard]] OverFrame* overFrame(const QWidget* frame);
  [[nodiscard]] OverFrame* openFrame();
  void placeOverFrame(const OverFrame& over);

  // form_fit.cpp

  /// What the display leaves for a window, its frame and the desktop's panels taken off.
  [[nodiscard]] QRect room() const;
  /// Keeps the window within the display; what doesn't fit scrolls, rows of buttons above and below stay.
  void fitScreen();
  void scrollContent();
  /// The size that the user gave the window the last time.
  void takeMeasures();
  void keepMeasures();

  Form& form;
  QHash<QWidget*, QHash<Event, Handlers>> handlers;
  QHash<QWidget*, std::function<char16_t(char16_t)>> keyFilters;
  QSet<QWidget*> enterMoves;
  QSet<QWidget*> selects;
  std::vector<Search> searches;
  QHash<QWidget*, std::function<void(const QStringList&)>> lineTakers, tableTakers;
  std::vector<OverFrame> overFrames;
  std::function<void()> fit;  ///< to the size of the text

  QPointer<QWidget> current;
  std::deque<FocusEvent> waiting;
  bool flushing = false;
  bool flushPosted = false;
  bool resending = false;
  bool shown = false;
  bool closable = true;
  bool mainWindow = false;
  bool remembers = false;
  QSize openedSize;
  QPointer<QAbstractButton> escButton;
  QEventLoop* loop = nullptr;
};

inline size_t qHash(Event event, size_t seed = 0) { return ::qHash(static_cast<int>(event), seed); }

// registry.cpp

namespace registry {
/// Takes a form out and gives it back; empty where it isn't there.
[[nodiscard]] std::unique_ptr<Form> take(Form* form);
void noteShown(Form* form);
void noteHidden(Form* form);
}  // namespace registry

/// Calls the observer of modal forms, if there is one.
void observeModal(Form& form);

}  // namespace forms
