#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/fields.h"

using namespace Qt::StringLiterals;

// Approval of lines: a date and time in the grid, stored with the next save.

namespace {

constexpr QChar kSeparador = u'|';
constexpr int kLarguraCodigo = 20;
constexpr int kLarguraObservacao = 38;
constexpr int kLarguraLinha = 4;
constexpr int kCampoLinha = 3;

/// A separator inside a text becomes a blank, so that the row number stays the third field.
QString campo(QString texto, int largura) {
  texto.replace(kSeparador, u' ');
  return AjustaTexto(texto, largura, Alinhamento::Esquerda) + kSeparador;
}

QString entrada(const forms::GridModel& itens, int linha) {
  return campo(itens.text(linha, grades::item::Codigo), kLarguraCodigo) +
         campo(itens.text(linha, grades::item::Observacao), kLarguraObservacao) +
         campo(QString::number(linha), kLarguraLinha);
}

/// The line that an entry names by its third field, 0 for a text that is the entry of no line.
int linhaDaEntrada(const forms::GridModel& itens, const QString& texto) {
  const int linha = values::toInt32(leNumero(PegaCampoDelimitado(texto, kCampoLinha, kSeparador)));
  return linha > 0 && linha < itens.rows() && texto == entrada(itens, linha) ? linha : 0;
}

}  // namespace

void frmPropCmrcTL::cmdAbreAprova_Click() {
  if (!situacao::editando()) return;
  forms::GridModel& itens = Flex->grid();
  QStringList entradas{u"TODOS"_s};
  for (int linha = 1; linha < itens.rows(); ++linha) entradas << entrada(itens, linha);
  cboItemPropCmrc->setEntries(entradas);
  // Building the list leaves the grid on its last row.
  itens.setRow(itens.rows() - 1);
  cboItemPropCmrc->setCurrentIndex(0);
  mskDataAprv->setBoxText(values::formatDate(values::now(), u"dd/mm/yyyy hh:mm"));
  openOverFrame(frameAprova, mskDataAprv);
}

void frmPropCmrcTL::cmdConfirmaAprova_Click() {
  forms::GridModel& itens = Flex->grid();
  const QString escolha = cboItemPropCmrc->text();
  const QString quando = mskDataAprv->boxText();
  const bool todos = escolha == u"TODOS";
  const int escolhida = linhaDaEntrada(itens, escolha);
  if (!todos && escolhida == 0)
    return avisa(u"Escolha um Item para realizar a aprovação!"_s, cboItemPropCmrc);
  if (!values::isDate(quando)) return avisa(u"Defina uma Data para realizar a aprovação!"_s, mskDataAprv);
  for (int linha = 1; linha < itens.rows(); ++linha)
    if (todos || linha == escolhida) itens.setText(linha, grades::item::DtAprov, quando);
  fechaAprova();
  avisa(u"Para que haja efeito na aprovação o Orcamento deverá ser salvo!"_s);
}

/// Clears the grid's current row, whatever is chosen in the list.
void frmPropCmrcTL::cmdCancelaAprova_Click() {
  forms::GridModel& itens = Flex->grid();
  if (itens.row() > 0) itens.setText(itens.row(), grades::item::DtAprov, {});
  fechaAprova();
}

void frmPropCmrcTL::fechaAprova() {
  cboItemPropCmrc->setEntries({});
  cboItemPropCmrc->setText({});
  RestauraMascara(mskDataAprv);
  closeOverFrame(frameAprova);
}
