#include "search/frmBROWSE_CONDPG.h"

#include <array>

#include "run/context.h"
#include "run/program_title.h"
#include "search/delivery.h"
#include "shared/lookups.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;

namespace {

enum Coluna { Id, Descricao, QtParc, DtDesativa };
constexpr std::array<forms::GridColumn, 4> kGrade{{
    {u"ID", 900, forms::kRight},
    {u"Descrição", 2500},
    {u"Qt.Parc.", 900, forms::kRight},
    {u"DT Desativa", 1000, forms::kRight},
}};

/// How one option searches: its order without a text, its filter around the text, its order with a text.
struct Busca {
  QString ordem;
  QString antes;
  QString depois;
  QString ordemComTexto;
};
const Busca kPorId{{}, u" WHERE idcond_pgto ="_s, {}, {}};
// With a text these two sort on columns that payment conditions don't have: only an id can be searched for.
const Busca kPorDescricao{u" ORDER BY desc_cond_pgto"_s, u" WHERE desc_cond_pgto LIKE '%"_s, u"%'"_s,
                          u" ORDER BY razaosocial"_s};
const Busca kPorParcelas{u" ORDER BY qtde_parc"_s, u" WHERE qtde_parc = "_s, {}, u" ORDER BY nomefantasia"_s};

constexpr pesquisa::Entrega kEntregas[] = {
    {u"frmPropCmrcTL", u"txtIdCondPg", Id, nullptr, u"frmConfirmaPropCmrcTL"},
    {u"frmCondPagto", u"txtRowId", Id},
    {u"frmPedido", u"txtIdCondPg", Id},
    {u"frmCompras", u"txtIdCondPg", Id},
};

}  // namespace

frmBROWSE_CONDPG::frmBROWSE_CONDPG() {
  setupUi(this);
  Flex->setLeastText(DtDesativa, u"00/00/0000"_s);
  txtMaxReg->setFixedWidth(8 * fontMetrics().averageCharWidth());

  using forms::Event;
  on(cmdPesquisa, Event::Click, &frmBROWSE_CONDPG::cmdPesquisa_Click);
  on(chkVisualiza, Event::Click, &frmBROWSE_CONDPG::cmdPesquisa_Click);
  on(Flex, Event::DoubleClick, &frmBROWSE_CONDPG::Flex_DblClick);
  enterMovesOn({txtCOD, txtMaxReg});
  selectOnFocus({txtCOD, txtMaxReg});
  resultsUnder({txtCOD, cmdPesquisa}, [this] { return Flex; });
  rememberMeasures();
}

void frmBROWSE_CONDPG::Form_Load() {
  Option1->setChecked(true);
  chkVisualiza->setChecked(true);
  txtMaxReg->setText(u"100"_s);
  PreparaGradeCondPg();
  AplicaCoresForm(*this);
  CentralizaForm(*this);
  setWindowTitle(kTitulo);
  cmdPesquisa_Click();
}

void frmBROWSE_CONDPG::PreparaGradeCondPg() { Flex->grid().layOut(kGrade); }

QString frmBROWSE_CONDPG::montaConsulta() const {
  const Busca& busca = Option2->isChecked() ? kPorDescricao : Option3->isChecked() ? kPorParcelas : kPorId;
  const bool ativas = chkVisualiza->isChecked();
  QString sql = u"SELECT * FROM cond_pgto"_s;
  if (txtCOD->text().isEmpty()) {
    if (ativas) sql += u" where data_desa is null"_s;
    return sql + busca.ordem;
  }
  sql += busca.antes + txtCOD->text() + busca.depois;
  if (ativas) sql += u" and data_desa is null"_s;
  return sql + busca.ordemComTexto;
}

void frmBROWSE_CONDPG::cmdPesquisa_Click() {
  const forms::WaitPointer espera;
  PreparaGradeCondPg();
  for (data::Recordset rs = abreConsulta(montaConsulta()); !rs.eof(); rs.moveNext())
    Flex->grid().addRow({{Id, rs.text(u"idcond_pgto")},
                         {Descricao, rs.text(u"desc_cond_pgto")},
                         {QtParc, rs.text(u"qtde_parc")},
                         {DtDesativa, rs.formatDate(u"data_desa", u"dd/mm/yyyy")}});
  Flex->grid().chooseSingleRow();
  lblRegistros->setText(
      pesquisa::contagem(Flex->grid().rows() - 1, u"condição encontrada"_s, u"condições encontradas"_s));
}

void frmBROWSE_CONDPG::Flex_DblClick() {
  const forms::GridModel& grade = Flex->grid();
  if (grade.row() <= 0) return;
  pesquisa::entrega(kEntregas, contexto().TelaChamadora, grade);
  unload();
}
