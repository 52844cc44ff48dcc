#include "stage.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

#include "hands/hands.h"
#include "platform/forms/masked_box.h"
#include "road/road_file.h"

using namespace Qt::StringLiterals;

namespace road {

forms::Form& topForm() {
  const QList<forms::Form*> shown = forms::registry::shown();
  if (shown.isEmpty()) throw Failure(u"a form"_s, u"none is shown"_s);
  return *shown.last();
}

QDialog* waitingBox() {
  QWidget* modal = QApplication::activeModalWidget();
  const bool box = qobject_cast<QMessageBox*>(modal) != nullptr ||
                   qobject_cast<QInputDialog*>(modal) != nullptr ||
                   qobject_cast<QFileDialog*>(modal) != nullptr;
  return box ? qobject_cast<QDialog*>(modal) : nullptr;
}

QWidget* topWindow() {
  if (QWidget* list = QApplication::activePopupWidget()) return list;
  if (QDialog* box = waitingBox()) return box;
  return &topForm();
}

QObject& objectNamed(const QString& name) {
  const qsizetype dot = name.indexOf(u'.');
  const QString formName = dot < 0 ? topForm().objectName() : name.first(dot);
  const QString controlName = name.sliced(dot + 1);
  if (dot < 0 && controlName == formName) return topForm();
  QObject* object = forms::findControl(formName, controlName);
  if (object == nullptr) throw Failure(u"%1 on %2"_s.arg(controlName, formName), u"there is none"_s);
  return *object;
}

forms::GridModel& gridNamed(const QString& name) {
  QObject& object = objectNamed(name);
  if (auto* shown = qobject_cast<forms::FlexGrid*>(&object)) return shown->grid();
  auto* model = qobject_cast<forms::GridModel*>(&object);
  if (model == nullptr) wrongKind(name, object);
  return *model;
}

void wrongKind(const QString& name, const QObject& found) {
  throw Failure(u"%1 of a kind that does this"_s.arg(name),
                QString::fromLatin1(found.metaObject()->className()));
}

QString focusedName() {
  const QWidget* control = topForm().focusWidget();
  while (control != nullptr &&
         (control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"_s))) {
    control = control->parentWidget();
  }
  return control == nullptr ? u"nothing"_s : control->objectName();
}

void requireReachable(QWidget& control, QPoint at) {
  const QString name = control.objectName();
  if (!control.isVisible()) throw Failure(name + u" visible"_s, u"hidden"_s);
  if (!control.isEnabled()) throw Failure(name + u" enabled"_s, u"disabled"_s);
  QWidget* window = control.window();
  if (window != topWindow())
    throw Failure(name + u" on top"_s, topWindow()->objectName() + u" stands over it"_s);
  for (QWidget* holder = control.parentWidget(); holder != nullptr; holder = holder->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(holder)) area->ensureWidgetVisible(&control);
  }
  const QPoint inWindow = control.mapTo(window, at);
  QWidget* hit = window->childAt(inWindow);
  if (hit == nullptr && !window->rect().contains(inWindow))
    throw Failure(name + u" in the window"_s, u"outside"_s);
  if (&control != window && hit != &control && (hit == nullptr || !control.isAncestorOf(hit))) {
    throw Failure(name + u" in sight"_s, u"covered"_s);
  }
}

void pressMouse(QWidget& control, QPoint at, bool twice) {
  requireReachable(control, at);
  QWidget* window = control.window();
  const QPoint inWindow = control.mapTo(window, at);
  if (twice) {
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, inWindow);
  } else {
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, inWindow);
  }
}

void clickOn(QWidget& control) {
  // Options and fields are wide: a user aims at where their mark or their text begins.
  const bool wide = qobject_cast<QComboBox*>(&control) != nullptr ||
                    qobject_cast<QLineEdit*>(&control) != nullptr || control.inherits("QCheckBox") ||
                    control.inherits("QRadioButton");
  pressMouse(control,
             wide ? QPoint(std::min(9, control.width() / 2), control.height() / 2) : control.rect().center());
}

void pressKey(const QString& name) {
  QString known = name;
  known.replace(u"Enter"_s, u"Return"_s, Qt::CaseInsensitive);
  const QKeySequence keys = QKeySequence::fromString(known, QKeySequence::PortableText);
  if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown) throw Failure(u"the name of a key"_s, name);
  QTest::keyClick(topWindow()->windowHandle(), keys[0].key(), keys[0].keyboardModifiers());
}

void typeText(const QString& text) { hands::typeText(topWindow()->windowHandle(), text); }

void eraseText() {
  QWindow* window = topWindow()->windowHandle();
  hands::eraseText(window);
  QTest::keyClick(window, Qt::Key_Home);
}

void takePicture(const QString& file) {
  constexpr int kTitleHeight = 24;
  const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
  QPixmap screen(forms::screenSize() * scale);
  screen.setDevicePixelRatio(scale);
  screen.fill(QColor(0x52, 0x5E, 0x6B));
  QPainter painter(&screen);
  QList<QWidget*> windows;
  for (forms::Form* form : forms::registry::shown()) windows << form;
  for (QWidget* over : {static_cast<QWidget*>(waitingBox()), QApplication::activePopupWidget()}) {
    if (over != nullptr) windows << over;
  }
  for (QWidget* window : std::as_const(windows)) {
    const QRect place = window->geometry();
    painter.drawPixmap(place.topLeft(), window->grab());
    const bool popup = window->windowType() == Qt::Popup;
    const QRect title(place.left(), place.top() - kTitleHeight, place.width(), kTitleHeight);
    if (!popup && title.top() >= 0) {
      painter.fillRect(title, QColor(0x2F, 0x4A, 0x6B));
      painter.setPen(Qt::white);
      painter.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter, window->windowTitle());
    }
    painter.setPen(QColor(0x2F, 0x4A, 0x6B));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
  }
  painter.end();
  if (!screen.save(file)) throw Failure(u"the picture "_s + file, u"it could not be written"_s);
}

}  // namespace road
