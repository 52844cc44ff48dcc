#include "help/manual.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHash>

#include "shared/messages.h"

using namespace Qt::StringLiterals;

QString paginaDoManual(const QString& formulario) {
  static const QHash<QString, QString> kPaginas{{u"frmPropCmrcTL"_s, u"orcamento_novo.html"_s},
                                                {u"frmMontarProduto"_s, u"montagem.html"_s},
                                                {u"frmConfirmaItem"_s, u"montagem.html"_s},
                                                {u"frmComposicaoProduto"_s, u"montagem.html"_s},
                                                {u"frmConfirmaPropCmrcTL"_s, u"fechamento.html"_s},
                                                {u"frmBROWSE_CONDPG"_s, u"fechamento.html"_s},
                                                {u"frmImprimePropCmrcTL"_s, u"documentos.html"_s},
                                                {u"frmPedHTML"_s, u"documentos.html"_s},
                                                {u"frmEmailOS"_s, u"documentos.html"_s},
                                                {u"frmBROWSE_PropCmrc"_s, u"pesquisa.html"_s},
                                                {u"frmBROWSE_PRODUTO"_s, u"pesquisa.html"_s},
                                                {u"frmBROWSE_Prototipo"_s, u"pesquisa.html"_s},
                                                {u"frmImagem"_s, u"pesquisa.html"_s}};
  return kPaginas.value(formulario, u"index.html"_s);
}

QUrl enderecoDoManual(const QString& pagina) {
  const QString aqui = QCoreApplication::applicationDirPath();
  for (const QString& pasta : {aqui + u"/../share/doc/zarim/manual/"_s, aqui + u"/../manual/"_s}) {
    const QFileInfo arquivo(pasta + pagina);
    if (arquivo.isFile()) return QUrl::fromLocalFile(arquivo.canonicalFilePath());
  }
  return {};
}

void abreManual(const QString& formulario) {
  const QUrl endereco = enderecoDoManual(paginaDoManual(formulario));
  if (endereco.isEmpty()) return avisa(u"O manual não está instalado neste computador."_s);
  if (!QDesktopServices::openUrl(endereco))
    avisa(u"O manual não pôde ser aberto no navegador:\r"_s + endereco.toLocalFile());
}
