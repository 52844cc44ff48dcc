#pragma once

#include <QBuffer>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "platform/files/contents.h"
#include "screens/screen_case.h"
#include "search/remembered_search.h"

class SearchTest : public ScreenCase {
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
  /// What a caller from another program with these boxes holds when a row of all that a search finds was
  /// chosen for it: "txtCodigo=12 txtRowId=12", in the order of the boxes, empty ones left out.
  template <class T>
  QString chosenBy(const QString& caller, const QStringList& boxes, int row) {
    contexto().TelaChamadora = caller;
    auto named = std::make_unique<forms::Form>();
    named->setObjectName(caller);
    auto& form = forms::registry::add(std::move(named));
    for (const QString& name : boxes) (new QLineEdit(&form))->setObjectName(name);
    open<T>([&](T& screen) {
      support::click(screen.cmdPesquisa);
      support::doubleClick(screen.Flex, 0);
      ASSERT_EQ(forms::registry::find(screen.objectName()), &screen) << "the title row chooses nothing";
      support::doubleClick(screen.Flex, row);
    });
    EXPECT_EQ(forms::registry::find(forms::formName<T>()), nullptr);
    QStringList held;
    for (const auto* box : form.findChildren<QLineEdit*>())
      if (!box->text().isEmpty()) held << box->objectName() + u'=' + box->text();
    forms::registry::clear();
    return held.join(u' ');
  }
};
