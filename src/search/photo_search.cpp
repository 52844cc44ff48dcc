#include "search/photo_search.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "documents/html_text.h"
#include "platform/files/contents.h"
#include "platform/forms/process.h"
#include "platform/values/html_bytes.h"
#include "platform/web/web_pane.h"
#include "run/context.h"
#include "search/delivery.h"
#include "search/photo.h"
#include "search/photo_page.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/pictures.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace pesquisa {

namespace {

const std::array<QString, 4> kVistas{{{}, u"_2"_s, u"_3"_s, u"_4"_s}};

QString nomeDaMarcada(const QList<QRadioButton*>& opcoes) {
  for (const auto* opcao : opcoes)
    if (opcao->isChecked()) return opcao->objectName();
  return {};
}

void marca(const QList<QRadioButton*>& opcoes, const QString& nome) {
  for (auto* opcao : opcoes)
    if (opcao->objectName() == nome) opcao->setChecked(true);
}

}  // namespace

PesquisaComFotos::PesquisaComFotos(const Ficha& ficha) : ficha_(ficha) {}

void PesquisaComFotos::liga(const Controles& controles, const Opcoes& campos, const Opcoes& tipos) {
  using forms::Event;
  c_ = controles;
  campos_ = campos;
  tipos_ = tipos;
  on(c_.Flex, Event::Click, &PesquisaComFotos::Flex_Click);
  connect(&c_.Flex->grid(), &forms::GridModel::currentMoved, this,
          [this] { forms::guarded([this] { acompanhaLinha(); }, objectName() + u".Flex_RowColChange"_s); });
  on(c_.Flex, Event::DoubleClick, &PesquisaComFotos::Flex_DblClick);
  on(c_.Image1, Event::DoubleClick, &PesquisaComFotos::Image1_DblClick);
  on(c_.SSTab1, Event::Click, &PesquisaComFotos::abrePagina);
  // A click on the tab that is open shows the pictures of the latest search.
  connect(c_.SSTab1->tabBar(), &QTabBar::tabBarClicked, this, [this](int aba) {
    if (aba == c_.SSTab1->currentIndex())
      forms::guarded([this] { abrePagina(); }, objectName() + u".SSTab1_Click"_s);
  });
  on(c_.txtCOD, Event::LostFocus, [this] { c_.txtCOD->setText(maiusculas(c_.txtCOD->text())); });
  enterMovesOn({c_.txtCOD});
  selectOnFocus({c_.txtCOD});
  for (std::size_t vista = 0; vista < kVistas.size(); ++vista)
    on(c_.cmdImagem1[vista], Event::Click, [this, vista] { mostraFoto(vista); });
  rememberMeasures();
}

QString PesquisaComFotos::chave() const {
  const auto& grade = c_.Flex->grid();
  return apara(grade.text(grade.row(), ficha_.colunaChave));
}

void PesquisaComFotos::listaResultado(const QString& sql, const Linha& linha, QWidget* foco) {
  auto& grade = c_.Flex->grid();
  c_.lblContagem->clear();
  {
    const forms::WaitPointer espera;
    grade.addRows(waitFor(data::forEachRow(abreConsulta(sql), linha)));
  }
  const int quantos = grade.rows() - 1;
  if (quantos == 0) {
    avisa(u"Nenhum Registro Localizado com esses parâmetros..."_s);
    return focus(foco);
  }
  grade.chooseSingleRow();
  c_.lblContagem->setText(contagem(quantos, ficha_.um, ficha_.varios));
}

void PesquisaComFotos::Flex_Click() {
  if (c_.Flex->grid().row() == 0) return;
  lembraPesquisa();
  mostraFoto(0);
}

void PesquisaComFotos::acompanhaLinha() {
  if (c_.Flex->grid().row() > 0) return mostraFoto(0);
  auto& globais = lembrancas();
  globais.ArqImagem.clear();
  globais.ArqImagem2.clear();
  c_.Image1->setFoto({});
}

void PesquisaComFotos::lembraPesquisa() {
  auto& lembranca = lembrancas().pesquisa;
  lembranca.tela = objectName();
  lembranca.BrowseOpcao = nomeDaMarcada(campos_);
  lembranca.BrowseTexto = c_.txtCOD->text();
  lembranca.BrowseAtivos = c_.chkVisualiza->isChecked() ? u"Sim"_s : u"Não"_s;
  if (c_.cboCole != nullptr) lembranca.BrowseCombo = c_.cboCole->text();
  if (!tipos_.isEmpty()) lembranca.BrowseTipo = nomeDaMarcada(tipos_);
}

void PesquisaComFotos::retomaPesquisa() {
  const Lembranca& antes = lembrancas().pesquisa;
  if (antes.BrowseOpcao.isEmpty()) return;
  marca(campos_, antes.BrowseOpcao);
  marca(tipos_, antes.BrowseTipo);
  if (!antes.BrowseTexto.isEmpty()) c_.txtCOD->setText(antes.BrowseTexto);
  c_.chkVisualiza->setChecked(antes.BrowseAtivos == u"Sim"_s);
  if (c_.cboCole != nullptr && !antes.BrowseCombo.isEmpty()) c_.cboCole->setText(antes.BrowseCombo);
  // That of the other screen would say that it finds nothing before this one stands.
  if (antes.tela != objectName()) return;
  cmdPesquisa_Click();
  c_.Flex->setTopRow(antes.LinhaBrowse);
}

void PesquisaComFotos::mostraFoto(std::size_t vista) {
  auto& globais = lembrancas();
  const auto [arquivo, figura] = fotoDoCodigo(chave(), kVistas[vista]);
  globais.ArqImagem = globais.ArqImagem2 = arquivo;
  c_.Image1->setFoto(figura);
  for (std::size_t i = 0; i < kVistas.size(); ++i) c_.cmdImagem1[i]->setChecked(i == vista);
}

void PesquisaComFotos::abrePagina() {
  const QString arquivo = contexto().PathDocs + ficha_.arquivoPagina;
  files::removeIfThere(arquivo);
  if (c_.SSTab1->currentIndex() != Imagens) return;
  const forms::WaitPointer espera;
  const Pagina pagina = montaPagina();
  files::write(arquivo, pagina.inteira());
  c_.WebBrowser1->setPictureFolders(pastasDeFiguras());
  c_.folhas->abre(*c_.WebBrowser1, arquivo, pagina);
}

QString PesquisaComFotos::MontaDetalheHTML() const { return QString::fromLatin1(montaPagina().inteira()); }

Pagina PesquisaComFotos::montaPagina() const {
  const auto& grade = c_.Flex->grid();
  Pagina pagina{"<TABLE BORDER CELLPADDING='2'>", {}, "</TABLE>"};
  for (int linha = 1; linha < grade.rows(); ++linha) {
    const QString codigo = grade.text(linha, ficha_.colunaChave);
    pagina.linhas << values::toHtmlBytes(
        u"<TR style='FONT-WEIGHT: bold; FONT-SIZE: 8pt; FONT-FAMILY: Tahoma; FONT-VARIANT: small'>"
        u"<TD width=30%><P ALIGN=Center><IMG SRC='"_s +
            html::atributo(LocalizaImagemProduto(codigo)) + u"'></TD><TD width=30%>"_s +
            html::escapado(apara(codigo)) + u"</TD><TD width=40%>"_s +
            html::escapado(apara(grade.text(linha, ficha_.colunaChave + 1))) + u"</TD></TR>"_s,
        values::HtmlEncoding::Latin1);
  }
  return pagina;
}

void PesquisaComFotos::Flex_DblClick() {
  auto& grade = c_.Flex->grid();
  if (grade.row() <= 0) return;
  lembraPesquisa();  // Enter on a row is no click
  lembrancas().pesquisa.LinhaBrowse = c_.Flex->topRow();
  entregaEscolha();
  unload();
}

}  // namespace pesquisa
