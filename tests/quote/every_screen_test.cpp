#include <QApplication>
#include <QFontMetrics>
#include <QTabBar>

#include "assembly/frmComposicaoProduto.h"
#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "closing/frmConfirmaPropCmrcTL.h"
#include "documents/frmImprimePropCmrcTL.h"
#include "messaging/frmEmailOS.h"
#include "quote_case.h"
#include "search/frmBROWSE_CONDPG.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "search/frmBROWSE_PropCmrc.h"
#include "search/frmBROWSE_Prototipo.h"

using namespace Qt::StringLiterals;

namespace {

struct Screen {
  const char* name;
  forms::Form& (*open)();
};

template <class T>
forms::Form& make() {
  return forms::form<T>();
}

using Case = std::tuple<Screen, double>;

/// Every screen of the program, with plain text and with text of double size.
class EveryScreen : public QuoteCase, public ::testing::WithParamInterface<Case> {
 protected:
  EveryScreen() : plain_(QApplication::font()) {
    QFont font = plain_;
    font.setPointSizeF(font.pointSizeF() * std::get<double>(GetParam()));
    QApplication::setFont(font);
  }
  ~EveryScreen() override {
    forms::registry::clear();
    QApplication::setFont(plain_);
  }

 private:
  QFont plain_;
};

QString named(const QWidget* widget) {
  return widget->objectName() + u" \""_s + forms::controlText(widget) + u'"';
}

/// Labels, buttons, options and fields that the screen itself names and shows.
QList<QWidget*> controlsOf(const QWidget& form) {
  QList<QWidget*> controls;
  for (QWidget* one : form.findChildren<QWidget*>()) {
    // The arrows of a tab bar are the toolkit's.
    const bool own = !one->objectName().isEmpty() && qobject_cast<const QTabBar*>(one->parent()) == nullptr;
    const bool kind = qobject_cast<QLabel*>(one) != nullptr ||
                      qobject_cast<QAbstractButton*>(one) != nullptr ||
                      qobject_cast<QLineEdit*>(one) != nullptr || qobject_cast<QComboBox*>(one) != nullptr ||
                      qobject_cast<forms::FlexGrid*>(one) != nullptr;
    if (own && kind && one->isVisible()) controls << one;
  }
  return controls;
}

/// Room that a caption needs; 0 for what has none.
int captionWidth(const QWidget* control) {
  if (const auto* label = qobject_cast<const QLabel*>(control))
    return label->wordWrap() ? 0 : label->fontMetrics().horizontalAdvance(label->text().remove(u'&'));
  if (const auto* button = qobject_cast<const QAbstractButton*>(control))
    return button->fontMetrics().horizontalAdvance(button->text().remove(u'&'));
  return 0;
}

TEST_P(EveryScreen, HasNoClippedCaptionNoOverlapAndAllInside) {
  start();
  forms::Form& form = std::get<Screen>(GetParam()).open();
  form.ensureLoaded();
  form.show();
  support::settle();
  EXPECT_LE(form.frameGeometry().right(), forms::screenSize().width());
  EXPECT_LE(form.frameGeometry().bottom(), forms::screenSize().height());

  const QList<QWidget*> controls = controlsOf(form);
  ASSERT_GT(controls.size(), 1);
  for (qsizetype i = 0; i < controls.size(); ++i) {
    QWidget* one = controls[i];
    EXPECT_GE(one->width(), captionWidth(one)) << named(one).toStdString() << " is clipped";
    const int caption = captionWidth(one) > 0 ? one->fontMetrics().height() - 2 : 0;
    EXPECT_GE(one->height(), caption) << named(one).toStdString() << " is cut";
    EXPECT_TRUE(one->parentWidget()->rect().contains(one->geometry()))
        << named(one).toStdString() << " sticks out";
    for (qsizetype j = i + 1; j < controls.size(); ++j) {
      const bool beside = controls[j]->parentWidget() == one->parentWidget();
      EXPECT_FALSE(beside && one->geometry().intersects(controls[j]->geometry()))
          << named(one).toStdString() << " lies on " << named(controls[j]).toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Screens, EveryScreen,
    ::testing::Combine(
        ::testing::Values(
            Screen{"quote", &make<frmPropCmrcTL>}, Screen{"assembly", &make<frmMontarProduto>},
            Screen{"item", &make<frmConfirmaItem>}, Screen{"confirmation", &make<frmConfirmaPropCmrcTL>},
            Screen{"quotes", &make<frmBROWSE_PropCmrc>}, Screen{"conditions", &make<frmBROWSE_CONDPG>},
            Screen{"products", &make<frmBROWSE_PRODUTO>}, Screen{"prototypes", &make<frmBROWSE_Prototipo>},
            Screen{"printing", &make<frmImprimePropCmrcTL>}, Screen{"mail", &make<frmEmailOS>},
            Screen{"composition", &make<frmComposicaoProduto>}),
        ::testing::Values(1.0, 2.0)),
    [](const auto& one) {
      return std::string(std::get<Screen>(one.param).name) +
             (std::get<double>(one.param) > 1 ? "_double" : "_plain");
    });

}  // namespace
