// The viewer, with real panes.
#include <sys/mount.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QRadioButton>

#include "documents/frmPedHTML.h"
#include "messaging/frmEmailOS.h"
#include "platform/web/find_bar.h"
#include "quote_rows.h"
#include "support/errors.h"
#include "support/script.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

class Viewer : public support::Quotes {
 protected:
  Viewer() { contexto().TelaChamadora = u"frmPropCmrcTL"_s; }
  ~Viewer() override {
    forms::registry::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // pages go before their profile
  }

  void show(qint32 id, const std::function<void(support::Script&, frmPedHTML&)>& look) {
    print(id);
    showAsSet(look);
  }
  void showAsSet(const std::function<void(support::Script&, frmPedHTML&)>& look) {
    support::Script script;
    script.modal([&](forms::Form& form) {
      look(script, dynamic_cast<frmPedHTML&>(form));
      form.unload();
    });
    forms::form<frmPedHTML>().showModal();
  }
};

TEST_F(Viewer, WritesBothCopiesAnewAndShowsThem) {
  const QString first = contexto().PathDocs + u"orca_cliente_000123.html"_s;
  const QString second = contexto().PathDocs + u"orca_empresa_000123.html"_s;
  files::write(first, "an older one");
  show(123, [&](support::Script&, frmPedHTML& viewer) {
    EXPECT_EQ(viewer.ArqVia1, first);
    EXPECT_EQ(viewer.ArqVia2, second);
    EXPECT_TRUE(viewer.Option1->isChecked());
    EXPECT_EQ(viewer.SSTab1->currentIndex(), 0);
    EXPECT_TRUE(viewer.WebBrowser1->pageText().contains(u"Total Geral do Orçamento - R$ 1307,25"_s));
    EXPECT_EQ(viewer.WebBrowser2->pageText(), viewer.WebBrowser1->pageText());
    EXPECT_TRUE(viewer.WebBrowser1->find(u"caixa BRANCA"_s));
  });
  EXPECT_EQ(files::readAll(first), files::readAll(second));
  EXPECT_FALSE(files::readAll(first).contains("an older one"));
}

TEST_F(Viewer, TypesNameTheirFilesAndRoutines) {
  struct Case {
    QString type, caller;
    qint32 id;
    QString first, second, told;
  };
  sql(u"INSERT INTO cota_comp (idcota_comp) VALUES (1234567)"_s);
  sql(u"INSERT INTO pedi_comp (idpedi_comp) VALUES (72)"_s);
  for (const Case& one :
       {Case{u"ORCA_VENDAS"_s, u"outra"_s, 124, u"orca_cliente_000124.html"_s, u"orca_empresa_000124.html"_s,
             u"Condições Gerais"_s},
        Case{u"PEDIDO_VENDAS"_s, u""_s, 300, u"pedido_cliente_000300.html"_s, u"pedido_empresa_000300.html"_s,
             u"Pedido de Venda - 000300"_s},
        Case{u"COTA_COMPRA"_s, u""_s, 1234567, u"cota_compra_1234567.html"_s, u""_s, u"Prezados,"_s},
        Case{u"ORDEM_COMPRA"_s, u""_s, 72, u"ordem_compra_000072.html"_s, u""_s, u"Ordem de Compra: 72"_s},
        Case{u"NADA"_s, u""_s, 72, u""_s, u""_s, u""_s}}) {
    print(124);
    documento().TipoDocumento = one.type;
    documento().IdDocumento = one.id;
    contexto().TelaChamadora = one.caller;
    showAsSet([&](support::Script&, frmPedHTML& viewer) {
      const auto path = [](const QString& name) {
        return name.isEmpty() ? name : contexto().PathDocs + name;
      };
      EXPECT_EQ(viewer.ArqVia1, path(one.first));
      EXPECT_EQ(viewer.ArqVia2, path(one.second));
      EXPECT_TRUE(viewer.WebBrowser1->pageText().contains(one.told)) << one.type.toStdString();
    });
  }
}

TEST_F(Viewer, ToolsActOnTheCopyInSight) {
  show(123, [](support::Script&, frmPedHTML& viewer) {
    viewer.SSTab1->setCurrentIndex(1);
    EXPECT_EQ(viewer.txtArquivo->text(), viewer.ArqVia2);
    const double before = viewer.WebBrowser1->zoom();
    viewer.WebBrowser2->setZoom(1.0);
    support::key(viewer.txtArquivo, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(viewer.WebBrowser2->zoom(), 0.9, 1e-6);
    EXPECT_EQ(viewer.lblZoom->text(), u"90%"_s);
    EXPECT_EQ(viewer.WebBrowser1->zoom(), before);
    support::key(viewer.txtArquivo, Qt::Key_F, Qt::ControlModifier);
    auto* bar = viewer.WebBrowser2->findChild<web::FindBar*>();
    ASSERT_TRUE(bar->isVisible());
    support::key(bar->findChild<QLineEdit*>(), Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_TRUE(viewer.isVisible());
  });
}

TEST_F(Viewer, MailTakesTheChosenCopyAndSubject) {
  documento().PublicacaoExterna = true;
  show(124, [](support::Script& script, frmPedHTML& viewer) {
    for (QRadioButton* copy : {viewer.Option1, viewer.Option2}) {
      copy->setChecked(true);
      script.modal([](forms::Form& form) {
        EXPECT_EQ(dynamic_cast<frmEmailOS&>(form).txtTitulo->text(), u"Pedido - 000124 - Aurora"_s);
        form.unload();
      });
      support::click(viewer.cmdEnviarEmail);
      EXPECT_EQ(documento().ArquivoCorpoEmail, copy == viewer.Option1 ? viewer.ArqVia1 : viewer.ArqVia2);
    }
  });
}

TEST_F(Viewer, FaultsOfTheFolderAreTheRuntimesErrors) {
  print(123);
  contexto().PathDocs = u"c:\\zarim\\nada\\"_s;
  EXPECT_EQ(errorOf([] { forms::form<frmPedHTML>(); }), values::kPathNotFound);
  forms::registry::clear();
  const QString folder = drive() + u"/zarim/fechada"_s;
  QDir().mkpath(folder);
  contexto().PathDocs = u"c:\\zarim\\fechada\\"_s;
  if (geteuid() == 0) {  // root writes into any folder but that of a read-only disk
    if (mount("tmpfs", folder.toUtf8().constData(), "tmpfs", MS_RDONLY, nullptr) != 0)
      GTEST_SKIP() << "may not mount";
    EXPECT_EQ(errorOf([] { forms::form<frmPedHTML>(); }), values::kPathFileAccess);
    umount(folder.toUtf8().constData());
  } else {
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(errorOf([] { forms::form<frmPedHTML>(); }), values::kPermissionDenied);
  }
}

TEST_F(Viewer, FullDiskLeavesNoHalfDocument) {
  const QString folder = drive() + u"/zarim/cheio"_s;
  QDir().mkpath(folder);
  const QByteArray mountPoint = folder.toUtf8();
  if (mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=8k") != 0)
    GTEST_SKIP() << "may not mount a small disk";
  print(123);
  const QString path = u"c:\\zarim\\cheio\\x.html"_s;
  EXPECT_EQ(errorOf([&] { MontaOrcaGradeHTML(123, path); }), values::kDiskFull);
  EXPECT_FALSE(files::exists(path));
  umount(mountPoint.constData());
}

}  // namespace
