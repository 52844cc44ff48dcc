#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

// All lines of the quote replaced by the live prototypes of a collection or of the customer.

void frmPropCmrcTL::cmdIncluirMassa_Click() {
  TabMassa->setCurrentIndex(0);
  openOverFrame(frameMassa, cboCole);
}

void frmPropCmrcTL::cmdConfirmaMassaClie_Click() {
  const QString cliente = IdClientePorNome(cboCliente->text());
  if (LeNumero(cliente) == 0)
    return Aviso(u"Para esta operação, um cliente precisa ser selecionado!"_s, windowTitle());
  if (confirmaMassa())
    incluiPrototipos(
        u"SELECT PROT.IDPROT, PROT.DESC_PROT, PROT.VALO_VEDS, PROT.IDCLIE, PROT.IDUNID, PROT.DATA_DESA, "
        "PROT.DATA_INUT FROM PROT Where (PROT.idClie = "_s +
        cliente + u") AND (PROT.DATA_DESA Is Null) AND (PROT.DATA_INUT Is Null)"_s);
  closeOverFrame(frameMassa);
}

void frmPropCmrcTL::cmdConfirmarMassa_Click() {
  const QString colecao = Apara(cboCole->text());
  if (!colecao.isEmpty()) {
    // The notice says the opposite of what it means: the collection was not found.
    if (LeNumero(IdColecao(colecao)) == 0)
      Aviso(u"Esta Coleção existe!"_s, windowTitle());
    else if (confirmaMassa())
      incluiPrototipos(
          u"SELECT PROT.IDPROT, PROT.DESC_PROT, PROT.VALO_VEDS, COLE.DESC_COLE, PROT.IDCLIE, PROT.IDUNID "
          "FROM COLE, PROT WHERE COLE.IDCOLE = PROT.IDCOLE AND ((COLE.DESC_COLE='"_s +
          colecao + u"')) AND (PROT.DATA_DESA Is Null) AND (PROT.DATA_INUT Is Null)"_s);
  }
  closeOverFrame(frameMassa);
}

bool frmPropCmrcTL::confirmaMassa() {
  return Pergunta(
      u"Atenção!!!\rPara esta operação, os protótipos já existentes serão excluídos.\r"
      "Confirma? (S/N)"_s,
      windowTitle());
}

/// One line for each prototype, in the order that the database gives. The materials of the old lines stay.
void frmPropCmrcTL::incluiPrototipos(const QString& sql) {
  MontaGridItens();
  data::Recordset rs = AbreConsulta(sql);
  if (LeNumero(txtNumePess->text()) == 0) {
    Aviso(
        u"A quantidade zerada, para o processamento será assumido a quantidade 1 para cada um dos protótipos"_s,
        windowTitle());
    txtNumePess->setText(u"1"_s);
  }
  const double quantidade = LeNumero(txtNumePess->text());
  const forms::WaitPointer espera;
  for (; !rs.eof(); rs.moveNext()) {
    const QString id = rs.text(u"IDPROT");
    const QString mascara = MascaraUnidade(rs.isNull(u"IDUNID") ? u"0"_s : rs.text(u"IDUNID"));
    const QString valor = rs.format(u"VALO_VEDS", kMascaraMoeda);
    const QString total = rs.isNull(u"VALO_VEDS") ? QString() : Moeda(quantidade * rs.number(u"VALO_VEDS"));
    forms::RowBuilder linha;
    linha << id << QString::fromUtf16(grids::kPrototipo) << id << rs.text(u"DESC_PROT") << valor << Moeda(0)
          << valor << values::format(quantidade, mascara) << total;
    Flex->grid().addItem(linha.text());
  }
}
