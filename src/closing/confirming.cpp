// Writing the terms and the instalments of a quote. Three transactions: after a failure between them the new
// terms stand with the old instalments.

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/values/dates.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/grids.h"
#include "quote/sql_text.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

QString idOrcamento() { return forms::form<frmPropCmrcTL>().txtRowId->text(); }

void zeroSeVazio(QLineEdit* caixa) {
  if (caixa->text().isEmpty()) caixa->setText(u"0"_s);
}

QString insertParcela(const forms::GridModel& grade, int linha) {
  using namespace grades::parcela;
  return Insercao(u"PROP_CMRC_PARC"_s)
      .campo(u"idPROP_CMRC", idOrcamento())
      .campo(u"NUME_PARC", grade.text(linha, Parcela))
      .campo(u"QTDE_DIAS", grade.text(linha, Dias))
      .campo(u"VALO_PARC", VirgulaParaPonto(grade.text(linha, Valor)))
      .campo(u"DATA_VENC", values::formatDate(grade.text(linha, Vencimento), u"yyyymmdd"))
      .texto();
}

}  // namespace

void frmConfirmaPropCmrcTL::cmdConfirmar_Click() {
  if (FlagCondPgto != u"S") {
    if (!podeConfirmar()) return;
    passaDescontoParaOrcamento();
    zeroSeVazio(txtDescontoGeral);
    zeroSeVazio(txtPercDesc);
    gravaCondicao();
    gravaParcelas();
  }
  hide();
  FlagCondPgto.clear();
}

bool frmConfirmaPropCmrcTL::podeConfirmar() {
  if (apara(txtIdCondPg->text()).isEmpty()) {
    avisa(u"Campo Obrigatório [Condição de Pagamento]"_s, windowTitle());
    focus(txtIdCondPg);
    return false;
  }
  if (Flex2->grid().rows() <= 1) {
    avisa(u"Falta processar a condição de pagamento."_s, txtIdCondPg);
    return false;
  }
  if (!values::isDate(mskDataBase->boxText())) {
    avisa(u"Informar data base."_s, mskDataBase);
    return false;
  }
  return true;
}

void frmConfirmaPropCmrcTL::passaDescontoParaOrcamento() {
  auto& orcamento = forms::form<frmPropCmrcTL>();
  orcamento.lblDesconto->setText(formataLido(txtDescontoGeral->text(), kMascaraMoeda));
  orcamento.lblPercDesconto->setText(txtPercDesc->text());
}

QString frmConfirmaPropCmrcTL::montaUpdateCondicao() const {
  // The one text that is escaped: nothing else stands between an apostrophe and the middle of a closing.
  const QString observacao = SubstituiTexto(apara(forms::controlText(txtObservacaoPedido)), u"'"_s, u"''"_s);

  const QString transportadora = waitFor(IdTransportadora(apara(cboTransportadora->text())));

  QString sql = u"UPDATE PROP_CMRC SET "_s;
  sql += u"idTRPT='"_s + transportadora + u"', "_s;
  sql += u"IDCOND_PGTO = '"_s + txtIdCondPg->text() + u"' "_s;
  sql += u", DATA_BASE='"_s + values::formatDate(mskDataBase->boxText(), u"yyyymmdd") + u"' "_s;
  sql += u", VALO_DECT="_s + numeroSql(txtDescontoGeral->text()) + u" "_s;
  sql += u", PERC_DECT="_s + numeroSql(txtPercDesc->text()) + u" "_s;
  sql += observacao.isEmpty() ? u", OBSE_PEDI_VEDS=null "_s : u", OBSE_PEDI_VEDS='"_s + observacao + u"' "_s;
  return sql + u"WHERE (idPROP_CMRC="_s + idOrcamento() + u")"_s;
}

void frmConfirmaPropCmrcTL::gravaCondicao() {
  const forms::WaitPointer espera;
  // Asks for the carrier, before the transaction.
  executaJuntos({montaUpdateCondicao()});
}

void frmConfirmaPropCmrcTL::gravaParcelas() {
  const forms::WaitPointer espera;
  executaJuntos({u"DELETE PROP_CMRC_PARC WHERE idPROP_CMRC = '"_s + idOrcamento() + u"'"_s});
  const forms::GridModel& grade = Flex2->grid();
  QStringList parcelas;
  for (int linha = 1; linha < grade.rows(); ++linha) parcelas << maiusculas(insertParcela(grade, linha));
  executaJuntos(parcelas);
}
