// Writes every kind of document of the sample company, as HTML, as the pane shows it and as it is printed;
// with docs/make_papers.sh these come beside a browser's pictures.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTest>
#include <cstdio>

#include "documents/document_types.h"
#include "documents/document_values.h"
#include "papers.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "platform/web/web_pane.h"
#include "run/configuration.h"
#include "run/context.h"
#include "search/frmBROWSE_PRODUTO.h"
#include "shared/lookups.h"
#include "shared/pictures.h"

using namespace Qt::StringLiterals;

namespace {

/// A document of the sample: its file, its kind, its number; the page of a search has no kind.
struct Paper {
  QString name, kind;
  qint32 id = 0;
  bool outside = false;
};

void searchPage(const QString& path) {
  auto& browse = forms::form<frmBROWSE_PRODUTO>();
  browse.cmdPesquisa->click();
  files::write(path, browse.MontaDetalheHTML().toLatin1());
}

const Paper kPapers[] = {{u"diario_aberto"_s, u"diario"_s, 12},
                         {u"diario_fechado"_s, u"diario"_s, 1},
                         {u"modelo_vazio"_s, u"modelo_vazio"_s, 2},
                         {u"modelo_1"_s, u"modelo_1"_s, 3},
                         {u"modelo_2"_s, u"modelo_2"_s, 4},
                         {u"modelo_3"_s, u"modelo_3"_s, 2},
                         {u"externo"_s, u"modelo_vazio"_s, 2, true},
                         {u"detalhe_vazio"_s, u"detalhe_vazio"_s, 2},
                         {u"detalhe_1"_s, u"detalhe_1"_s, 3},
                         {u"pedido"_s, u"pedido"_s, 3187},
                         {u"pedido_importados"_s, u"pedido_importados"_s, 3214},
                         {u"cotacao"_s, u"cotacao"_s, 2},
                         {u"ordem"_s, u"ordem"_s, 2},
                         {u"pesquisa"_s, {}}};

/// What the viewer calls such a document.
QString typeOf(const QString& kind) {
  static const QHash<QString, QString> kOthers{{u"pedido"_s, u"PEDIDO_VENDAS"_s},
                                               {u"pedido_importados"_s, u"PEDIDO_VENDAS"_s},
                                               {u"cotacao"_s, u"COTA_COMPRA"_s},
                                               {u"ordem"_s, u"ORDEM_COMPRA"_s},
                                               {QString(), QString()}};
  return kOthers.value(kind, u"ORCA_VENDAS"_s);
}

/// The document with its pictures' places as a browser reads them.
QByteArray forBrowser(const QByteArray& html) {
  QString text = QString::fromLatin1(html);
  for (qsizetype at = text.indexOf(u"c:\\"_s, 0, Qt::CaseInsensitive); at >= 0;
       at = text.indexOf(u"c:\\"_s, at + 1, Qt::CaseInsensitive)) {
    const qsizetype end = text.indexOf(u'\'', at);
    text.replace(at, end - at, u"file://"_s + files::resolve(text.sliced(at, end - at)));
  }
  return text.toLatin1();
}

void show(const Paper& paper, const QString& folder) {
  documento().IdDocumento = paper.id;
  documento().ExibeFotos = true;
  documento().PublicacaoExterna = paper.outside;
  documento().letraFornecedor = u"A"_s;
  documento().rsImpressao = abreConsulta(u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='%1'"_s.arg(paper.id));
  const QString& name = paper.name;
  const QString path = contexto().PathDocs + name + u".html"_s;
  files::removeIfThere(path);
  if (paper.kind.isEmpty())
    searchPage(path);
  else
    papers::chosen(paper.kind).routine(paper.id, path);
  QFile page(folder + u'/' + name + u".html"_s);
  if (page.open(QIODevice::WriteOnly)) page.write(forBrowser(files::readAll(path)));

  web::WebPane pane;
  pane.setPictureFolders(pastasDeFiguras());
  pane.setFoot(peDaFolha(typeOf(paper.kind), paper.id));
  pane.resize(840, 1600);
  pane.show();
  pane.navigate(path);
  pane.setZoom(1.0);
  static_cast<void>(pane.missingPictures());  // all have come
  QTest::qWait(100);
  pane.grab().save(folder + u'/' + name + u".png"_s);
  pane.printToFile(folder + u'/' + name + u".pdf"_s);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "zarim_paper FOLDER, with ZARIM_DRIVE_C as the sample company's\n");
    return 2;
  }
  forms::setBoxAnswerer([](const forms::Box&) { return forms::Answer::Ok; });
  ConectaServidor();
  LePaths();
  for (const Paper& paper : kPapers) show(paper, QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  return 0;
}
