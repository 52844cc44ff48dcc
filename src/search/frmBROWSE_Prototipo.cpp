#include "search/frmBROWSE_Prototipo.h"

#include "run/context.h"
#include "run/program_title.h"
#include "search/delivery.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/theme.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

using Tela = frmBROWSE_Prototipo;

constexpr std::array<forms::GridColumn, 4> kLayout{{
    {u"ID", 1000, forms::kRight},
    {u"Descrição", 3500},
    {u"Produto", 1500},
    {u"DT Desativa", 1000, forms::kRight},
}};

constexpr QStringView kSoPrototipos = u"frmPropCmrc";
constexpr pesquisa::Entrega kEntregas[] = {
    {u"frmPrototipo", u"txtRowId", Tela::Id},       {u"frmPrototipo", u"txtCodigo", Tela::Id},
    {kSoPrototipos, u"txtCodProduto", Tela::Id},    {u"frmProduto", u"lblCodProt", Tela::Id},
    {u"frmPontoVenda", u"txtCodProduto", Tela::Id}, {u"frmEtiqProduto", u"txtCodigo", Tela::Id},
};

}  // namespace

frmBROWSE_Prototipo::frmBROWSE_Prototipo()
    : PesquisaComFotos(
          {Id, u"pesquisa_prototipo.html"_s, u"protótipo encontrado"_s, u"protótipos encontrados"_s}) {
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
        nullptr,
        lblContagem},
       {Option1, Option2});
  resultsUnder({txtCOD, cmdPesquisa}, [this] { return Flex; });
  on(cmdPesquisa, forms::Event::Click, &frmBROWSE_Prototipo::cmdPesquisa_Click);
}

void frmBROWSE_Prototipo::Form_Load() {
  aplicaTemaPadrao(*this);
  opQualquerParte->setChecked(true);
  preparaGradePrototipo();
  CentralizaForm(*this);
  setWindowTitle(kTitulo);
  SSTab1->setCurrentIndex(Grade);
  retomaPesquisa();
}

void frmBROWSE_Prototipo::preparaGradePrototipo() { Flex->grid().layOut(kLayout); }

QString frmBROWSE_Prototipo::montaConsulta() const {
  const bool ativos = chkVisualiza->isChecked();
  const QString semProduto =
      chkSomenteSemProd->isChecked() ? u" and (idprod = 0 or idprod is null) "_s : QString();
  if (Option1->isChecked())
    return u"SELECT * FROM PROT "_s +
           (ativos ? u"WHERE data_desa is null "_s : u"WHERE (Not DATA_DESA Is Null) "_s) + semProduto +
           u"ORDER BY idPROT"_s;
  const QString texto = txtCOD->text();
  QString filtro;
  if (!apara(texto).isEmpty())
    filtro = opCampoInteiro->isChecked() ? u" and PROT.desc_prot = '"_s + texto + u"' "_s
                                         : u" and PROT.desc_prot like '%"_s + texto + u"%' "_s;
  return u"SELECT * FROM PROT Where "_s +
         (ativos ? u" PROT.data_desa is null "_s : u" (Not PROT.DATA_DESA Is Null) "_s) + filtro +
         semProduto + u" ORDER BY desc_prot"_s;
}

Asked<forms::GridRow> frmBROWSE_Prototipo::linhaDoPrototipo(data::Recordset rs) {
  auto pedeProduto = rs.isNull(u"idprod") ? data::known(QString()) : CodigoProduto(rs.text(u"idprod"));
  const QString produto = co_await pedeProduto;
  forms::GridRow linha;
  linha.set(Id, rs.text(u"idprot"));
  linha.set(Descricao, rs.text(u"desc_prot"));
  linha.set(Produto, produto);
  linha.set(DtDesativa, rs.formatDate(u"data_desa", u"dd/mm/yyyy"));
  co_return linha;
}

void frmBROWSE_Prototipo::cmdPesquisa_Click() {
  preparaGradePrototipo();
  listaResultado(montaConsulta(), linhaDoPrototipo, txtCOD);
}

void frmBROWSE_Prototipo::entregaEscolha() {
  const QString tela = contexto().TelaChamadora;
  const auto& grade = Flex->grid();
  const QString produto = grade.text(grade.row(), Produto);
  if (tela == kSoPrototipos && !produto.isEmpty())
    return avisa(
        u"Este Protótipo Não Poderá Ser Usado, pois já se tornou um Produto\r"
        u"Escolha a Opção Inserção de Produto e Não de Protótipo\rCódigo do Produto:\r"_s +
        produto);
  pesquisa::entrega(kEntregas, tela, grade);
}
