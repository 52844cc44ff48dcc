#include <QApplication>
#include <QHash>
#include <QLibraryInfo>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>
#include <QTranslator>
#include <algorithm>

#include "platform/forms/form.h"

using namespace Qt::StringLiterals;

// The look that all screens share. Colours of controls come from palettes, which themes may set, so nothing
// here is a style sheet.
namespace forms {

namespace {

const QColor kAccent(0x2F, 0x6D, 0xB5);
const QColor kAccentPale(0xD6, 0xE6, 0xF7);
constexpr int kRemarkFrame = 2;

bool isPrincipal(const QWidget* widget) {
  return widget != nullptr && widget->property("principal").toBool();
}

bool isEnabledPrincipal(const QStyleOption& option, const QWidget* widget) {
  return isPrincipal(widget) && option.state.testFlag(QStyle::State_Enabled);
}

bool isLockedField(const QWidget* widget) {
  return widget != nullptr && widget->property("readOnly").toBool();
}

QColor between(const QColor& from, const QColor& to, double way) {
  const auto part = [way](int one, int other) { return qRound(one + (other - one) * way); };
  return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

/// The ground that a box is painted with. One that takes the form's own ground and can be typed in is lit, so
/// that it doesn't read as locked beside lists and dates, which are white; what it was asked for stays.
QColor groundOf(const QWidget& box) {
  constexpr double kLit = 0.75, kLitOnDark = 0.15;  // of the way to white
  const QColor asked = box.palette().color(QPalette::Base);
  if (asked != box.window()->palette().color(QPalette::Window) || isLocked(&box) || !box.isEnabled())
    return asked;
  return between(asked, Qt::white, isDark(asked) ? kLitOnDark : kLit);
}

class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    static const QHash<int, int> kOwn{{PM_LayoutHorizontalSpacing, 6}, {PM_LayoutVerticalSpacing, 5},
                                      {PM_LayoutLeftMargin, 8},        {PM_LayoutRightMargin, 8},
                                      {PM_LayoutTopMargin, 8},         {PM_LayoutBottomMargin, 8}};
    // At a scale that is no whole number the text's ground takes part of the line beside it.
    if (metric == PM_DefaultFrameWidth && qobject_cast<const QPlainTextEdit*>(widget) != nullptr)
      return kRemarkFrame;
    const auto own = kOwn.constFind(static_cast<int>(metric));
    return own == kOwn.cend() ? QProxyStyle::pixelMetric(metric, option, widget) : *own;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    // The list of a combo drops down under it.
    if (hint == SH_ComboBox_Popup || hint == SH_EtchDisabledText) return 0;
    return hint == SH_UnderlineShortcut ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    const QRect place = QProxyStyle::subControlRect(control, option, part, widget);
    // The title of a group stands inside its line.
    return control == CC_GroupBox && part == SC_GroupBoxLabel ? place.translated(8, 4) : place;
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameGroupBox) return drawGroup(*option, painter, widget);
    if (element == PE_PanelLineEdit && isLockedField(widget))
      return drawLockedGround(*option, painter, widget);
    if (element == PE_PanelButtonCommand && isEnabledPrincipal(*option, widget))
      return drawPrincipal(*option, painter);
    if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        element == PE_PanelLineEdit && frame != nullptr && widget != nullptr) {
      QStyleOptionFrame lit = *frame;
      lit.palette.setColor(QPalette::Base, groundOf(*widget));
      return QProxyStyle::drawPrimitive(element, &lit, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button != nullptr && isEnabledPrincipal(*option, widget)) {
      QStyleOptionButton white = *button;
      white.palette.setColor(QPalette::ButtonText, Qt::white);
      return QProxyStyle::drawControl(element, &white, painter, widget);
    }
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
        element == CE_TabBarTabLabel && tab != nullptr) {
      // Tabs stand on the ground of buttons, whatever the form's own.
      QStyleOptionTab own = *tab;
      own.palette.setColor(QPalette::WindowText, own.palette.color(QPalette::ButtonText));
      return QProxyStyle::drawControl(element, &own, painter, widget);
    }
    if (element == CE_ShapedFrame && isLockedField(widget)) return drawLockedGround(*option, painter, widget);
    if (element == CE_ShapedFrame && qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
      // Filled, not drawn: a line at half a pixel can fall outside.
      const QColor line = option->palette.color(QPalette::Window).darker(140);
      painter->fillRect(option->rect, option->state.testFlag(State_HasFocus) ? kAccent : line);
      painter->fillRect(option->rect.adjusted(1, 1, -1, -1), groundOf(*widget));
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (control == CC_ComboBox && isLockedField(widget))
      drawLockedGround(*option, painter, widget);
    else
      QProxyStyle::drawComplexControl(control, option, painter, widget);
  }

  using QProxyStyle::polish;
  void polish(QWidget* widget) override {
    QProxyStyle::polish(widget);
    // Its ground is painted with its frame.
    if (auto* remark = qobject_cast<QPlainTextEdit*>(widget))
      remark->viewport()->setAutoFillBackground(false);
    if (!isPrincipal(widget)) return;
    QFont bold = widget->font();
    bold.setBold(true);
    widget->setFont(bold);
  }

 private:
  /// A locked field reads as text on the form's own ground, with a thin line under it; a ground of its own
  /// that was asked for stays, and on a dark form it is a field's, which its text is made for, dimmed.
  static void drawLockedGround(const QStyleOption& option, QPainter* painter, const QWidget* widget) {
    if (qobject_cast<const Combo*>(widget->parentWidget()) != nullptr) return;
    constexpr double kDimmed = 0.35;
    const QColor ground = option.palette.color(QPalette::Active, QPalette::Window);
    const QColor base = option.palette.color(QPalette::Base);
    if (widget->property(kBackColor).isValid())
      painter->fillRect(option.rect, base);
    else if (isDark(ground))
      painter->fillRect(option.rect, between(base, ground, kDimmed));
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Mid));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (option.state.testFlag(State_HasFocus)) {
      painter->setPen(kAccent);
      painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
  }

  /// A group is a thin line on the form's own ground; a frame that opens over the form has a stronger one.
  static void drawGroup(const QStyleOption& option, QPainter* painter, const QWidget* widget) {
    const bool over = widget != nullptr && widget->property("overFrame").toBool();
    painter->save();
    painter->setPen(over ? kAccent : option.palette.color(QPalette::Active, QPalette::Mid));
    painter->drawRect(over ? widget->rect().adjusted(0, 0, -1, -1) : option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
  }

  static void drawPrincipal(const QStyleOption& option, QPainter* painter) {
    const bool down = option.state.testFlag(State_Sunken);
    const bool over = option.state.testFlag(State_MouseOver);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(kAccent.darker(140));
    painter->setBrush(down ? kAccent.darker(120) : over ? kAccent.lighter(112) : kAccent);
    const QRectF edge = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter->drawRoundedRect(edge, 2.5, 2.5);
    if (option.state.testFlag(State_HasFocus)) {
      painter->setPen(Qt::white);
      painter->setBrush(Qt::NoBrush);
      painter->drawRoundedRect(edge.adjusted(2, 2, -2, -2), 2, 2);
    }
    painter->restore();
  }
};

QPalette programPalette() {
  const QColor ground = toColor(0x8000000F);
  const QColor text = toColor(0x80000012);
  QPalette palette(text, ground);
  palette.setColor(QPalette::Window, ground);
  palette.setColor(QPalette::Button, QColor(0xE9, 0xEC, 0xF1));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF3, 0xF7, 0xFB));
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::Mid, QColor(0xB9, 0xC1, 0xCB));
  palette.setColor(QPalette::PlaceholderText, QColor(0x7B, 0x87, 0x94));
  palette.setColor(QPalette::ToolTipBase, toColor(0x80000018));
  palette.setColor(QPalette::ToolTipText, text);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Highlight, kAccent);
    palette.setColor(group, QPalette::HighlightedText, Qt::white);
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, kAccentPale);
  const QColor pale(0x8A, 0x95, 0xA3);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
    palette.setColor(QPalette::Disabled, role, pale);
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xF4, 0xF5, 0xF7));
  return palette;
}

/// The desktop's own size of text, as far as the screens stay whole with it.
double textSize() {
  constexpr double kSmallest = 9;
  constexpr double kLargest = 18;
  return std::clamp(QFontInfo(QApplication::font()).pointSizeF(), kSmallest, kLargest);
}

/// The toolkit's own words (the menus of text boxes) in Portuguese.
void speakPortuguese() {
  static QTranslator translator;
  QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
  if (translator.load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&translator);
}

}  // namespace

void applyStyle() {
  speakPortuguese();
  QApplication::setStyle(new ProgramStyle);
  const QPalette palette = programPalette();
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
  QFont font(u"Liberation Sans"_s);
  font.setPointSizeF(textSize());
  font.setStyleHint(QFont::SansSerif);
  QApplication::setFont(font);
}

}  // namespace forms
