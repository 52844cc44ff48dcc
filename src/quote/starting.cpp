#include <QPainter>

#include "platform/forms/process.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "run/configuration.h"
#include "run/context.h"
#include "run/findings.h"
#include "run/program_title.h"
#include "shared/lists.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/theme.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

namespace {

/// Who the user is and which environment is meant, from the command line.
void lerLinhaComando(Contexto& c) {
  // On the makers' own machines the program is started without the menu.
  if (TipoInstalacao() == u"TREVANO") c.LinhaComando = u"1^0^PRD^"_s;
  if (c.LinhaComando.isEmpty()) {
    // The window has no title yet, so neither has the box.
    avisa(u"Chamada Ilegal para esta rotina!"_s, QString(u""_s));
    forms::end(0);
  }
  c.IdUsuarioAtual = values::toInt16(values::leadingNumber(PegaCampo(c.LinhaComando, 1)));
  c.Ambiente = PegaCampo(c.LinhaComando, 3);
}

QString tituloJanela(const Contexto& c) {
  return kTitulo + u" ("_s + c.Ambiente + u") - Orçamento de Vendas ("_s + c.ambienteVazio + u"/"_s +
         c.NomeUsuarioAtual + u")"_s;
}

/// Drawn here: the style's own icons are picture files, and reading the first one costs a start more than all
/// of its controls.
QIcon lupa(const QColor& cor) {
  QPixmap figura(32, 32);
  figura.fill(Qt::transparent);
  QPainter tinta(&figura);
  tinta.setRenderHint(QPainter::Antialiasing);
  tinta.setPen(QPen(cor, 3.5, Qt::SolidLine, Qt::RoundCap));
  tinta.drawEllipse(QRectF(5, 5, 16, 16));
  tinta.drawLine(QPointF(19.5, 19.5), QPointF(27, 27));
  return figura;
}

}  // namespace

void frmPropCmrcTL::Form_Load() {
  Contexto& c = contexto();
  lerLinhaComando(c);
  ConectaServidor();
  aplicaTemaPadrao(*this);
  // In the theme's colour.
  cmdPesquisar_PropCmrc->setIcon(lupa(cmdPesquisar_PropCmrc->palette().color(QPalette::ButtonText)));
  c.NomeUsuarioAtual = NomeUsuario(QString::number(c.IdUsuarioAtual), c.NomeUsuarioAtual);
  resize(size().expandedTo(forms::screenSize() * 4 / 5));
  CentralizaForm(*this);
  setWindowTitle(tituloJanela(c));
  if (c.Ambiente != u"PRD") forms::setForeColor(lblTituloJanela, kVermelho);
  move(x(), 0);
  c.TelaChamadora = u"frmPropCmrcTL"_s;

  LimitaCampos();
  BotoesNeutros();
  TravaCampos();
  LimpaTela();
  CarregaVendedores(*this, {});
  CarregaTiposMarketing(*this);
  CarregaLocaisVenda(*this);
  for (QWidget* opcao : {opPROD, opPROT}) opcao->hide();
  lblNrPessoas->setText(u"Qtde Solicitada:"_s);
  MontaGridItens();
  MontaGridMontagem();
  opPV->setChecked(true);
  if (c.Conexao.isOpen()) aviso_ = avisoDasPastas();
  mostraSituacao();
}
