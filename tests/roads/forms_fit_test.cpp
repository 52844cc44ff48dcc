#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <set>

#include "assembly/frmComposicaoProduto.h"
#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "closing/frmConfirmaPropCmrcTL.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "documents/frmPedHTML.h"
#include "messaging/frmEmailOS.h"
#include "quote/frmPropCmrcTL.h"
#include "run/context.h"
#include "search/frmBROWSE_CONDPG.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "search/frmBROWSE_Prototipo.h"
#include "search/frmImagem.h"
#include "shared/theme.h"
#include "support/company.h"
#include "support/script.h"

using namespace Qt::StringLiterals;

namespace {

// The engine has to know before the application is made.
using Screen = std::pair<std::string, forms::Form& (*)()>;

template <class... T>
std::vector<Screen> screens() {
  return {{T::staticMetaObject.className(), []() -> forms::Form& { return forms::form<T>(); }}...};
}

const std::vector<Screen> kScreens =
    screens<frmPropCmrcTL, frmMontarProduto, frmConfirmaItem, frmComposicaoProduto, frmConfirmaPropCmrcTL,
            frmImprimePropCmrcTL, frmPedHTML, frmEmailOS, frmBROWSE_CONDPG, frmBROWSE_PRODUTO,
            frmBROWSE_PropCmrc, frmBROWSE_Prototipo, frmImagem>();

/// Names of controls with what is wrong about them.
class Faults : public std::set<QString> {
 public:
  void add(const QWidget& control, const QString& what) {
    const QString name = control.objectName();
    insert((name.isEmpty() ? QString::fromLatin1(control.metaObject()->className()) : name) + u": "_s + what);
  }
  [[nodiscard]] std::string text() const { return QStringList(begin(), end()).join(u'\n').toStdString(); }
};

bool isPart(const QWidget& control) {
  return control.objectName().startsWith(u"qt_"_s) || control.inherits("QScrollBar") ||
         control.inherits("QHeaderView") || control.inherits("QSizeGrip");
}

int widthOf(const QWidget& control, const QString& text) {
  return control.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void checkCaption(const QWidget& control, Faults& faults) {
  if (const auto* grid = qobject_cast<const forms::FlexGrid*>(&control)) {
    for (int column = 0; column < grid->grid().cols(); ++column) {
      const QString title = grid->grid().text(0, column);
      if (!grid->isColumnHidden(column) && grid->columnWidth(column) < widthOf(control, title))
        faults.add(control, u"title \"%1\" clipped"_s.arg(title));
    }
    return;
  }
  const int line = control.fontMetrics().height();
  QSize needed;
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    if (label->text().isEmpty() || label->inherits("forms::ElidedLabel")) return;
    needed = label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                               : QSize(widthOf(control, label->text()), line);
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    if (button->text().isEmpty()) return;
    const bool option = button->isCheckable() && button->autoExclusive();
    needed = QSize(option ? button->sizeHint().width() : widthOf(control, button->text()), line);
  } else if (const auto* group = qobject_cast<const QGroupBox*>(&control)) {
    needed = QSize(widthOf(control, group->title()), 0);
  } else if (control.inherits("QLineEdit") || control.inherits("QComboBox")) {
    needed = QSize(0, line);
  }
  if (needed.width() > control.width() || needed.height() > control.height())
    faults.add(control, u"\"%1\" clipped, %2x%3 of %4x%5"_s.arg(forms::controlText(&control))
                            .arg(control.width())
                            .arg(control.height())
                            .arg(needed.width())
                            .arg(needed.height()));
}

/// Whether a control is looked at: a visible one that its parent does not manage by itself.
bool isLookedAt(const QWidget& control) {
  const QWidget& parent = *control.parentWidget();
  const bool managed = isPart(parent) || parent.inherits("QComboBox") || parent.inherits("QLineEdit") ||
                       parent.inherits("QTabBar") || parent.inherits("QAbstractScrollArea") ||
                       parent.inherits("web::WebPane");
  return control.isVisible() && !control.isWindow() && !isPart(control) && !managed;
}

/// On a display of 900 logical pixels, which is 1366 at 150%, nothing stands outside to the right: neither
/// the page scrolls sideways nor the items of a quote, with more lines than there is room for.
void checkWidth(forms::Form& form, Faults& faults) {
  if (forms::screenSize().width() < 900 || form.objectName() == u"frmPedHTML"_s) return;
  auto* items = qobject_cast<forms::FlexGrid*>(form.findChild<QWidget*>(u"Flex"_s));
  for (int line = 0; items != nullptr && line < 100; ++line) items->grid().addRow({});
  support::settle();
  for (const auto* area : form.findChildren<QAbstractScrollArea*>())
    if (const int outside = area->horizontalScrollBar()->maximum();
        (area == items || qobject_cast<const QScrollArea*>(area) != nullptr) && outside > 0)
      faults.add(*area, u"scrolls sideways by %1"_s.arg(outside));
}

/// Captions, overlaps and edges of all that is visible.
void checkAll(forms::Form& form, Faults& faults) {
  support::settle();
  const QRect screen(QPoint(0, 0), forms::screenSize());
  if (!screen.contains(form.geometry())) faults.add(form, u"larger than the screen"_s);
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    if (!isLookedAt(*control)) continue;
    checkCaption(*control, faults);
    const QWidget& parent = *control->parentWidget();
    const QRect place = control->geometry();
    // The viewer's own measures make its tabs wider than the window.
    const bool wider = control->objectName() == u"SSTab1"_s && parent.objectName() == u"conteudo"_s;
    if (!wider && !parent.rect().contains(place))
      faults.add(*control, u"reaches %1,%2 in %3x%4"_s.arg(place.right() + 1)
                               .arg(place.bottom() + 1)
                               .arg(parent.width())
                               .arg(parent.height()));
    for (const QWidget* other : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const bool frames = control->property("overFrame").toBool() || other->property("overFrame").toBool();
      if (other > control && isLookedAt(*other) && !frames && other->geometry().intersects(place))
        faults.add(*control, u"overlaps "_s + other->objectName());
    }
  }
}

/// Every button can be reached by a key or says what it does, and no two visible controls share an access
/// key.
void checkKeys(forms::Form& form, Faults& faults) {
  QHash<QString, QString> owners;
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const auto* label = qobject_cast<const QLabel*>(control);
    if (label != nullptr && label->buddy() == nullptr && label->text().contains(u'&'))
      faults.add(*control, u"shows the & of an access key"_s);
    if (button == nullptr && (label == nullptr || label->buddy() == nullptr)) continue;
    const QString key = QKeySequence::mnemonic(forms::controlText(control)).toString();
    const bool push = button != nullptr && button->inherits("QPushButton");
    if (push && key.isEmpty() && button->toolTip().isEmpty()) faults.add(*control, u"neither key nor tip"_s);
    if (key.isEmpty() || control->isHidden()) continue;
    // A known pair: reactivating and leaving.
    if (owners.contains(key) && control->objectName() != u"cmdSAIR"_s)
      faults.add(*control, u"shares %1 with %2"_s.arg(key, owners.value(key)));
    owners.insert(key, control->objectName());
  }
}

/// Each page of each tab control and each frame that opens over the form.
void walk(forms::Form& form, Faults& faults) {
  checkAll(form, faults);
  for (auto* tabs : form.findChildren<QTabWidget*>()) {
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      checkAll(form, faults);
    }
  }
  for (auto* frame : form.findChildren<QWidget*>()) {
    if (!frame->property("overFrame").toBool()) continue;
    form.openOverFrame(frame, nullptr);
    checkAll(form, faults);
    if (!form.rect().contains(frame->geometry())) faults.add(*frame, u"not wholly in sight"_s);
    form.closeOverFrame(frame);
  }
}

class FormsFit : public support::Company, public ::testing::WithParamInterface<std::tuple<Screen, int>> {
 protected:
  FormsFit() : plain_(QApplication::font()) {
    support::fillBasics(databasePath());
    contexto().LinhaComando = u"7^0^PRD^"_s;
    LeCoresSistema(QString());
    QFont font = plain_;
    font.setPointSizeF(plain_.pointSizeF() * std::get<int>(GetParam()));
    QApplication::setFont(font);
  }
  ~FormsFit() override {
    forms::registry::clear();
    QApplication::setFont(plain_);
  }

 private:
  QFont plain_;
};

TEST_P(FormsFit, NothingClippedOverlappingOrOutside) {
  const support::Script script;
  forms::Form& form = std::get<Screen>(GetParam()).second();
  form.showForm();
  Faults faults;
  support::settle();
  // Where the page scrolls too, the first focus is in the number.
  if (form.objectName() == u"frmPropCmrcTL"_s && form.focusWidget()->objectName() != u"txtCodigo"_s)
    faults.add(*form.focusWidget(), u"has the first focus"_s);
  if (const QString folder = qEnvironmentVariable("ZARIM_FORM_PICTURES"); !folder.isEmpty())
    form.grab().save(folder + u'/' + form.objectName() + u".png"_s);
  walk(form, faults);
  checkKeys(form, faults);
  if (std::get<int>(GetParam()) == 1) checkWidth(form, faults);
  EXPECT_EQ(faults.text(), "");
}

INSTANTIATE_TEST_SUITE_P(Screens, FormsFit,
                         ::testing::Combine(::testing::ValuesIn(kScreens), ::testing::Values(1, 2)),
                         [](const auto& screen) {
                           return std::get<Screen>(screen.param).first +
                                  (std::get<int>(screen.param) == 1 ? "Plain" : "DoubleText");
                         });

}  // namespace
