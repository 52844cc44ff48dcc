// The viewer, with real panes.
#include <signal.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "documents/frmPedHTML.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "quote_rows.h"
#include "support/errors.h"

using namespace Qt::StringLiterals;
using support::errorOf;

namespace {

class Viewer : public Quotes {
 protected:
  Viewer() { contexto().TelaChamadora = u"frmPropCmrcTL"_s; }
  ~Viewer() override {
    forms::registry::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // pages go before their profile
  }

  void show(const std::function<void(frmPedHTML&)>& look) {
    script.modal([&](forms::Form& form) {
      look(dynamic_cast<frmPedHTML&>(form));
      form.unload();
    });
    forms::form<frmPedHTML>().showModal();
  }
};

TEST_F(Viewer, TypesNameTheirFilesAndRoutines) {
  sql(u"INSERT INTO cota_comp (idcota_comp) VALUES (1234567)"_s);
  sql(u"INSERT INTO pedi_comp (idpedi_comp) VALUES (72)"_s);
  const struct {
    QString type;
    qint32 id;
    QString first, second, shown;
  } cases[] = {
      {u"ORCA_VENDAS"_s, 124, u"orca_cliente_000124"_s, u"orca_empresa_000124"_s, u"Condições Gerais"_s},
      {u"PEDIDO_VENDAS"_s, 300, u"pedido_cliente_000300"_s, u"pedido_empresa_000300"_s,
       u"Pedido de Venda - 000300"_s},
      {u"COTA_COMPRA"_s, 1234567, u"cota_compra_1234567"_s, {}, u"Prezados,"_s},
      {u"ORDEM_COMPRA"_s, 72, u"ordem_compra_000072"_s, {}, u"Ordem de Compra: 72"_s},
      {u"ORDEM_COMPRA"_s, 99, u"ordem_compra_000099"_s, {}, u"Documento não localizado!"_s},
      {u"NADA"_s, 72, {}, {}, {}}};
  const auto path = [](const QString& name) {
    return name.isEmpty() ? name : contexto().PathDocs + name + u".html"_s;
  };
  for (const auto& one : cases) {
    print(124);
    documento().TipoDocumento = one.type;
    documento().IdDocumento = one.id;
    contexto().TelaChamadora = u"outra"_s;
    show([&](frmPedHTML& viewer) {
      EXPECT_EQ(viewer.WebBrowser1->path(), path(one.first));
      EXPECT_EQ(viewer.WebBrowser2->path(), path(one.second));
      EXPECT_TRUE(viewer.WebBrowser1->pageText().contains(one.shown)) << one.type.toStdString();
    });
  }
}

// Another program shows the same quote all the time: what stands under the name is a whole document or none.
TEST_F(Viewer, TwoProgramsWriteOneDocument) {
  const QString path = contexto().PathDocs + u"orca_cliente_000123.html"_s;
  const auto write = [&] {
    print(123);
    files::removeIfThere(path);
    MontaOrcaGradeHTML(123, path);
  };
  write();
  const QByteArray whole = files::readAll(path);
  contexto().Conexao.close();
  const pid_t other = fork();
  if (other == 0) {
    alarm(60);
    try {
      connect();
      for (;;) write();
    } catch (const values::RuntimeError& error) {
      std::fprintf(stderr, "The other program: %d %s\n", error.number(), qPrintable(error.text()));
      _exit(1);
    }
  }
  connect();
  int seen = 0;
  for (int round = 0; round < 100; ++round) {
    write();
    QFile file(files::resolve(path));
    if (!file.open(QIODevice::ReadOnly)) continue;
    ++seen;
    ASSERT_EQ(file.readAll(), whole) << "round " << round;
  }
  EXPECT_GT(seen, 10);
  EXPECT_EQ(waitpid(other, nullptr, WNOHANG), 0) << "the other program ended";
  kill(other, SIGKILL);
  waitpid(other, nullptr, 0);

  // What a killed program left goes with a later document, what is being written doesn't.
  for (const auto& [name, hours] : {std::pair(u".velha.parte"_s, 2), std::pair(u".nova.parte"_s, 0)}) {
    QFile left(files::resolve(path) + name);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.setFileTime(QDateTime::currentDateTime().addSecs(-3600 * hours), QFile::FileModificationTime);
  }
  write();
  EXPECT_FALSE(QFile::exists(files::resolve(path) + u".velha.parte"_s));
  EXPECT_TRUE(QFile::exists(files::resolve(path) + u".nova.parte"_s));
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
  EXPECT_TRUE(QDir(folder).isEmpty());
  umount(mountPoint.constData());
}

}  // namespace
