#include "assembly/frmComposicaoProduto.h"

#include <array>

#include "assembly/kit.h"
#include "run/context.h"
#include "run/program_title.h"
#include "shared/lookups.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<forms::GridColumn, 5> kLayout{{
    {u"ID", 0},
    {u"Código", 1500},
    {u"Descrição", 6000},
    {u"Unid.Medida", 1200},
    {u"Quantidade", 1200, forms::kRight},
}};

}  // namespace

frmComposicaoProduto::frmComposicaoProduto() {
  setupUi(this);
  on(cmdPesquisa, forms::Event::Click, &frmComposicaoProduto::cmdPesquisa_Click);
}

void frmComposicaoProduto::Form_Load() {
  PreparaGradeComposicao();
  CentralizaForm(*this);
  setWindowTitle(kTitulo + u" - "_s + u"Visualiza Composição do Produto"_s);
  AplicaCoresForm(*this);
  const QString codigo = contexto().CodProdutoComposicao;
  lblCodigoProdDetalhe->setText(codigo);
  lblDescProdDetalhe->setText(waitFor(DescricaoProdutoPorCodigo(codigo)));
  cmdPesquisa_Click();
}

void frmComposicaoProduto::PreparaGradeComposicao() { Flex->grid().layOut(kLayout); }

void frmComposicaoProduto::cmdPesquisa_Click() {
  const forms::WaitPointer espera;
  PreparaGradeComposicao();
  carregaKit(Flex->grid(), contexto().CodProdutoComposicao);
}
