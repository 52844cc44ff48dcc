#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/articles.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// All lines of the quote replaced by the live prototypes of a collection or of the customer.

namespace {

forms::GridRow linhaComMascara(const data::Recordset& rs, double quantidade, const QString& mascara) {
  using namespace grades::item;
  const QString id = rs.text(u"IDPROT");
  const QString valor = rs.format(u"VALO_VEDS", kMascaraMoeda);
  return {{Id, id},
          {Tipo, grades::kPrototipo},
          {Codigo, id},
          {Descricao, rs.text(u"DESC_PROT")},
          {VrBruto, valor},
          {Desconto, emMoeda(0)},
          {VrUnit, valor},
          {Quantidade, values::format(quantidade, mascara)},
          {Total, rs.isNull(u"VALO_VEDS") ? QString() : emMoeda(quantidade * rs.number(u"VALO_VEDS"))}};
}

Asked<forms::GridRow> linhaDoPrototipo(data::Recordset rs, double quantidade) {
  const QString unidade = rs.isNull(u"IDUNID") ? u"0"_s : rs.text(u"IDUNID");
  const UnidadeDeMedida medida = co_await unidadeDeMedida(unidade);
  co_return linhaComMascara(rs, quantidade, medida.mascara);
}

}  // namespace

void frmPropCmrcTL::cmdIncluirMassa_Click() {
  TabMassa->setCurrentIndex(0);
  openOverFrame(frameMassa, cboCole);
}

void frmPropCmrcTL::cmdConfirmaMassaClie_Click() {
  const forms::WaitPointer espera;
  const QString cliente = waitFor(IdClientePorNome(cboCliente->text()));
  if (leNumero(cliente) == 0)
    return avisa(u"Para esta operação, um cliente precisa ser selecionado!"_s, windowTitle());
  if (confirmaMassa())
    incluiPrototipos(
        u"SELECT PROT.IDPROT, PROT.DESC_PROT, PROT.VALO_VEDS, PROT.IDCLIE, PROT.IDUNID, PROT.DATA_DESA, "
        "PROT.DATA_INUT FROM PROT Where (PROT.idClie = "_s +
        cliente + u") AND (PROT.DATA_DESA Is Null) AND (PROT.DATA_INUT Is Null)"_s);
  closeOverFrame(frameMassa);
}

void frmPropCmrcTL::cmdConfirmarMassa_Click() {
  const QString colecao = apara(cboCole->text());
  if (!colecao.isEmpty()) {
    const forms::WaitPointer espera;
    // The notice says the opposite of what it means: the collection was not found.
    if (leNumero(waitFor(IdColecao(colecao))) == 0)
      avisa(u"Esta Coleção existe!"_s, windowTitle());
    else if (confirmaMassa())
      incluiPrototipos(
          u"SELECT PROT.IDPROT, PROT.DESC_PROT, PROT.VALO_VEDS, COLE.DESC_COLE, PROT.IDCLIE, PROT.IDUNID "
          "FROM COLE, PROT WHERE COLE.IDCOLE = PROT.IDCOLE AND ((COLE.DESC_COLE='"_s +
          colecao + u"')) AND (PROT.DATA_DESA Is Null) AND (PROT.DATA_INUT Is Null)"_s);
  }
  closeOverFrame(frameMassa);
}

bool frmPropCmrcTL::confirmaMassa() {
  return pergunta(
      u"Atenção!!!\rPara esta operação, os protótipos já existentes serão excluídos.\r"
      "Confirma? (S/N)"_s,
      windowTitle());
}

/// One line for each prototype, in the order that the database gives. The materials of the old lines stay.
void frmPropCmrcTL::incluiPrototipos(const QString& sql) {
  const forms::WaitPointer espera;
  MontaGridItens();
  const data::Recordset rs = abreConsulta(sql);
  if (leNumero(txtNumePess->text()) == 0) {
    avisa(
        u"A quantidade zerada, para o processamento será assumido a quantidade 1 para cada um dos protótipos"_s,
        windowTitle());
    txtNumePess->setText(u"1"_s);
  }
  const double quantidade = leNumero(txtNumePess->text());
  Flex->grid().addRows(waitFor(data::forEachRow(rs, [quantidade](const data::Recordset& prototipo) {
    return linhaDoPrototipo(prototipo, quantidade);
  })));
}
