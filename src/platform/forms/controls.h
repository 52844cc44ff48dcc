#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

// What all kinds of controls have in common: text, lock, colours; and the measures of the screen.
namespace forms {

/// Text of any control: caption of a label, button, option or frame, text of a box, combo or masked box.
[[nodiscard]] QString controlText(const QObject* control);
void setControlText(QObject* control, const QString& text);

/// Locked fields are read and copied from, not typed in; they look like text, not like dead boxes. Boxes,
/// combos and masked boxes; other controls are enabled or disabled.
void setLocked(QWidget* control, bool locked);
[[nodiscard]] bool isLocked(const QWidget* control);

/// Selects the whole text of a field; other controls stay as they are.
void selectText(QWidget* control);

/// Keeps a box of several lines to a length, a line break counted as the two characters that it is stored as.
/// What was typed or pasted last is refused; a text that comes whole loses its end.
void limitText(QPlainTextEdit* box, int longest);
/// The same for a box of one line. No limit cuts a character in two.
void limitText(QLineEdit* box, int longest);

/// Scrolls a box of several lines to the first and takes the selection off (remark_box.cpp): how it stands
/// while nobody types in it.
void showFirstLine(QPlainTextEdit* box);
/// Shows a sign in its corner while lines below are out of sight and no scroll bar says so (remark_box.cpp).
/// Again does nothing.
void markHiddenLines(QPlainTextEdit* box);

/// Keeps a box to digits, and to so many of them at most: of a pasted text its digits stay.
void limitToDigits(QLineEdit* box, int most);

/// Colour numbers are blue-green-red (255 is pure red); negative ones and those from 0x80000000 on are system
/// colours (0x8000000F button face, 0x80000012 button text, 0x80000005 window ground, 0x80000000 as inactive
/// ground).
using ColorNumber = qint64;
[[nodiscard]] QColor toColor(ColorNumber number);
/// Whether text on that ground is written in white.
[[nodiscard]] bool isDark(const QColor& ground);
/// The number stands in the control's property kBackColor or kForeColor; none where a field has its own
/// ground.
void setBackColor(QWidget* control, ColorNumber number);
void setForeColor(QWidget* control, ColorNumber number);
inline constexpr char kBackColor[] = "backColor", kForeColor[] = "foreColor";

/// A tip that shows a text as it is: one that looks like HTML would be read so, with the files that it names.
[[nodiscard]] QString asTip(const QString& text);

/// 15 twips to a pixel.
[[nodiscard]] constexpr int pixels(double twips) { return qRound(twips / 15.0); }

/// Primary screen in pixels.
[[nodiscard]] QSize screenSize();

}  // namespace forms
