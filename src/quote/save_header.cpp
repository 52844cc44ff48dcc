#include <QLineEdit>

#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/frmPropCmrcTL.h"
#include "quote/sql_text.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

// The statements that write the header of a quote from the screen's fields.

namespace {

QString aparado(const QObject* campo) { return apara(forms::controlText(campo)); }

bool temData(const forms::MaskedBox* caixa) { return values::isDate(caixa->boxText()); }

/// The number of persons as it was typed where it is a number or empty, else what the numeric reading makes
/// of it.
QString pessoas(const QLineEdit* caixa) {
  const QString texto = apara(caixa->text());
  return texto.isEmpty() || values::isNumeric(texto) ? texto : values::toText(leNumero(texto));
}

QString dataHora(const forms::MaskedBox* caixa) {
  return values::formatDate(caixa->boxText(), u"yyyymmdd hh:mm");
}

}  // namespace

/// What the names in the header stand for, asked together.
struct frmPropCmrcTL::Chaves {
  Asked<QString> vendedor, cliente, contato, local, marketing, evento, servico, atendente;
};

frmPropCmrcTL::Chaves frmPropCmrcTL::pedeChaves() const {
  const QString atendente = cboRespAtendimento->text();
  return {.vendedor = IdVendedor(cboVendedor->text()),
          .cliente = IdClientePorNome(cboCliente->text()),
          .contato = IdClienteContato(cboClienteContato->text(), cboCliente->text()),
          .local = IdLocalVenda(cboLocalVenda->text()),
          .marketing = IdTipoMarketing(cboTipoMktg->text()),
          .evento = IdTipoEvento(cboTipoEven->text()),
          .servico = IdTipoServico(cboTipoServ->text()),
          .atendente = apara(atendente).isEmpty() ? data::known(QString()) : IdUsuario(atendente)};
}

QString frmPropCmrcTL::MontaInsertOrcamento() const {
  const auto dia = [](Insercao& sql, QStringView coluna, const forms::MaskedBox* caixa) {
    if (temData(caixa)) sql.campo(coluna, dataHora(caixa));
  };
  const auto preenchido = [](Insercao& sql, QStringView coluna, const QObject* campo) {
    const QString texto = aparado(campo);
    sql.campoSe(!texto.isEmpty(), coluna, texto);
  };

  Chaves chaves = pedeChaves();
  Insercao sql(u"PROP_CMRC"_s);
  sql.campo(u"idvend", chaves.vendedor.get());
  sql.campo(u"idclie", chaves.cliente.get());
  sql.campo(u"idclie_cont", chaves.contato.get());
  sql.campo(u"idloca_veds", chaves.local.get());
  sql.campo(u"idtipo_mktg", chaves.marketing.get());
  sql.campo(u"idtipo_even", chaves.evento.get());
  sql.campo(u"idtipo_serv", chaves.servico.get());
  sql.campo(u"show_excl", opShowRoom->isChecked() ? u"S"_s : u"E"_s);
  dia(sql, u"DATA_PROP_CMRC", mskDtPropCmrc);
  dia(sql, u"DATA_EVEN", mskDataEven);
  dia(sql, u"DATA_VALI", mskDtValidade);
  dia(sql, u"DATA_ENTG", mskDtEntrega);
  preenchido(sql, u"prop_cmrc_desc", txtDesc);
  sql.campo(u"nome_clie", aparado(cboCliente));
  sql.campo(u"fone_clie", aparado(txtFoneExtra));
  preenchido(sql, u"emai_clie", txtEmailExtra);
  sql.campo(u"nome_clie_cont", aparado(cboClienteContato));
  sql.campo(u"fone_clie_cont", aparado(txtFoneExtraContato));
  preenchido(sql, u"emai_clie_cont", txtEmailExtraContato);
  if (!aparado(cboRespAtendimento).isEmpty()) sql.campo(u"IDRESV_PROP_CMRC", chaves.atendente.get());
  sql.campo(u"nume_pess", pessoas(txtNumePess));
  preenchido(sql, u"OBSE_PROP_CMRC", txtObserva);
  preenchido(sql, u"TXT_COND_PGTO", txtCondPagto);
  sql.campo(u"DATA_INCL", values::formatDate(values::now(), u"yyyymmdd hh:mm"));
  sql.campo(u"USER_INCL", QString::number(contexto().IdUsuarioAtual));
  return sql.texto();
}

QString frmPropCmrcTL::MontaUpdateOrcamento() const {
  Chaves chaves = pedeChaves();
  Alteracao sql(u"PROP_CMRC"_s);
  const auto dia = [&sql](QStringView coluna, const forms::MaskedBox* caixa) {
    sql.campoOuNull(temData(caixa), coluna, dataHora(caixa));
  };
  const auto texto = [&sql](QStringView coluna, const QObject* campo) {
    sql.campoOuNull(!aparado(campo).isEmpty(), coluna, aparado(campo));
  };

  sql.campo(u"idvend", chaves.vendedor.get());
  sql.campo(u"idloca_veds", chaves.local.get());
  sql.campo(u"idclie", chaves.cliente.get());
  sql.campo(u"idclie_cont", chaves.contato.get());
  sql.campo(u"idtipo_mktg", chaves.marketing.get());
  sql.campo(u"idtipo_even", chaves.evento.get());
  sql.campo(u"idtipo_serv", chaves.servico.get());
  sql.campo(u"show_excl", opShowRoom->isChecked() ? u"S"_s : u"E"_s);
  texto(u"prop_cmrc_desc", txtDesc);
  dia(u"DATA_PROP_CMRC", mskDtPropCmrc);
  dia(u"DATA_EVEN", mskDataEven);
  dia(u"DATA_VALI", mskDtValidade);
  dia(u"DATA_ENTG", mskDtEntrega);
  texto(u"NOME_CLIE", cboCliente);
  texto(u"FONE_CLIE", txtFoneExtra);
  texto(u"EMAI_CLIE", txtEmailExtra);
  texto(u"NOME_CLIE_CONT", cboClienteContato);
  texto(u"FONE_CLIE_CONT", txtFoneExtraContato);
  texto(u"EMAI_CLIE_CONT", txtEmailExtraContato);
  if (!aparado(cboRespAtendimento).isEmpty()) sql.campo(u"IDRESV_PROP_CMRC", chaves.atendente.get());
  sql.campo(u"NUME_PESS", pessoas(txtNumePess));
  texto(u"TXT_COND_PGTO", txtCondPagto);
  texto(u"OBSE_PROP_CMRC", txtObserva);
  return sql.texto(u"WHERE (idPROP_CMRC="_s + txtRowId->text() + u")"_s);
}
