// Writes every kind of document of the sample company, as HTML, as the pane shows it and as it is printed;
// with docs/make_papers.sh these come beside a browser's pictures.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <cstdio>

#include "documents/document_values.h"
#include "documents/documents.h"
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

using Routine = void (*)(qint32, const QString&);

struct Paper {
  const char16_t* name;
  Routine routine;
  qint32 id;
  const char16_t* model = u"";       ///< MODELO_PROP_CMRC
  const char16_t* look = u"";        ///< MODELO_PEDI_VEDS
  const char16_t* orderModel = u"";  ///< MODELO_PEDIDO_VEDS
  bool outside = false;
  bool photos = true;
};

void searchPage(qint32, const QString& path) {
  auto& browse = forms::form<frmBROWSE_PRODUTO>();
  browse.cmdPesquisa->click();
  files::write(path, browse.MontaDetalheHTML().toLatin1());
}

constexpr Paper kPapers[] = {{u"diario_aberto", MontaOrcaGradeHTML, 12},
                             {u"diario_fechado", MontaOrcaGradeHTML, 1},
                             {u"modelo_vazio", MontaOrcaHTML, 2},
                             {u"modelo_1", MontaOrcaHTML, 3, u"1"},
                             {u"modelo_2", MontaOrcaHTML, 4, u"2"},
                             {u"modelo_3", MontaOrcaHTML, 2, u"3"},
                             {u"externo", MontaOrcaHTML, 2, u"", u"", u"", true},
                             {u"detalhe_vazio", MontaDetalheOrcaHTML, 2},
                             {u"detalhe_1", MontaDetalheOrcaHTML, 3, u"1"},
                             {u"pedido", MontaPedidoHTML, 3187},
                             {u"pedido_importados", MontaPedidoHTML, 3214, u"", u"2", u"2"},
                             {u"cotacao", CotacaoCompraHTML, 2},
                             {u"ordem", OrdemCompraHTML, 2},
                             {u"pesquisa", searchPage, 0}};

void setParameter(const QString& name, const char16_t* value) {
  contexto().Conexao.execute(u"DELETE FROM empr_cnfg WHERE nome_para = '%1'"_s.arg(name));
  contexto().Conexao.execute(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('%1', '%2')"_s.arg(
      name, QString::fromUtf16(value)));
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
  setParameter(u"MODELO_PROP_CMRC"_s, paper.model);
  setParameter(u"MODELO_PEDI_VEDS"_s, paper.look);
  setParameter(u"MODELO_PEDIDO_VEDS"_s, paper.orderModel);
  documento().IdDocumento = paper.id;
  documento().ExibeFotos = paper.photos;
  documento().PublicacaoExterna = paper.outside;
  documento().letraFornecedor = u"A"_s;
  documento().rsImpressao = abreConsulta(u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='%1'"_s.arg(paper.id));
  const QString name = QString::fromUtf16(paper.name);
  const QString path = contexto().PathDocs + name + u".html"_s;
  files::removeIfThere(path);
  paper.routine(paper.id, path);
  QFile page(folder + u'/' + name + u".html"_s);
  if (page.open(QIODevice::WriteOnly)) page.write(forBrowser(files::readAll(path)));

  web::WebPane pane;
  pane.setPictureFolders(pastasDeFiguras());
  pane.setFoot(u"Orçamento %1"_s.arg(paper.id, 6, 10, u'0'));
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
