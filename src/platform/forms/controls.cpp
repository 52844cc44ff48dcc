#include "platform/forms/controls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTextCursor>
#include <QTextDocument>
#include <QValidator>
#include <algorithm>
#include <array>

#include "platform/forms/combo.h"
#include "platform/forms/masked_box.h"
#include "platform/values/line_ends.h"

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr ColorNumber kWindowGround = 0x80000005;
constexpr ColorNumber kWindowText = 0x80000008;

constexpr char kLockProperty[] = "readOnly";
/// Properties that hold the text of a control: the first that its class has.
constexpr std::array<const char*, 6> kTextProperties{"boxText", "plainText", "currentText",
                                                     "text",    "title",     "windowTitle"};

/// A line break is stored as two characters.
qsizetype storedLength(QStringView text) { return text.size() + text.count(u'\n'); }

/// Fields that are typed in, as against captions and buttons.
bool isField(const QWidget* control) {
  return qobject_cast<const QLineEdit*>(control) != nullptr ||
         qobject_cast<const QComboBox*>(control) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(control) != nullptr || control->inherits("QAbstractItemView");
}

const char* textProperty(const QObject& control) {
  return *std::ranges::find_if(kTextProperties, [&control](const char* name) {
    return name == kTextProperties.back() || control.metaObject()->indexOfProperty(name) >= 0;
  });
}

struct Roles {
  QPalette::ColorRole back, fore;
};

Roles rolesOf(const QWidget* control) {
  if (isField(control)) return {QPalette::Base, QPalette::Text};
  if (control->inherits("QPushButton") || control->inherits("QToolButton")) {
    return {QPalette::Button, QPalette::ButtonText};
  }
  return {QPalette::Window, QPalette::WindowText};
}

void paint(QWidget* control, QPalette::ColorRole role, const QColor& color) {
  QPalette palette = control->palette();
  palette.setColor(QPalette::Active, role, color);
  palette.setColor(QPalette::Inactive, role, color);
  const bool text = role == QPalette::Text || role == QPalette::WindowText || role == QPalette::ButtonText;
  // A disabled control keeps its ground; its text is paler.
  QColor disabled = color;
  if (text) disabled.setAlpha(130);
  palette.setColor(QPalette::Disabled, role, disabled);
  control->setPalette(palette);
}

/// Refuses a typed character where the box is full: taking it away afterwards would stand in undo's way.
class FullBox : public QObject {
 public:
  FullBox(QPlainTextEdit* box, int longest) : QObject(box), box_(box), longest_(longest) {}

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    return !typed.isEmpty() && typed[0].isPrint() && !box_->textCursor().hasSelection() &&
           storedLength(box_->toPlainText()) >= longest_;
  }

 private:
  QPlainTextEdit* box_;
  int longest_;
};

/// Takes what is no digit out of a text before it counts, so that a long text is pasted by its digits.
class Digits : public QValidator {
 public:
  Digits(QLineEdit* box, int most) : QValidator(box), most_(most) {}

  State validate(QString& text, int& cursor) const override {
    static const QRegularExpression kOther(u"[^0-9]"_s);
    cursor = std::min(static_cast<int>(text.first(cursor).remove(kOther).size()), most_);
    if (text.remove(kOther).size() == most_ + 1) return Invalid;  // one more was typed
    text.truncate(most_);
    return Acceptable;
  }

 private:
  int most_;
};

/// Takes the first half of a pair away which the end of a full box has cut off from its second.
class WholeCharacters : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override {
    const auto* box = static_cast<QLineEdit*>(parent());
    if (text.size() >= box->maxLength() && text.back().isHighSurrogate()) text.chop(1);
    for (qsizetype at = 0; at + 1 < text.size(); ++at)
      if (text[at].isHighSurrogate() && !text[at + 1].isLowSurrogate()) text.remove(at--, 1);
    cursor = std::min(cursor, static_cast<int>(text.size()));
    return Acceptable;
  }
};

}  // namespace

QString controlText(const QObject* control) {
  const QString text = control == nullptr ? QString() : control->property(textProperty(*control)).toString();
  return qobject_cast<const QPlainTextEdit*>(control) == nullptr ? text : values::withWindowsLineEnds(text);
}

void setControlText(QObject* control, const QString& text) {
  if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
    const QString lines = values::withPlainLineEnds(text);
    const QTextDocument& inside = *plain->document();
    // The same text is laid out anew only where there is something to forget.
    if (inside.isUndoAvailable() || inside.isRedoAvailable() || plain->toPlainText() != lines)
      plain->setPlainText(lines);
    return showFirstLine(plain);
  }
  control->setProperty(textProperty(*control), text);
  if (auto* line = qobject_cast<QLineEdit*>(control)) line->setCursorPosition(0);
}

void setLocked(QWidget* control, bool locked) {
  if (control->metaObject()->indexOfProperty(kLockProperty) >= 0)
    control->setProperty(kLockProperty, locked);
  else
    control->setEnabled(!locked);
  control->update();
}

bool isLocked(const QWidget* control) {
  const QVariant locked = control->property(kLockProperty);
  return locked.isValid() ? locked.toBool() : !control->isEnabled();
}

void selectText(QWidget* control) {
  if (auto* combo = qobject_cast<QComboBox*>(control)) control = combo->lineEdit();
  // From the end backwards: a text that is longer than its box shows its beginning.
  if (auto* line = qobject_cast<QLineEdit*>(control)) {
    const auto length = static_cast<int>(line->text().size());
    line->setSelection(length, -length);
    const auto* masked = qobject_cast<MaskedBox*>(control);
    if (masked != nullptr && masked->isBlank()) line->setCursorPosition(0);
  }
  if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
    QTextCursor cursor(plain->document());
    cursor.movePosition(QTextCursor::End);
    cursor.movePosition(QTextCursor::Start, QTextCursor::KeepAnchor);
    plain->setTextCursor(cursor);
  }
}

void limitText(QPlainTextEdit* box, int longest) {
  box->installEventFilter(new FullBox(box, longest));
  QObject::connect(box, &QPlainTextEdit::textChanged, box, [box, longest] {
    const QString text = box->toPlainText();
    const qsizetype excess = storedLength(text) - longest;
    if (excess <= 0) return;
    QTextCursor cursor = box->textCursor();
    const QStringView before = QStringView(text).first(cursor.position());
    const auto end = storedLength(before) < excess ? text.size() : before.size();
    qsizetype start = end;
    for (qsizetype left = excess; left > 0;) left -= text[--start] == u'\n' ? 2 : 1;
    if (start > 0 && text[start].isLowSurrogate()) --start;
    cursor.joinPreviousEditBlock();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
  });
}

void limitText(QLineEdit* box, int longest) {
  box->setMaxLength(longest);
  box->setValidator(new WholeCharacters(box));
}

void limitToDigits(QLineEdit* box, int most) { box->setValidator(new Digits(box, most)); }

QColor toColor(ColorNumber number) {
  const auto bits = static_cast<quint32>(number);
  if (bits < 0x80000000U) {
    return {static_cast<int>(bits & 0xFF), static_cast<int>(bits >> 8 & 0xFF),
            static_cast<int>(bits >> 16 & 0xFF)};
  }
  // System colours, by their index: grounds are light, texts are dark, whatever the desktop's own theme.
  static constexpr std::array<QRgb, 25> kSystem{0xFFE4E7EB, 0xFF3B6EA5, 0xFF2F5D8C, 0xFFBFC7D1, 0xFFFFFFFF,
                                                0xFFFFFFFF, 0xFF808890, 0xFF1F2933, 0xFF1F2933, 0xFFFFFFFF,
                                                0xFFC8CED6, 0xFFE4E7EB, 0xFF9AA5B1, 0xFF2F6DB5, 0xFFFFFFFF,
                                                0xFFF2F4F7, 0xFFB4BCC6, 0xFF7B8794, 0xFF1F2933, 0xFF3E4C59,
                                                0xFFFFFFFF, 0xFF697586, 0xFFE4E7EB, 0xFF1F2933, 0xFFFFFBE6};
  const std::size_t index = bits & 0xFFU;
  return QColor::fromRgb(index < kSystem.size() ? kSystem[index] : kSystem[15]);
}

void setBackColor(QWidget* control, ColorNumber number) {
  const Roles roles = rolesOf(control);
  const QColor ground = toColor(number);
  // A field's own ground is white, or the form's while it is locked.
  const bool own = isField(control) && number == kWindowGround;
  control->setProperty(kBackColor, own ? QVariant() : QVariant(number));
  // Options and checks stand on the window's ground, not on a button's face.
  control->setBackgroundRole(roles.back);
  paint(control, roles.back, ground);
  if (roles.back == QPalette::Window && !control->isWindow()) control->setAutoFillBackground(true);
  // Where no text colour was asked for, the text stays readable on its ground.
  if (!control->property(kForeColor).isValid()) {
    paint(control, roles.fore, isDark(ground) ? QColor(Qt::white) : toColor(kWindowText));
  }
}

void setForeColor(QWidget* control, ColorNumber number) {
  control->setProperty(kForeColor, number);
  paint(control, rolesOf(control).fore, toColor(number));
}

bool isDark(const QColor& ground) { return qGray(ground.rgb()) < 128; }

QString asTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

QSize screenSize() {
  const QScreen* screen = QApplication::primaryScreen();
  return screen == nullptr ? QSize() : screen->size();
}

}  // namespace forms
