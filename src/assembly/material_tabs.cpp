#include "assembly/frmConfirmaItem.h"
#include "assembly/frmMontarProduto.h"
#include "assembly/kit.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

// Finding articles on the tabs and choosing one of them.

using namespace Qt::StringLiterals;

void frmMontarProduto::ligaPesquisa() {
  using forms::Event;
  on(cmdPesquisar, Event::Click, &frmMontarProduto::cmdPesquisar_Click);
  on(cmdLimpar, Event::Click, &frmMontarProduto::cmdLimpar_Click);
  resultsUnder({txtCOD, cmdPesquisar}, [this] { return gradeAtual(); });
  on(txtCOD, Event::LostFocus, [this] { txtCOD->setText(maiusculas(txtCOD->text())); });
  onTablePasted({txtCOD, Flex}, [this](const QStringList& coladas) { colaLinhas(coladas); });
  for (int aba = 0; aba < SSTab1->count(); ++aba)
    on(gradeDaAba(aba), Event::DoubleClick, [this, aba] { escolheMaterial(aba); });
}

void frmMontarProduto::cmdPesquisar_Click() {
  PreparaGradePesquisa(gradeAtual());
  PesquisaMaterial(SSTab1->currentIndex(), txtCOD->text());
}

Asked<forms::GridRow> frmMontarProduto::linhaDoArtigo(data::Recordset rs) {
  const QString id = rs.text(u"idprod");
  const QString codigo = rs.text(u"codi_prod");
  auto pedeIdUnidade = UnidadeProduto(id);
  auto pedeValor = ValorVendaProduto(codigo);
  const QString idUnidade = co_await pedeIdUnidade;
  const QString unidade = co_await DescricaoUnidade(idUnidade);
  const double valor = co_await pedeValor;
  forms::GridRow linha;
  linha.set(Id, id);
  linha.set(Codigo, codigo);
  linha.set(Descricao, rs.text(u"desc_prod"));
  linha.set(Unidade, unidade);
  linha.set(QtUnidade, rs.text(u"qtde_unid"));
  linha.set(Valor, emMoeda(valor));
  co_return linha;
}

void frmMontarProduto::PesquisaMaterial(int aba, const QString& texto) {
  QString sql = u"SELECT * FROM prod "_s;
  sql += u"WHERE data_desa is null "_s;
  if (aba == 0)
    sql += u"and PROD_MATE_PRIM = 'P' "_s;
  else
    sql +=
        u"and PROD_MATE_PRIM = 'M' and tipo_mate_prima = '"_s + classeDaAba(aba).texto.toString() + u"' "_s;
  sql += u"and PROD.data_desa is null "_s;
  sql += (opCodigo->isChecked() ? u"and PROD.codi_prod like '%"_s : u"and PROD.desc_prod like '%"_s) + texto +
         u"%' "_s;
  sql += u"ORDER BY codi_prod"_s;

  const forms::WaitPointer espera;
  auto& grade = gradeDaAba(aba)->grid();
  grade.addRows(waitFor(data::forEachRow(abreConsulta(sql), linhaDoArtigo)));
  grade.chooseSingleRow();
}

void frmMontarProduto::cmdLimpar_Click() {
  PreparaGradePesquisa(gradeAtual());
  txtCOD->clear();
  focus(txtCOD);
}

void frmMontarProduto::escolheMaterial(int aba) {
  const auto& grade = gradeDaAba(aba)->grid();
  auto& item = forms::form<frmConfirmaItem>();
  const std::pair<ColunaPesquisa, QLabel*> destinos[] = {
      {Id, item.lblId},
      {Codigo, item.lblCod},
      {Descricao, item.lblDesc},
      {Unidade, item.lblUnidadeMedida},
      {QtUnidade, item.lblQtUnidadeMedida},
      {Valor, item.lblValor},
  };
  // The title row is handed over like any other.
  for (const auto& [coluna, rotulo] : destinos) rotulo->setText(grade.text(grade.row(), coluna));
  item.lblTipo->setText(classeDaAba(aba).texto.toString());
  item.lblOrdem->setText(classeDaAba(aba).ordem.toString());
  item.showModal();
}

void frmMontarProduto::cmdPesquisa_Click() {
  PreparaGradeMontagem();
  carregaKit(Flex->grid(), contexto().CodProdutoComposicao);
}
