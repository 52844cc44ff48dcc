#include "assembly/frmMontarProduto.h"

#include <QShortcut>
#include <algorithm>

#include "run/program_title.h"
#include "shared/column_lengths.h"
#include "shared/text.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

namespace {

using forms::GridColumn;
using forms::kRight;

/// The first eleven columns of the quote's materials, with the titles and widths that differ here.
constexpr auto materiais(QStringView observacao, int larguraOrdem) {
  std::array<GridColumn, grades::material::kColunasDaMontagem> colunas{};
  std::copy_n(grades::material::kLayoutDoOrcamento.begin(), colunas.size(), colunas.begin());
  colunas[grades::material::Observacao].title = observacao;
  colunas[grades::material::Ordem].width = larguraOrdem;
  return colunas;
}
constexpr auto kMontagem = materiais(u"Observações", 500);
constexpr auto kSombra = materiais(u"Observacao", 0);

constexpr std::array<GridColumn, 6> kPesquisa{{
    {u"ID", 0},
    {u"Código", 1500},
    {u"Descrição", 6000},
    {u"Unid.Medida", 1200},
    {u"Qt.Unid.Medida", 0, kRight},
    {u"Valor", 1200, kRight},
}};

}  // namespace

frmMontarProduto::frmMontarProduto() {
  setupUi(this);
  QFont letra = lblTotalUnitarioProduto->font();
  letra.setPointSizeF(letra.pointSizeF() * 1.4);  // with the text size of the screen
  lblTotalUnitarioProduto->setFont(letra);
  Flex->setSpareColumns({grades::material::Descricao, grades::material::Tipo, grades::material::Observacao});
  Flex->grid().setLook(grades::material::Codigo, [this](int linha) -> forms::GridLook {
    if (Flex->grid().text(linha, grades::material::Tipo) != kTipoProduto)
      return {{}, Qt::AlignRight | Qt::AlignTop};
    return {forms::toColor(kLaranja), Qt::AlignLeft | Qt::AlignTop};
  });
  ligaPesquisa();
  on(Flex, forms::Event::DoubleClick, &frmMontarProduto::Flex_DblClick);
  on(cmdPesquisa, forms::Event::Click, &frmMontarProduto::cmdPesquisa_Click);
  on(cmdConfirmar, forms::Event::Click, &frmMontarProduto::cmdConfirmar_Click);
  on(cmdCancelar, forms::Event::Click, &frmMontarProduto::cmdCancelar_Click);
  limitaPelaColuna(txtObservacoes, u"obse_prop_cmrc_deta");
  enterMovesOn({txtCOD, txtQuantidade, txtObservacoes, cmdPesquisa, cmdConfirmar});
  selectOnFocus({txtQuantidade});
  // It empties the assembly: off the way from the articles to the lines.
  setTabOrder(cmdCancelar, cmdPesquisa);
  escClicks(cmdCancelar);
  for (int aba = 0; aba < SSTab1->count(); ++aba) {
    const auto* tecla = new QShortcut(QKeySequence(Qt::ALT | Qt::Key(Qt::Key_1 + aba)), this);
    connect(tecla, &QShortcut::activated, this, [this, aba] {
      SSTab1->setCurrentIndex(aba);
      focus(txtCOD);
      SelecionaTextoAtivo();
    });
  }
}

void frmMontarProduto::Form_Load() {
  removeCloseEntry();
  CentralizaForm(*this);
  setWindowTitle(kTitulo + u" - "_s + u"Montar Produto"_s);
  PreparaGradeMontagem();
  preparaGradesPesquisa();
  PreparaGradeSombra();
  if (txtQuantidade->text().isEmpty()) txtQuantidade->setText(u"1"_s);
  opDesc->setChecked(true);
  aplicaTemaPadrao(*this);
  forms::setBackColor(txtCOD, kCorEntrada);
  SSTab1->setCurrentIndex(0);
}

forms::FlexGrid* frmMontarProduto::gradeDaAba(int aba) const {
  return SSTab1->widget(aba)->findChild<forms::FlexGrid*>();
}

void frmMontarProduto::PreparaGradeMontagem() { Flex->grid().layOut(kMontagem); }

void frmMontarProduto::PreparaGradeSombra() { FlexSombra.layOut(kSombra); }

void frmMontarProduto::PreparaGradePesquisa(forms::FlexGrid* grade) { grade->grid().layOut(kPesquisa); }

void frmMontarProduto::preparaGradesPesquisa() {
  for (int aba = 0; aba < SSTab1->count(); ++aba) PreparaGradePesquisa(gradeDaAba(aba));
}
