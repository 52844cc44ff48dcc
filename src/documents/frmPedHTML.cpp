#include "documents/frmPedHTML.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QUrl>
#include <algorithm>

#include "documents/document_types.h"
#include "documents/document_values.h"
#include "platform/files/paths.h"
#include "platform/forms/controls.h"
#include "run/context.h"
#include "shared/pictures.h"
#include "shared/theme.h"

using namespace Qt::StringLiterals;
using forms::Event;
using forms::pixels;

namespace {

// Measures of the small layout, in twips.
constexpr double kAlturaForm = 8400;
constexpr double kLarguraForm = 11920;
constexpr double kAlturaTab = 6855;
constexpr double kLarguraTab = 13683.26;
constexpr double kAlturaFrame = 6255;
constexpr double kLarguraFrame = 11295;
constexpr double kAlturaPainel = 5895;
constexpr double kLarguraPainel = 11055;
constexpr double kEsquerdaFrame2 = 141.612;
constexpr int kTopoFrame2Pequeno = 7080;
constexpr int kTopoFrame2Grande = 9000;
constexpr double kEscalaGrande = 1.23;

constexpr int kFolga = 8;           // pixels
constexpr int kBarraDeTitulo = 32;  // pixels, of a window manager's usual frame

/// Whether the commands have room beside the options; with large text they get a row of their own.
bool cabemAoLado(const QWidget& opcoes, const QWidget& comandos, int largura) {
  return opcoes.sizeHint().width() + comandos.sizeHint().width() + 4 * kFolga <= largura;
}

/// Height of the controls under the tabs, from the options on.
int alturaControles(const QWidget& opcoes, const QWidget& comandos, const QWidget& arquivo, int largura) {
  const int linha = cabemAoLado(opcoes, comandos, largura) ? 0 : comandos.sizeHint().height() + kFolga / 2;
  return opcoes.sizeHint().height() + linha + arquivo.sizeHint().height() + 2 * kFolga;
}

}  // namespace

frmPedHTML::frmPedHTML() {
  setupUi(this);
  vias_ = {Via{Frame1, WebBrowser1, Option1}, Via{Frame3, WebBrowser2, Option2}};
  // The two named sizes share the large layout; every other screen takes the small one.
  const QString resolucao = ResolucaoTela();
  const bool grande = resolucao == u"1280 x 800" || resolucao == u"1024 x 768";
  escala_ = grande ? kEscalaGrande : 1.0;
  topoFrame2_ = grande ? kTopoFrame2Grande : kTopoFrame2Pequeno;
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  conteudo->installEventFilter(this);
  ligaFerramentas();
  on(cmdImprimir, Event::Click, &frmPedHTML::cmdImprimir_Click);
  on(cmdEnviarEmail, Event::Click, &frmPedHTML::cmdEnviarEmail_Click);
  on(cmdPDF, Event::Click, &frmPedHTML::cmdPDF_Click);
  on(cmdWord, Event::Click, &frmPedHTML::cmdWord_Click);
}

void frmPedHTML::Form_Load() {
  AplicaCoresForm(*this);
  dimensiona();
  CentralizaForm(*this);
  const forms::WaitPointer espera;
  montaVias();
  const ValoresDoDocumento& valores = documento();
  for (const Via& via : vias_) {
    via.painel->setPictureFolders(pastasDeFiguras());
    via.painel->setFoot(peDaFolha(valores.TipoDocumento, valores.IdDocumento));
    // A letter without a row leaves no file.
    via.painel->navigate(via.arquivo, u"Documento não localizado!"_s);
  }
  Option1->setChecked(true);
  SSTab1->setCurrentIndex(0);
  mostraArquivo();
}

void frmPedHTML::dimensiona() {
  // Large text can need more room than the measures give.
  const int largura = std::max(pixels(kLarguraForm * escala_),
                               2 * pixels(kEsquerdaFrame2) + barraArquivo->minimumSizeHint().width());
  const int controles = alturaControles(*Frame2, *barraComandos, *barraArquivo, largura);
  const QSize dentro(largura, std::max(pixels(kAlturaForm * escala_), pixels(topoFrame2_) + controles));
  conteudo->setMinimumSize(dentro);
  const QSize tela = screen()->availableSize() - QSize(0, kBarraDeTitulo);
  const int barra = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize comBarras =
      dentro + QSize(dentro.height() > tela.height() ? barra : 0, dentro.width() > tela.width() ? barra : 0);
  resize(comBarras.boundedTo(tela));
  dispoe();
}

void frmPedHTML::dispoe() {
  const int sobraX = std::max(0, conteudo->width() - conteudo->minimumWidth());
  const int sobraY = std::max(0, conteudo->height() - conteudo->minimumHeight());
  const auto tamanho = [&](double largura, double altura) {
    return QSize(pixels(largura * escala_) + sobraX, pixels(altura * escala_) + sobraY);
  };
  SSTab1->setGeometry(QRect(QPoint(0, 0), tamanho(kLarguraTab, kAlturaTab)));
  for (const auto& [frame, painel, opcao, arquivo] : vias_) {
    // With large text the tabs' captions take more of the height.
    const int pagina = SSTab1->height() - SSTab1->tabBar()->sizeHint().height() - kFolga;
    const QSize externo = tamanho(kLarguraFrame, kAlturaFrame).boundedTo(QSize(SSTab1->width(), pagina));
    frame->setGeometry(QRect(QPoint(kFolga, kFolga / 2), externo));
    const QSize interno = tamanho(kLarguraPainel, kAlturaPainel).boundedTo(externo);
    painel->setGeometry(QRect(
        QPoint((frame->width() - interno.width()) / 2, (frame->height() - interno.height()) / 2), interno));
  }
  const int largura = std::max(conteudo->width(), conteudo->minimumWidth());
  const int esquerda = pixels(kEsquerdaFrame2);
  Frame2->move(esquerda, pixels(topoFrame2_) + sobraY);
  Frame2->resize(Frame2->sizeHint());
  const int direita = Frame2->geometry().right() + 1 + kFolga;
  int topo = Frame2->geometry().bottom() + 1 + kFolga / 2;
  if (cabemAoLado(*Frame2, *barraComandos, conteudo->minimumWidth())) {
    barraComandos->setGeometry(direita, Frame2->y(), largura - direita - esquerda, Frame2->height());
  } else {
    barraComandos->setGeometry(esquerda, topo, largura - 2 * esquerda, barraComandos->sizeHint().height());
    topo = barraComandos->geometry().bottom() + 1 + kFolga / 2;
  }
  barraArquivo->setGeometry(esquerda, topo, largura - 2 * esquerda, barraArquivo->sizeHint().height());
}

bool frmPedHTML::eventFilter(QObject* watched, QEvent* event) {
  if (watched == conteudo && event->type() == QEvent::Resize) dispoe();
  return Form::eventFilter(watched, event);
}

web::WebPane& frmPedHTML::painelAtual() const {
  return *vias_.at(static_cast<std::size_t>(SSTab1->currentIndex())).painel;
}

void frmPedHTML::mostraArquivo() {
  mostraCaminho(painelAtual().path(), u"Arquivo:"_s);
  mostraZoom();
}

void frmPedHTML::mostraCaminho(const QString& caminho, const QString& rotulo) {
  lblArquivo->setText(rotulo);
  txtArquivo->setText(caminho);
  txtArquivo->setToolTip(forms::asTip(caminho));
  cmdAbrirPasta->setEnabled(!caminho.isEmpty());
}

void frmPedHTML::mostraZoom() { lblZoom->setText(u"%1%"_s.arg(qRound(painelAtual().zoom() * 100))); }

void frmPedHTML::ligaFerramentas() {
  const auto atalho = [this](const QKeySequence& teclas, auto acao) {
    connect(new QShortcut(teclas, this), &QShortcut::activated, this,
            [this, acao] { (painelAtual().*acao)(); });
  };
  atalho(QKeySequence::Find, &web::WebPane::openFind);
  atalho(QKeySequence(Qt::CTRL | Qt::Key_Plus), &web::WebPane::zoomIn);
  atalho(QKeySequence(Qt::CTRL | Qt::Key_Equal), &web::WebPane::zoomIn);
  atalho(QKeySequence(Qt::CTRL | Qt::Key_Minus), &web::WebPane::zoomOut);
  atalho(QKeySequence(Qt::CTRL | Qt::Key_0), &web::WebPane::fitWidth);
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
          [this] { clickByKey(cmdImprimir); });
  const auto liga = [this](QToolButton* botao, auto acao) {
    on(botao, Event::Click, [this, acao] { (painelAtual().*acao)(); });
  };
  liga(cmdLocalizar, &web::WebPane::openFind);
  liga(cmdZoomMenos, &web::WebPane::zoomOut);
  liga(cmdZoomMais, &web::WebPane::zoomIn);
  liga(cmdZoomLargura, &web::WebPane::fitWidth);
  on(cmdAbrirPasta, Event::Click, [this] {
    const QFileInfo arquivo(files::resolve(txtArquivo->text()));
    QDesktopServices::openUrl(QUrl::fromLocalFile(arquivo.absolutePath()));
  });
  connect(SSTab1, &QTabWidget::currentChanged, this, &frmPedHTML::mostraArquivo);
  for (const Via& via : vias_) connect(via.painel, &web::WebPane::zoomChanged, this, &frmPedHTML::mostraZoom);
}
