#include "search/frmBROWSE_PropCmrc.h"

#include <QRegularExpression>
#include <QShortcut>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/files/contents.h"
#include "platform/forms/boxes.h"
#include "platform/forms/controls.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "platform/values/runtime_error.h"
#include "platform/values/spreadsheet.h"
#include "run/context.h"
#include "run/program_title.h"
#include "search/delivery.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "shared/validity.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<forms::GridColumn, 8> kLayout{{
    {u"id", 600, forms::kRight},
    {u"Dt.Orçamento", 1500, forms::kRight},
    {u"Descrição", 3000},
    {u"Cliente", 2000},
    {u"Dt.Fech.", 1500, forms::kRight},
    {u"Pessoas", 800, forms::kRight},
    {u"Dt.Evento", 1000, forms::kRight},
    {u"Dt.Validade", 1000, forms::kRight},
}};

/// The fields that stand in the columns, in their order.
constexpr data::ShownField kCampos[] = {{u"idPROP_CMRC"},
                                        {u"DATA_PROP_CMRC"},
                                        {u"prop_cmrc_desc"},
                                        {u"NOME_CLIE"},
                                        {u"DATA_FECH", u"dd/mm/yyyy"},
                                        {u"NUME_PESS"},
                                        {u"DATA_EVEN", u"dd/mm/yyyy"},
                                        {u"DATA_VALI", u"dd/mm/yyyy"}};

constexpr int kEventoProximo = 30;  // days
constexpr forms::ColorNumber kVencido = 0xC0C0FF;
constexpr forms::ColorNumber kVence = 0xA8E4FF;

using Tela = frmBROWSE_PropCmrc;
constexpr pesquisa::Entrega kEntregas[] = {
    {u"frmPropCmrcTL", u"txtRowId", Tela::Id},
    {u"frmPropCmrcTL", u"txtCodigo", Tela::Id},
    {u"frmCPagar", u"txtRowId", Tela::Id},
    {u"frmCPagar", u"txtSerieDupl", Tela::DtOrcamento},
    {u"frmCPagar", u"txtNumeDupl", Tela::Descricao},
    {u"frmCPagar", u"txtDesdDupl", Tela::Cliente},
    {u"frmCPagar", u"txtIdFornecedor", Tela::DtFechamento,
     [](const QString& nome) -> QString { return waitFor(IdFornecedor(nome)); }},
    {u"frmCompras", u"txtIDCOTA_COMP", Tela::Id},
    {u"frmPedido", u"lblPropCmrc", Tela::Id},
    {u"frmPropCmrc", u"txtRowId", Tela::Id},
    {u"frmPropCmrc", u"txtCodigo", Tela::Id},
    {u"frmProjetaCompra", u"txtCOD", Tela::Id},
};

/// What a user types as a date: "5/9/26", "05-09-2026", "05092026", "5/9" of this year. Empty for anything
/// else.
QString dataDoFiltro(const QString& digitada) {
  static const QRegularExpression formas[] = {
      QRegularExpression(u"^(\\d{1,2})[/-](\\d{1,2})(?:[/-](\\d{2}|\\d{4}))?$"_s),
      QRegularExpression(u"^(\\d{2})(\\d{2})(\\d{2}|\\d{4})$"_s)};
  QString texto = apara(digitada).trimmed();
  for (const QRegularExpression& forma : formas) {
    const auto partes = forma.match(texto);
    if (!partes.hasMatch()) continue;
    const QString ano = partes.captured(3);
    texto = u"%1/%2/%3"_s.arg(partes.captured(1).rightJustified(2, u'0'),
                              partes.captured(2).rightJustified(2, u'0'),
                              ano.isEmpty() ? QString::number(values::today().year()) : anoInteiro(ano));
    break;
  }
  return values::isDate(texto) ? values::formatDate(texto, u"yyyymmdd") : QString();
}

/// What the number filter compares ids with: the number of the text, 0 where there is none. The server
/// refuses any other text, and the quote that is being typed would be lost.
QString numeroDoFiltro(const QString& texto) {
  if (apara(texto).isEmpty()) return texto;
  constexpr double kMaior = std::numeric_limits<qint32>::max();
  return QString::number(values::toInt32(std::clamp(std::ceil(leNumero(texto)), 0.0, kMaior)));
}

}  // namespace

frmBROWSE_PropCmrc::frmBROWSE_PropCmrc() {
  using forms::Event;
  setupUi(this);
  on(cmdPesquisa, Event::Click, &frmBROWSE_PropCmrc::cmdPesquisa_Click);
  for (QCheckBox* caixa :
       {chkVisualiza, chkSomenteFechados, chkSomenteNaoFechados, chkVencidos, chkEventoProximo})
    on(caixa, Event::Click, [this, caixa] { caixaClicada(caixa); });
  on(cmdExportar, Event::Click, &frmBROWSE_PropCmrc::cmdExportar_Click);
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, Flex, &forms::FlexGrid::copyRows);
  on(Flex, Event::DoubleClick, &frmBROWSE_PropCmrc::Flex_DblClick);
  enterMovesOn({txtCOD, cmdPesquisa, txtMaxReg, cmdExportar});
  selectOnFocus({txtCOD, txtMaxReg});
  resultsUnder({txtCOD, cmdPesquisa}, [this] { return Flex; });
  Flex->setLeastText(DtOrcamento, u"00/00/0000 00:00:00"_s);
  for (const Coluna coluna : {DtFechamento, DtEvento, DtValidade})
    Flex->setLeastText(coluna, u"00/00/0000"_s);
  Flex->setSpareColumns({Descricao, Cliente});
  Flex->grid().setLook(DtValidade, [this](int linha) { return aspectoDaValidade(linha); });
  rememberMeasures();
}

void frmBROWSE_PropCmrc::Form_Load() {
  txtMaxReg->setText(u"100"_s);
  PreparaGradePropCmrc();
  CentralizaForm(*this);
  setWindowTitle(kTitulo);
  opDesc->setChecked(true);
  AplicaCoresForm(*this);
}

void frmBROWSE_PropCmrc::PreparaGradePropCmrc() {
  Flex->grid().layOut(kLayout);
  lblContagem->clear();
  cmdExportar->setEnabled(false);
}

void frmBROWSE_PropCmrc::procuraCliente(const QString& nome) {
  opCliente->setChecked(true);
  txtCOD->setText(nome);
  cmdPesquisa_Click();
}

void frmBROWSE_PropCmrc::caixaClicada(QCheckBox* clicada) {
  // What is due is open and active.
  const bool aberto = clicada == chkVencidos || clicada == chkEventoProximo;
  if (aberto && clicada->isChecked()) {
    chkVisualiza->setChecked(true);
    chkSomenteFechados->setChecked(false);
  }
  if (clicada == chkSomenteNaoFechados && clicada->isChecked()) chkSomenteFechados->setChecked(false);
  const bool outros = clicada == chkSomenteFechados && clicada->isChecked();
  if (outros) chkSomenteNaoFechados->setChecked(false);
  if (outros || !chkVisualiza->isChecked())
    for (QCheckBox* caixa : {chkVencidos, chkEventoProximo}) caixa->setChecked(false);
  cmdPesquisa_Click();
}

bool frmBROWSE_PropCmrc::filtraTexto() const {
  return !apara(txtCOD->text()).isEmpty() && !opPROD->isChecked() && !opPROT->isChecked();
}

std::optional<QString> frmBROWSE_PropCmrc::montaConsulta() {
  QString sql =
      u"SELECT PROP_CMRC.idPROP_CMRC, PROP_CMRC.DATA_PROP_CMRC, PROP_CMRC.prop_cmrc_desc, "
      u"PROP_CMRC.NOME_CLIE, "
      u"PROP_CMRC.FONE_CLIE, PROP_CMRC.EMAI_CLIE, PROP_CMRC.NUME_PESS, PROP_CMRC.DATA_EVEN, "
      u"PROP_CMRC.DATA_VALI, "
      u"PROP_CMRC.DATA_FECH FROM PROP_CMRC "_s;
  sql += chkVisualiza->isChecked() ? u"Where (PROP_CMRC.DATA_DESA Is Null) "_s
                                   : u"Where (Not PROP_CMRC.DATA_DESA Is Null) "_s;
  if (chkSomenteFechados->isChecked()) sql += u" and (Not PROP_CMRC.DATA_FECH Is Null) "_s;
  const bool prazo = chkVencidos->isChecked() || chkEventoProximo->isChecked();
  if (chkSomenteNaoFechados->isChecked() || prazo) sql += u" and (PROP_CMRC.DATA_FECH Is Null) "_s;
  const auto dia = [](int dias) {
    return values::formatDate(values::wallClock(values::today().addDays(dias)), u"yyyymmdd");
  };
  if (chkVencidos->isChecked()) sql += u" and (PROP_CMRC.DATA_VALI < '%1') "_s.arg(dia(0));
  if (chkEventoProximo->isChecked())
    sql += u" and (PROP_CMRC.DATA_EVEN >= '%1') and (PROP_CMRC.DATA_EVEN < '%2') "_s.arg(
        dia(0), dia(kEventoProximo + 1));

  struct Filtro {
    const QRadioButton* opcao;
    QString antes, depois;
    bool data = false;
  };
  const Filtro filtros[] = {
      {opDesc, u" And (PROP_CMRC.prop_cmrc_desc like '%"_s, u"%') "_s},
      {opNumePropCmrc, u" And (PROP_CMRC.idprop_cmrc >= '"_s, u"') "_s},
      {opCliente, u" And (PROP_CMRC.NOME_CLIE Like '%"_s, u"%') "_s},
      {opData, u" And (PROP_CMRC.DATA_PROP_CMRC >= '"_s, u"') "_s, true},
      {opDataFech, u" And (PROP_CMRC.DATA_fech >= '"_s, u"') "_s, true},
  };
  const QString texto = opNumePropCmrc->isChecked() ? numeroDoFiltro(txtCOD->text()) : txtCOD->text();
  if (!apara(texto).isEmpty()) {
    for (const auto& filtro : filtros) {
      if (!filtro.opcao->isChecked()) continue;
      const QString valor = filtro.data ? dataDoFiltro(texto) : texto;
      if (valor.isEmpty()) return std::nullopt;
      sql += filtro.antes + valor + filtro.depois;
    }
  }
  return sql + u" ORDER BY PROP_CMRC.idPROP_CMRC"_s;
}

void frmBROWSE_PropCmrc::cmdPesquisa_Click() {
  PreparaGradePropCmrc();
  const auto sql = montaConsulta();
  if (!sql) return avisa(u"Data Inválida!"_s, txtCOD);

  const forms::WaitPointer espera;
  auto& grade = Flex->grid();
  const data::Recordset rs = abreConsulta(*sql);
  grade.addRows(rs.count(), rs.shown(kCampos));
  grade.chooseSingleRow();
  cmdExportar->setEnabled(grade.rows() > 1);
  lblContagem->setText(
      filtraTexto()
          ? pesquisa::contagem(grade.rows() - 1, u"orçamento encontrado"_s, u"orçamentos encontrados"_s)
          : pesquisa::contagem(grade.rows() - 1, u"orçamento, sem filtro de texto"_s,
                               u"orçamentos, sem filtro de texto"_s));
}

forms::GridLook frmBROWSE_PropCmrc::aspectoDaValidade(int linha) const {
  const auto& grade = Flex->grid();
  // Only an open, active quote is due.
  if (!chkVisualiza->isChecked() || !grade.text(linha, DtFechamento).isEmpty()) return {};
  const Prazo::Estado estado = prazoDaValidade(grade.text(linha, DtValidade), values::today()).estado;
  if (estado == Prazo::SemPressa) return {};
  return {forms::toColor(estado == Prazo::Vencido ? kVencido : kVence), {}};
}

void frmBROWSE_PropCmrc::cmdExportar_Click() {
  const QString pasta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString caminho = forms::fileBox(u"Exportar orçamentos"_s, pasta + u"/orcamentos.csv"_s, true);
  if (caminho.isEmpty()) return;
  try {
    files::write(caminho, values::toCsv(Flex->visibleTexts()));
  } catch (const values::RuntimeError&) {
    avisaFalha(
        u"Não foi possível gravar %1. Escolha outra pasta ou feche o arquivo na planilha."_s.arg(caminho));
  }
}

void frmBROWSE_PropCmrc::Flex_DblClick() {
  if (Flex->grid().row() <= 0) return;
  const QString tela = contexto().TelaChamadora;
  pesquisa::entrega(kEntregas, tela, Flex->grid());
  // Enter loads what was chosen.
  focus(qobject_cast<QWidget*>(forms::findControl(tela, u"cmdPesquisar_PropCmrc"_s)));
  unload();
}
