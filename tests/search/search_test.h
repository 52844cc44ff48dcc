#pragma once

#include <QBuffer>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "platform/files/paths.h"
#include "run/context.h"
#include "search/remembered_search.h"
#include "support/company.h"
#include "support/script.h"

/// A form of any name with any controls, for callers that are not in this program.
class StandIn : public forms::Form {
 public:
  StandIn(const QString& name, const QStringList& controls) : Form(name) {
    for (const QString& control : controls) {
      QWidget* made =
          control.startsWith(u"lbl") ? static_cast<QWidget*>(new QLabel(this)) : new QLineEdit(this);
      made->setObjectName(control);
    }
  }
  /// What its controls hold: "txtCodigo=12 txtRowId=12", in the order of their making, empty ones left out.
  [[nodiscard]] QString written() const {
    QStringList all;
    for (const QWidget* control : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QString text = forms::controlText(control);
      if (!text.isEmpty()) all << control->objectName() + u'=' + text;
    }
    return all.join(u' ');
  }
};

class SearchTest : public support::Company {
 protected:
  SearchTest() {
    pesquisa::reiniciaLembrancas();
    picture(contexto().ArqSemImagem, 10);
  }
  /// A picture is known by its width.
  static void picture(const QString& path, int width) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QPixmap pixmap(width, 8);
    pixmap.fill(Qt::red);
    pixmap.save(&buffer, "PNG");
    files::write(path, bytes);
  }

  /// Opens a search screen as its caller does, acts on it, and closes it if it is still there.
  template <class T>
  void open(const std::function<void(T&)>& act) {
    script.modal([&act](forms::Form& opened) {
      const QPointer<T> screen = qobject_cast<T*>(&opened);
      ASSERT_NE(screen, nullptr);
      act(*screen);
      if (screen != nullptr && screen->isVisible()) support::key(screen, Qt::Key_Escape);
    });
    forms::form<T>().showModal();
    support::settle();
  }
  /// Double clicks on a row of all that a search finds, for callers that stand in for those of other
  /// programs; "callers" are separated by commas, behind a blank the kind of browsing. Gives what they hold
  /// then.
  template <class T>
  QStringList chosenBy(const QString& callers, const QStringList& controls, int row) {
    QStringList written;
    for (const QString& caller : callers.split(QChar(u','))) {
      const QString name = caller.section(QChar(u' '), 0, 0);
      contexto().TelaChamadora = name;
      pesquisa::lembrancas().TipoBrowseProduto = caller.section(QChar(u' '), 1);
      const auto& form =
          static_cast<StandIn&>(forms::registry::add(std::make_unique<StandIn>(name, controls)));
      open<T>([&](T& screen) {
        support::click(screen.cmdPesquisa);
        support::doubleClick(screen.Flex, 0);
        ASSERT_EQ(forms::registry::find(screen.objectName()), &screen) << "the title row chooses nothing";
        support::doubleClick(screen.Flex, row);
      });
      EXPECT_EQ(forms::registry::find(QString::fromUtf16(T::Name)), nullptr);
      written << form.written();
      forms::registry::clear();
    }
    written.removeDuplicates();
    return written;
  }
  /// The texts of a column, top to bottom.
  static QString column(forms::FlexGrid* grid, int column) {
    QStringList all;
    for (int row = 1; row < grid->grid().rows(); ++row) all << grid->grid().text(row, column);
    return all.join(u' ');
  }
  static QString row(forms::FlexGrid* grid, int row) {
    QString all = grid->grid().text(row, 0);
    for (int column = 1; column < grid->grid().cols(); ++column) all += u'|' + grid->grid().text(row, column);
    return all;
  }

  support::Script script;
};
