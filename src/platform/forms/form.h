#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QEventLoop>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "platform/forms/combo.h"
#include "platform/forms/controls.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/masked_box.h"
#include "platform/forms/wait_pointer.h"

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;

namespace forms {

enum class Event { Click, DoubleClick, GotFocus, LostFocus, DropDown };

/// Base of all screens. A class `frmX : public forms::Form, public Ui::frmX` has a public constructor without
/// arguments that calls setupUi and connects its handlers, and Q_OBJECT: the name of the class is the form's
/// own. There is one instance of each, reached by form<frmX>().
///
/// Events reach the handlers through on(...). Losing and getting the focus are events between controls of one
/// form (a change of window, a popup or an unload raises none); they are queued and run before the release of
/// the click that caused them, and the click is dropped when one of them brought up a box. A click by access
/// key moves the focus first. Double click on a grid: on(grid, Event::DoubleClick, …), which Enter on a row
/// raises too.
class Form : public QDialog {
  Q_OBJECT

 public:
  Form();
  ~Form() override;

  /// Shows it and returns; the main window.
  void showForm();
  /// Shows it over all others and returns when it has been hidden, which keeps it as it is, or unloaded.
  void showModal();
  /// Forgets it at once, from its own handler too; it is deleted later, and the next use makes it again.
  void unload();

  /// A frame that opens over the form at a place in twips from the form's top left, moved as far as it needs
  /// to be wholly visible. It takes the focus, Tab stays within it, Esc clicks its close button.
  void addOverFrame(QWidget* frame, int left, int top, QAbstractButton* closeButton);
  void openOverFrame(QWidget* frame, QWidget* focus);
  /// Hides it and gives the focus back to where it was.
  void closeOverFrame(QWidget* frame);

  /// Sends the focus to a control; it stays where it is if the control can't have it.
  static void focus(QWidget* control);
  /// What Tab does.
  void moveOn();
  /// Top and left so that the form is in the middle of the screen, within what the desktop leaves of it.
  void centre();

  /// Runs the load handler if it has not run; done by form<T>() and before the form is shown.
  void ensureLoaded();

  /// Runs all focus handlers that are waiting.
  void flushFocusEvents();

 protected:
  /// Runs once, when the form is first touched (or first shown, see form<T>()).
  virtual void Form_Load() {}
  /// The window's X or Esc. Unloads; with the Close entry removed nothing happens.
  virtual void closeRequested();
  /// Takes Close out of the system menu: X and Esc do nothing, and the X isn't shown where the desktop can do
  /// without it.
  void removeCloseEntry();
  /// Esc presses this button.
  void escClicks(QAbstractButton* button);

  void on(QWidget* control, Event event, std::function<void()> handler);
  template <class T>
  void on(QWidget* control, Event event, void (T::*handler)()) {
    on(control, event, [this, handler] { (static_cast<T*>(this)->*handler)(); });
  }
  /// KeyPress of a box: gets each typed character and gives the one to use in its place, 0 drops it.
  void onKeyPress(QWidget* control, const std::function<char16_t(char16_t)>& handler);
  /// Enter moves on as Tab does, and is swallowed. In multi-line boxes Ctrl+Enter breaks the line. On a
  /// button that isn't named here Enter clicks.
  void enterMovesOn(std::initializer_list<QWidget*> controls);
  /// What an access key does: the focus goes to the button, then it is clicked, unless a handler on the way
  /// brought up a box or a modal form. For shortcuts.
  void clickByKey(QAbstractButton* button);
  /// Down on one of these controls goes into the grid, to its first row where none is current; Up on that row
  /// goes back to the first of them. The grid may change from time to time.
  void resultsUnder(std::initializer_list<QWidget*> above, std::function<FlexGrid*()> grid);
  /// A text of several lines that is pasted into a box of one line, with what the box holds around it: its
  /// lines, without blank ones. Locked boxes take none.
  void onLinesPasted(QLineEdit* box, std::function<void(const QStringList&)> handler);
  /// A text with tabs, as spreadsheets copy their rows, pasted into a box or a grid: all its lines, blank
  /// ones too; what a box holds stays as it is.
  void onTablePasted(std::initializer_list<QWidget*> controls,
                     const std::function<void(const QStringList&)>& handler);
  /// The window's size and the widths of its grids' columns outlive the form (see measures.h). In the
  /// constructor, after setupUi.
  void rememberMeasures();
  /// GotFocus selects all the text.
  void selectOnFocus(std::initializer_list<QWidget*> controls);
  /// What follows the size of the text: called whenever the text of the loaded form gets another size. For
  /// the first time the constructor calls it, after setupUi.
  virtual void fitToText() {}

  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
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

  /// Sets up what all controls share and watches them; again before each showing, for controls made since.
  void prepareControls();
  /// Shows the form and gives it its first focus.
  void present();
  void userCloses();

  // form_events.cpp, form_keys.cpp; those that return a bool: whether the event goes no further.
  void run(QWidget* control, Event event);
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

  /// Set on controls that are laid out of the chain of Tab and Enter: access keys and the mouse reach them.
  static constexpr char kOffChain[] = "offChain";

  std::map<std::pair<QWidget*, Event>, std::vector<std::function<void()>>> handlers_;
  QHash<QWidget*, std::function<char16_t(char16_t)>> keyFilters_;
  QSet<QWidget*> enterMoves_, selects_;
  std::vector<Search> searches_;
  QHash<QWidget*, std::function<void(const QStringList&)>> lineTakers_, tableTakers_;
  std::vector<OverFrame> overFrames_;
  QPointer<QAbstractButton> escButton_;

  QPointer<QWidget> current_;
  std::deque<FocusEvent> waiting_;
  bool flushing_ = false;
  bool resending_ = false;
  bool loaded_ = false;
  bool closable_ = true;
  bool mainWindow_ = false;
  bool remembers_ = false;
  QSize openedSize_;
  QEventLoop* loop_ = nullptr;  ///< of a modal form that is open
};

// registry.cpp

// The global instances, by name.
namespace registry {
[[nodiscard]] Form* find(const QString& name);
/// Takes ownership and makes it findable by name.
Form& add(std::unique_ptr<Form> form);
/// Drops all forms: the end of a test.
void clear();
/// Takes a form out and gives it back; empty where it isn't there.
[[nodiscard]] std::unique_ptr<Form> take(const Form& form);
/// Forms now shown, the one on top last.
[[nodiscard]] QList<Form*> shown();
void noteShown(Form* form);
void noteHidden(Form* form);
}  // namespace registry

/// A control of a form that is there now, found by the two names; nullptr if there is none. Finds grids
/// without a widget too.
[[nodiscard]] QObject* findControl(const QString& formName, const QString& controlName);

/// Seam for tests and roads: called when a modal form has been shown and had its first focus.
void setModalObserver(std::function<void(Form&)> observer);
/// How many modal forms wait in their loops now.
[[nodiscard]] int modalDepth();

/// Name of a form and its class, "frmX".
template <class T>
[[nodiscard]] QString formName() {
  return QString::fromLatin1(T::staticMetaObject.className());
}

/// The global instance of a form, made and loaded at first touch; it is registered before its load handler
/// runs. A form with `static constexpr bool kLoadsWhenShown = true` loads when it is shown, since its caller
/// fills labels that the load handler must see.
template <class T>
T& form() {
  Form* known = registry::find(formName<T>());
  if (known == nullptr) known = &registry::add(std::make_unique<T>());
  if constexpr (!requires { T::kLoadsWhenShown; }) known->ensureLoaded();
  return static_cast<T&>(*known);
}

/// Style, font and spacing that all screens share; once, before the first form (style.cpp).
void applyStyle();

}  // namespace forms
