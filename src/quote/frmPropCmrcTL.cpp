#include "quote/frmPropCmrcTL.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <algorithm>

#include "draft/keeper.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"
#include "quote/header_fields.h"
#include "run/context.h"
#include "shared/column_lengths.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using forms::Event;

namespace {

/// Heights of the remark box, in twips.
constexpr double kObservaRecolhida = 315;
constexpr double kObservaExpandida = 1315;

/// Headings against plain text.
constexpr double kDestaque = 1.55;
/// Letters of an entry of the approval's list, its separators and the arrow.
constexpr int kLetrasItem = 20 + 38 + 4 + 3 + 5;
/// Item lines that are visible at least; fewer on a low display, so that the totals stay visible.
constexpr int kLinhasItens = 6;
constexpr int kLinhasItensTelaBaixa = 3;
constexpr int kTelaBaixa = 600;
/// Below this width of the display the header's fields give way.
constexpr int kTelaEstreita = 960;

/// Where the frames open over the form, in twips.
constexpr int kEsquerdaPainel = 2160;
constexpr int kEsquerdaHomenageados = 5280;
constexpr int kTopoHomenageados = 1680;

}  // namespace

frmPropCmrcTL::frmPropCmrcTL() {
  setupUi(this);
  addOverFrame(frameHomenageados, kEsquerdaHomenageados, kTopoHomenageados, cmdFecharListaHomenageados);
  addOverFrame(frameMassa, kEsquerdaPainel, 0, cmdFecharFrameMassa);
  addOverFrame(frameCondPgto, kEsquerdaPainel, 0, cmdFecharFrameCondPgto);
  addOverFrame(frameAprova, kEsquerdaPainel, 0, cmdFecharFrameAprova);
  ItemNaMontagem.layOut(grades::item::kLayout);
  ligaTeclado();
  ligaAtalhos();
  ligaCampos();
  ligaComandos();
  ligaItens();
  Flex->setLeastText(grades::item::Descricao, u"Descrição de trinta e cinco letras.."_s);
  Flex->setLeastText(grades::item::Quantidade, u"Quantidade"_s);
  Flex->setLeastText(grades::item::Total, u"Total Produto"_s);
  Flex->setLeastText(grades::item::DtAprov, u"00/00/0000 00:00"_s);
  Flex->setSpareColumns({grades::item::Descricao, grades::item::Observacao});
  fitToText();
  rememberMeasures();
}

void frmPropCmrcTL::ligaTeclado() {
  const auto segue = [this](QWidget* campo) {
    enterMovesOn({campo});
    selectOnFocus({campo});
  };
  for (const auto& campo : cabecalho::campos())
    if (campo.digitado())
      for (QWidget* um : cabecalho::controles(campo, *this)) segue(um);
  for (QWidget* campo :
       std::initializer_list<QWidget*>{txtCodigo, txtCodProduto, txtQuantidade, txtObseDetaItem, txtNomeHomg,
                                       cboCole, cboItemPropCmrc, mskDataAprv})
    segue(campo);
  enterMovesOn({txtDesconto});
  for (QLineEdit* numero : {txtNumePess, txtQuantidade, txtDesconto}) onKeyPress(numero, &filtraTeclaDecimal);
}

void frmPropCmrcTL::ligaCampos() {
  on(txtCodigo, Event::LostFocus, &frmPropCmrcTL::txtCodigo_LostFocus);
  connect(txtCodigo, &QLineEdit::textEdited, this, &frmPropCmrcTL::mostraSituacao);
  on(cboCliente, Event::DropDown, &frmPropCmrcTL::cboCliente_DropDown);
  on(cboCliente, Event::GotFocus, [this] { clienteAntes_ = maiusculas(apara(cboCliente->text())); });
  on(cboCliente, Event::LostFocus, &frmPropCmrcTL::cboCliente_LostFocus);
  on(cboClienteContato, Event::DropDown, &frmPropCmrcTL::cboClienteContato_DropDown);
  on(cboClienteContato, Event::LostFocus, &frmPropCmrcTL::cboClienteContato_LostFocus);
  ligaListas();

  ligaDatas();
  for (QLineEdit* caixa : {txtCodProduto, txtObseDetaItem})
    on(caixa, Event::LostFocus, [caixa] { caixa->setText(maiusculas(caixa->text())); });

  on(txtDesconto, Event::GotFocus, &frmPropCmrcTL::txtDesconto_GotFocus);
  on(txtDesconto, Event::LostFocus, &frmPropCmrcTL::txtDesconto_LostFocus);
  on(cmdExpandirObservacao, Event::Click, &frmPropCmrcTL::cmdExpandirObservacao_Click);
  on(cmdEnvEmail, Event::Click, [this] { AbreMailto(apara(txtEmailExtraContato->text())); });
  on(cmdAbrirOutlook, Event::Click, [this] { AbreMailto(apara(txtEmailExtra->text())); });
}

void frmPropCmrcTL::ligaComandos() {
  const std::pair<QWidget*, void (frmPropCmrcTL::*)()> comandos[] = {
      {cmdINCLUIR, &frmPropCmrcTL::cmdINCLUIR_Click},
      {cmdComecarEmBranco, &frmPropCmrcTL::cmdComecarEmBranco_Click},
      {cmdALTERAR, &frmPropCmrcTL::cmdALTERAR_Click},
      {cmdSALVAR, &frmPropCmrcTL::cmdSALVAR_Click},
      {cmdEXCLUIR, &frmPropCmrcTL::cmdEXCLUIR_Click},
      {cmdReativar, &frmPropCmrcTL::cmdReativar_Click},
      {cmdFechar, &frmPropCmrcTL::cmdFechar_Click},
      {cmdReabrir, &frmPropCmrcTL::cmdReabrir_Click},
      {cmdImprimir, &frmPropCmrcTL::cmdImprimir_Click},
      {cmdSAIR, &frmPropCmrcTL::cmdSAIR_Click},
      {cmdPesquisar_PropCmrc, &frmPropCmrcTL::cmdPesquisar_PropCmrc_Click},
      {cmdAnteriores, &frmPropCmrcTL::cmdAnteriores_Click},
      {cmdRecuperar, &frmPropCmrcTL::cmdRecuperar_Click},
      {cmdDescartar, &frmPropCmrcTL::cmdDescartar_Click},
      {cmdCondPgto, &frmPropCmrcTL::cmdCondPgto_Click},
  };
  for (const auto& [botao, comando] : comandos) on(botao, Event::Click, comando);
  on(cmdFecharFrameCondPgto, Event::Click, [this] { closeOverFrame(frameCondPgto); });
  connect(&rascunho::guarda(), &rascunho::Guarda::ofertasMudaram, this, &frmPropCmrcTL::mostraOferta);
}

void frmPropCmrcTL::ligaItens() {
  const std::pair<QWidget*, void (frmPropCmrcTL::*)()> comandos[] = {
      {cmdIncluirItem, &frmPropCmrcTL::cmdIncluirItem_Click},
      {cmdPesquisar_ProdProt, &frmPropCmrcTL::cmdPesquisar_ProdProt_Click},
      {cmdIncluir_ProdProt, &frmPropCmrcTL::cmdIncluir_ProdProt_Click},
      {cmdAbreAprova, &frmPropCmrcTL::cmdAbreAprova_Click},
      {cmdConfirmaAprova, &frmPropCmrcTL::cmdConfirmaAprova_Click},
      {cmdCancelaAprova, &frmPropCmrcTL::cmdCancelaAprova_Click},
      {cmdIncluirMassa, &frmPropCmrcTL::cmdIncluirMassa_Click},
      {cmdConfirmarMassa, &frmPropCmrcTL::cmdConfirmarMassa_Click},
      {cmdConfirmaMassaClie, &frmPropCmrcTL::cmdConfirmaMassaClie_Click},
      {cmdMultiHomenagem, &frmPropCmrcTL::cmdMultiHomenagem_Click},
      {cmdIncluirHomg, &frmPropCmrcTL::cmdIncluirHomg_Click},
  };
  for (const auto& [botao, comando] : comandos) on(botao, Event::Click, comando);
  on(Flex, Event::DoubleClick, [this] { excluiOuAltera(u"A"_s); });
  const std::pair<QKeyCombination, std::function<void()>> teclas[] = {
      {Qt::Key_F2, [this] { excluiOuAltera(u"A"_s); }},
      {Qt::Key_Delete, [this] { excluiOuAltera(u"E"_s); }},
      {Qt::ALT | Qt::Key_Up, [this] { moveLinha(-1); }},
      {Qt::ALT | Qt::Key_Down, [this] { moveLinha(1); }}};
  for (const auto& [tecla, comando] : teclas)
    connect(new QShortcut(tecla, Flex, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            [this, comando = comando] { forms::handle(comando, objectName() + u".Flex_KeyDown"_s); });
  onLinesPasted(txtNomeHomg, [this](const QStringList& nomes) {
    for (const QString& nome : nomes) {
      txtNomeHomg->setText(nome);
      cmdIncluirHomg_Click();
    }
  });
  on(FlexHomg, Event::DoubleClick, &frmPropCmrcTL::FlexHomg_DblClick);
  on(cmdFecharFrameAprova, Event::Click, [this] { closeOverFrame(frameAprova); });
  on(cmdFecharFrameMassa, Event::Click, [this] { closeOverFrame(frameMassa); });
  on(cmdFecharListaHomenageados, Event::Click, [this] { closeOverFrame(frameHomenageados); });
  connect(Flex->horizontalHeader(), &QHeaderView::sectionResized, this, &frmPropCmrcTL::alinhaTotais);
  connect(Flex->horizontalHeader(), &QHeaderView::geometriesChanged, this, &frmPropCmrcTL::alinhaTotais);
}

void frmPropCmrcTL::LimitaCampos() {
  for (const auto& campo : cabecalho::campos()) cabecalho::limita(campo, *this);
  limita(txtCodProduto, 15);
  limita(txtObseDetaItem, 50);
  limitaPelaColuna(txtNomeHomg, u"nome_homg");
  ajustaObserva();  // a remark with a limit has a margin of its own
}

void frmPropCmrcTL::MontaGridItens() { Flex->grid().layOut(grades::item::kLayout); }
void frmPropCmrcTL::MontaGridMontagem() { FlexMonta.layOut(grades::material::kLayoutDoOrcamento); }
void frmPropCmrcTL::MontaGridHomenageados() { FlexHomg->grid().layOut(grades::homenageado::kLayout); }

void frmPropCmrcTL::cmdExpandirObservacao_Click() {
  cmdExpandirObservacao->setText(cmdExpandirObservacao->text() == u"+" ? u"-"_s : u"+"_s);
  ajustaObserva();
}

/// Height of the remark box by the caption of its button; never less than a line of text needs.
void frmPropCmrcTL::ajustaObserva() {
  const bool expandida = cmdExpandirObservacao->text() == u"-";
  const int altura = forms::pixels(expandida ? kObservaExpandida : kObservaRecolhida);
  const int linha = fontMetrics().lineSpacing() +
                    2 * static_cast<int>(txtObserva->document()->documentMargin()) +
                    2 * txtObserva->frameWidth();
  txtObserva->setFixedHeight(std::max({altura, txtDesc->sizeHint().height(), linha}));
  txtObserva->setVerticalScrollBarPolicy(expandida ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

/// What follows the size of the text: headings, least widths of the boxes, least lines of the item grid.
void frmPropCmrcTL::fitToText() {
  QFont destaque = font();
  destaque.setPointSizeF(destaque.pointSizeF() * kDestaque);
  destaque.setBold(true);
  for (QLabel* rotulo : std::initializer_list<QLabel*>{lblTituloJanela, rotuloLiquidoTotal, lblTotalLiquido})
    rotulo->setFont(destaque);

  const int letra = fontMetrics().averageCharWidth();
  const bool estreita = forms::screenSize().width() < kTelaEstreita;
  const int fone = estreita ? 12 : 16;
  const std::pair<QWidget*, int> letras[] = {{txtCodigo, 10},
                                             {txtFoneExtra, fone},
                                             {txtEmailExtra, 20},
                                             {txtFoneExtraContato, fone},
                                             {txtEmailExtraContato, 20},
                                             {txtNumePess, estreita ? 5 : 8},
                                             {txtNomeHomg, 24},
                                             {lblTotaGeral, 12},
                                             {lblDesconto, 10},
                                             {lblDTDesativa, 12},
                                             {lblDataFechamento, 12},
                                             {lblNumePedido, 8}};
  for (const auto& [campo, quantas] : letras) campo->setMinimumWidth(letra * quantas);
  txtNumePess->setMaximumWidth(letra * 10);
  for (forms::Combo* combo :
       {cboVendedor, cboRespAtendimento, cboLocalVenda, cboTipoMktg, cboTipoEven, cboTipoServ})
    combo->setMinimumWidth(estreita ? letra * 11 : 0);

  QFont fixa = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixa.setPointSizeF(font().pointSizeF());
  cboItemPropCmrc->setFont(fixa);
  // Its frame stays within the window however large the text is.
  cboItemPropCmrc->setMinimumWidth(
      std::min(QFontMetrics(fixa).averageCharWidth() * kLetrasItem, forms::screenSize().width() * 7 / 10));

  const int linha = Flex->verticalHeader()->defaultSectionSize();
  const int linhas = forms::screenSize().height() < kTelaBaixa ? kLinhasItensTelaBaixa : kLinhasItens;
  Flex->setMinimumHeight(Flex->horizontalHeader()->sizeHint().height() + linha * linhas +
                         2 * Flex->frameWidth());
  ajustaObserva();
}

/// The sums end under the column that they add.
void frmPropCmrcTL::alinhaTotais() {
  const auto* titulos = Flex->horizontalHeader();
  const int fim = titulos->sectionPosition(grades::item::Total) + titulos->sectionSize(grades::item::Total);
  const int recuo = Flex->mapTo(conteudo, QPoint()).x() - somas->mapTo(conteudo, QPoint()).x();
  // They never widen the screen: what stands beside them keeps its place.
  const int menor = somas->minimumSizeHint().width();
  const int agora = somas->minimumWidth() > 0 ? somas->minimumWidth() : menor;
  layout16->invalidate();
  const QMargins margens = conteudo->layout()->contentsMargins();
  const int livre = area->viewport()->width() - margens.left() - margens.right() -
                    (layout16->minimumSize().width() - agora);
  somas->setFixedWidth(qMax(menor, qMin(fim + recuo, livre)));
}

/// The keys that users of other programs try first. As with an access key, the field is left before the
/// click.
void frmPropCmrcTL::ligaAtalhos() {
  const std::pair<QKeySequence, QAbstractButton*> atalhos[] = {
      {QKeySequence::New, cmdINCLUIR},
      {QKeySequence::Save, cmdSALVAR},
      {QKeySequence::Find, cmdPesquisar_PropCmrc},
      {QKeySequence::Print, cmdImprimir},
      {QKeySequence(Qt::CTRL | Qt::Key_H), cmdAnteriores},
      {QKeySequence(Qt::ALT | Qt::Key_O), cmdExpandirObservacao}};
  for (const auto& [tecla, botao] : atalhos)
    connect(new QShortcut(tecla, this), &QShortcut::activated, this,
            [this, botao = botao] { clickByKey(botao); });
}

/// Esc closes the frame that is open; it never ends the program.
void frmPropCmrcTL::keyPressEvent(QKeyEvent* event) {
  const auto paineis = {frameHomenageados, frameMassa, frameCondPgto, frameAprova};
  const bool aberto = std::ranges::any_of(paineis, [](const QWidget* painel) { return painel->isVisible(); });
  if (event->key() != Qt::Key_Escape || aberto) Form::keyPressEvent(event);
}

/// A double click on the form's ground shows the screen's resolution, for support staff.
void frmPropCmrcTL::mouseDoubleClickEvent(QMouseEvent* event) {
  const QWidget* alvo = childAt(event->position().toPoint());
  if (alvo == nullptr || alvo == conteudo || alvo == area->viewport())
    forms::guarded([] { forms::msgBox({.text = ResolucaoTela()}); }, objectName() + u".Form_DblClick"_s);
}
