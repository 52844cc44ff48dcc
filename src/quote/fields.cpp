#include <algorithm>
#include <utility>
#include <vector>

#include "draft/keeper.h"
#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/header_fields.h"
#include "shared/lists.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using forms::Event;

// What the header's fields do when they are left, and what fills their lists.

namespace {

constexpr forms::ColorNumber kVermelhoClaro = 0xC8C8FF;

/// What is saved as it stands: a date, or none at all.
bool certa(const forms::MaskedBox* caixa) {
  return caixa->boxText() == caixa->emptyMask() || values::isDate(caixa->boxText());
}

/// A date that is none is saved as null, so the box shows it until it is right.
void marcaData(forms::MaskedBox* caixa, bool errada) {
  if (errada == !caixa->toolTip().isEmpty()) return;
  forms::setBackColor(caixa, errada ? kVermelhoClaro : kCorJanela);
  caixa->setToolTip(errada ? u"Data inválida: não será gravada"_s : QString());
}

/// The dates that are typed into the header.
std::vector<forms::MaskedBox*> datasDe(const forms::Form& tela) {
  std::vector<forms::MaskedBox*> datas;
  for (const auto& campo : cabecalho::campos())
    if (campo.tipo == cabecalho::Tipo::Data && campo.digitado())
      datas.push_back(qobject_cast<forms::MaskedBox*>(cabecalho::controles(campo, tela).first()));
  return datas;
}

/// What the label beside a field calls it.
QString nomeDe(const QWidget* campo) {
  const auto rotulos = campo->window()->findChildren<QLabel*>();
  const auto seu = std::ranges::find(rotulos, campo, &QLabel::buddy);
  return seu == rotulos.end() ? QString() : (*seu)->text().remove(u'&').remove(u':');
}

}  // namespace

void frmPropCmrcTL::ligaDatas() {
  const auto completa = [this](forms::MaskedBox* caixa) {
    on(caixa, Event::LostFocus, [caixa] { caixa->setBoxText(ValidaDataMascara(caixa->boxText())); });
  };
  completa(mskDataAprv);
  for (forms::MaskedBox* caixa : datasDe(*this)) {
    completa(caixa);
    on(caixa, Event::LostFocus, [caixa] { marcaData(caixa, !certa(caixa)); });
    // A date that is just being typed is none yet.
    connect(caixa, &QLineEdit::textChanged, this, [this, caixa] {
      if (certa(caixa) || focusWidget() != caixa) marcaData(caixa, !certa(caixa));
    });
  }
}

/// Whether a save goes on, which stores a date that is none as empty.
bool frmPropCmrcTL::confirmaDatas() {
  QStringList erradas;
  forms::MaskedBox* primeira = nullptr;
  for (forms::MaskedBox* caixa : datasDe(*this)) {
    if (certa(caixa)) continue;
    erradas << nomeDe(caixa) + u": "_s + caixa->boxText();
    if (primeira == nullptr) primeira = caixa;
  }
  if (erradas.isEmpty()) return true;
  const QString ficam =
      erradas.size() == 1 ? u" não é uma data e ficará vazia."_s : u" não são datas e ficarão vazias."_s;
  if (perguntaComCuidado(erradas.join(u", "_s) + ficam + u" Gravar assim mesmo?"_s)) return true;
  focus(primeira);
  return false;
}

void frmPropCmrcTL::ligaListas() {
  for (const auto& campo : cabecalho::campos()) {
    if (campo.busca.recusa.isEmpty()) continue;
    auto* combo = qobject_cast<forms::Combo*>(cabecalho::controles(campo, *this).first());
    combo->setCompleting(true);
    on(combo, Event::LostFocus, [combo, &busca = campo.busca] {
      if (combo->isLocked() || combo->text().isEmpty()) return;
      const forms::WaitPointer espera;
      if (!waitFor(busca.id(combo->text(), {})).isEmpty()) return;
      avisa(busca.recusa.toString());
      combo->setText({});
      focus(combo);
    });
  }

  const std::pair<forms::Combo*, void (*)(Form&)> enchidas[] = {{cboTipoEven, &CarregaTiposEvento},
                                                                {cboTipoServ, &CarregaTiposServico},
                                                                {cboCole, &CarregaColecoes},
                                                                {cboRespAtendimento, &CarregaUsuarios}};
  for (const auto& [combo, enche] : enchidas)
    on(combo, Event::DropDown, [this, enche = enche] { enche(*this); });
}

void frmPropCmrcTL::txtCodigo_LostFocus() { txtCodigo->setText(apara(txtCodigo->text())); }

void frmPropCmrcTL::cboCliente_DropDown() { CarregaClientes(*this, cboCliente->text()); }

void frmPropCmrcTL::cboCliente_LostFocus() {
  if (cboCliente->isLocked()) return;
  if (cboCliente->text().isEmpty()) return mostraAnteriores({});
  const forms::WaitPointer espera;
  const QString id = waitFor(IdClientePorNome(cboCliente->text()));
  if (id.isEmpty()) mostraAnteriores({});
  if (id.isEmpty()) return confirmaSemCadastro(u"Este Cliente não está cadastrado!"_s);
  auto pedeFones = FonesCliente(id);
  auto pedeEmail = EmailCliente(id);
  auto pedeQuantos = pedeAnteriores(cboCliente->text());
  forms::setControlText(txtFoneExtra, waitFor(pedeFones));
  forms::setControlText(txtEmailExtra, waitFor(pedeEmail));
  mostraAnteriores(waitFor(pedeQuantos));
  if (maiusculas(apara(cboCliente->text())) != clienteAntes_) soltaContatoDeOutro();
}

/// Another customer's contact would get this one's mail.
void frmPropCmrcTL::soltaContatoDeOutro() {
  const QString contato = cboClienteContato->text();
  if (contato.isEmpty() || !waitFor(IdPessoaContato(contato, cboCliente->text())).isEmpty()) return;
  cboClienteContato->setText({});
  for (QLineEdit* caixa : {txtFoneExtraContato, txtEmailExtraContato}) caixa->clear();
}

void frmPropCmrcTL::cboClienteContato_DropDown() {
  if (cboCliente->text().isEmpty()) return;
  CarregaContatos(*this, cboCliente->text(), cboClienteContato->text());
}

void frmPropCmrcTL::cboClienteContato_LostFocus() {
  if (cboClienteContato->isLocked() || cboClienteContato->text().isEmpty()) return;
  const forms::WaitPointer espera;
  const QString id = waitFor(IdPessoaContato(cboClienteContato->text(), cboCliente->text()));
  if (id.isEmpty()) return confirmaSemCadastro(u"Este Cliente/Contato não está cadastrado!"_s);
  auto pedeFone = FoneContato(id);
  auto pedeEmail = EmailContato(id);
  forms::setControlText(txtFoneExtraContato, waitFor(pedeFone));
  forms::setControlText(txtEmailExtraContato, waitFor(pedeEmail));
}

/// Yes goes on with a name that no table knows; No ends the editing, and what was entered can be recovered.
void frmPropCmrcTL::confirmaSemCadastro(const QString& aviso) {
  if (pergunta(u"Atenção!!!\r\r"_s + aviso + u"\r\rVocê Deseja Continuar o Orçamento mesmo assim?"_s)) return;
  rascunho::guarda().deixa();
  BotoesNeutros();
  LimpaTela();
  TravaCampos();
  encerraEdicao();
  focus(txtCodigo);
}
