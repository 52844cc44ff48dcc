#include "search/frmBROWSE_PRODUTO.h"

#include "run/context.h"
#include "run/program_title.h"
#include "search/delivery.h"
#include "shared/lists.h"
#include "shared/lookups.h"
#include "shared/theme.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

using pesquisa::Entrega;
using Tela = frmBROWSE_PRODUTO;

constexpr std::array<forms::GridColumn, 5> kLayout{{
    {u"ID", 800, forms::kRight},
    {u"Código", 1500},
    {u"Descrição", 4000},
    {u"Estoque", 1000, forms::kRight},
    {u"DT Desativa", 1000, forms::kRight},
}};

constexpr Entrega kEntregas[] = {
    {u"frmPropCmrc", u"txtidProdProt", Tela::Id},
    {u"frmPropCmrc", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmPontoVenda", u"txtidProdProt", Tela::Id},
    {u"frmPontoVenda", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmPedido", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmMoveEstoque", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmTransfEstoque", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmCompras", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmCotaCompra", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmPesqProdPed", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmCheckNulo", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmCaixa", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmEtiqProduto", u"txtCodigo", Tela::Codigo, apara},
    {u"frmNFEntrada", u"txtCodigo", Tela::Codigo, apara},
};
/// The catalogue's own screens look for the product itself, or for a component of its kit.
constexpr Entrega kEntregasCadastro[] = {
    {u"frmProduto", u"txtRowId", Tela::Id},
    {u"frmProduto", u"txtCodigo", Tela::Codigo, apara},
    {u"frmMateriaPrima", u"txtRowId", Tela::Id},
    {u"frmMateriaPrima", u"txtCodigo", Tela::Codigo, apara},
};
constexpr Entrega kEntregasKit[] = {
    {u"frmProduto", u"txtCodProduto", Tela::Codigo, apara},
    {u"frmMateriaPrima", u"txtCodProduto", Tela::Codigo, apara},
};

/// Houses without raw materials of their own don't search for them.
bool usaMateriaPrima() {
  const QString parametro = waitFor(ParametroEmpresa(u"ORCA_MATE_PRIM"_s));
  return parametro.isEmpty() || parametro == u"S"_s;
}

}  // namespace

frmBROWSE_PRODUTO::frmBROWSE_PRODUTO()
    : PesquisaComFotos(
          {Codigo, u"pesquisa_produtos.html"_s, u"produto encontrado"_s, u"produtos encontrados"_s}) {
  using forms::Event;
  setupUi(this);
  Flex->setLeastText(DtDesativa, u"00/00/0000"_s);
  liga({Flex,
        SSTab1,
        WebBrowser1,
        folhas,
        Image1,
        {cmdImagem1_1, cmdImagem1_2, cmdImagem1_3, cmdImagem1_4},
        txtCOD,
        chkVisualiza,
        cboCole,
        lblContagem},
       {Option1, Option2, Option3}, {opBrowseProduto, opBrowseMateriaPrima, opBrowseTodos});
  on(cmdPesquisa, Event::Click, &frmBROWSE_PRODUTO::cmdPesquisa_Click);
  on(cmdLimpar, Event::Click, &frmBROWSE_PRODUTO::cmdLimpar_Click);
  on(cboCole, Event::DropDown, [this] { CarregaColecoes(*this); });
  resultsUnder({txtCOD, cmdPesquisa}, [this] { return Flex; });
  enterMovesOn({txtMaxReg, cboCole});
  selectOnFocus({txtMaxReg, cboCole});
}

void frmBROWSE_PRODUTO::Form_Load() {
  aplicaTemaPadrao(*this);
  opBrowseMateriaPrima->setVisible(usaMateriaPrima());
  opQQPosicao->setChecked(true);
  opBrowseTodos->setChecked(true);
  txtMaxReg->setText(u"100"_s);
  PreparaGradeProduto();
  CentralizaForm(*this);
  setWindowTitle(kTitulo);
  SSTab1->setCurrentIndex(Grade);
  retomaPesquisa();

  const std::pair<QStringView, QRadioButton*> classes[] = {{u"frmPedido", opBrowseProduto},
                                                           {u"frmProduto", opBrowseProduto},
                                                           {u"frmPrototipo", opBrowseMateriaPrima}};
  for (const auto& [tela, opcao] : classes)
    if (contexto().TelaChamadora == tela) opcao->setChecked(true);
}

void frmBROWSE_PRODUTO::PreparaGradeProduto() { Flex->grid().layOut(kLayout); }

QString frmBROWSE_PRODUTO::filtroTexto() const {
  const QString texto = txtCOD->text();
  if (apara(texto).isEmpty()) return {};
  const QString campo = Option2->isChecked() ? u" and PROD.codi_prod "_s : u" and PROD.desc_prod "_s;
  if (opExata->isChecked()) return campo + u"= '"_s + texto + u"' "_s;
  return campo + (opInicialCom->isChecked() ? u"like '"_s : u"like '%"_s) + texto + u"%' "_s;
}

QString frmBROWSE_PRODUTO::filtroClasse() const {
  QString filtro;
  if (opBrowseProduto->isChecked()) filtro = u"and PROD_MATE_PRIM = 'P' "_s;
  if (opBrowseMateriaPrima->isChecked()) filtro = u"and PROD_MATE_PRIM = 'M' "_s;
  if (cboCole->text().isEmpty()) return filtro;
  // A collection that there isn't has no product, not those without a collection.
  const QString colecao = waitFor(IdColecao(cboCole->text()));
  return filtro + (colecao.isEmpty() ? u"and 1 = 0 "_s : u"and idcole = "_s + colecao + u" "_s);
}

QString frmBROWSE_PRODUTO::montaConsulta() const {
  const bool ativos = chkVisualiza->isChecked();
  if (Option1->isChecked())
    return u"SELECT * FROM prod "_s +
           (ativos ? u"WHERE data_desa is null "_s : u"WHERE (Not DATA_DESA Is Null) "_s) + filtroClasse() +
           u"ORDER BY idprod"_s;
  return u"SELECT * FROM PROD Where "_s +
         (ativos ? u" PROD.data_desa is null "_s : u" (Not PROD.DATA_DESA Is Null) "_s) + filtroTexto() +
         filtroClasse() + (Option2->isChecked() ? u" ORDER BY codi_prod"_s : u" ORDER BY desc_prod"_s);
}

void frmBROWSE_PRODUTO::cmdPesquisa_Click() {
  PreparaGradeProduto();
  listaResultado(montaConsulta(), [](const data::Recordset& rs) {
    return data::known(forms::GridRow{{Id, rs.text(u"idprod")},
                                      {Codigo, rs.text(u"codi_prod")},
                                      {Descricao, rs.text(u"desc_prod")},
                                      {Estoque, rs.text(u"qtde_disp")},
                                      {DtDesativa, rs.formatDate(u"data_desa", u"dd/mm/yyyy")}});
  });
}

void frmBROWSE_PRODUTO::entregaEscolha() {
  // The quote screen is in none of the tables: its user types the code that stands here.
  const QString tela = contexto().TelaChamadora;
  const bool kit = pesquisa::lembrancas().TipoBrowseProduto == u"KIT"_s;
  pesquisa::entrega(kEntregas, tela, Flex->grid());
  pesquisa::entrega(kit ? std::span<const Entrega>(kEntregasKit) : kEntregasCadastro, tela, Flex->grid());
}

void frmBROWSE_PRODUTO::cmdLimpar_Click() {
  PreparaGradeProduto();
  setWindowTitle(kTitulo);
  lblContagem->clear();
  SSTab1->setCurrentIndex(Grade);
  txtCOD->clear();
  focus(txtCOD);
}
