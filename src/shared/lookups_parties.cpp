#include <array>

#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using consulta::porNumero;
using consulta::porTexto;

// Customers, contacts, salespeople, carriers, suppliers.

Asked<QString> IdClientePorNome(const QString& nome_pess) {
  return porTexto(
      {u"select clie.idclie from clie, pess where pess.idpess = clie.idpess and pess.nome_pess=", u"idClie"},
      nome_pess);
}

Asked<QString> IdClienteContato(const QString& nome_contato, const QString& nome_cliente) {
  const QString cliente = u" AND CLIE.IDPESS IN (SELECT PESS.IDPESS FROM PESS WHERE PESS.NOME_PESS = "_s +
                          consulta::entreAspas(nome_cliente) + u")"_s;
  return porTexto({u"SELECT CLIE_CONT.IDCLIE_CONT, CLIE_CONT.NOME_CLIE_CONT, CLIE_CONT.TELE_CLIE_CONT, "
                   "CLIE_CONT.EMAI_CLIE_CONT FROM CLIE, CLIE_CONT WHERE CLIE_CONT.IDCLIE = CLIE.IDCLIE "
                   "AND CLIE_CONT.NOME_CLIE_CONT = ",
                   u"IDCLIE_CONT", cliente},
                  nome_contato);
}

Asked<QString> IdPessoaContato(const QString& nome_contato, const QString& nome_cliente) {
  const QString cliente = u" AND PESS.NOME_PESS = "_s + consulta::entreAspas(nome_cliente);
  return porTexto({u"SELECT PESS_CONT.IDPESS_CONT, PESS_CONT.NOME_PESS_CONT, PESS_CONT.TELE_PESS_CONT, "
                   "PESS_CONT.EMAI_PESS_CONT FROM PESS, PESS_CONT WHERE PESS_CONT.IDPESS = PESS.IDPESS "
                   "AND PESS_CONT.NOME_PESS_CONT = ",
                   u"IDPESS_CONT", cliente},
                  nome_contato);
}

Asked<QString> IdPessoaPorNome(const QString& nome_pess) {
  return porTexto({u"select idpess from pess where pess.nome_pess=", u"IDPESS"}, nome_pess);
}

Asked<QString> FonesCliente(QString idclie) {
  static constexpr std::array kColunas{u"TELE_0001_PESS", u"TELE_0002_PESS", u"FAX0_0001_PESS",
                                       u"FAX0_0002_PESS"};
  constexpr qsizetype kMaior = 50;  // what the field of a quote takes
  const data::Recordset rs = co_await pedeConsulta(
      u"SELECT pess.TELE_0001_PESS, pess.TELE_0002_PESS, pess.FAX0_0001_PESS, pess.FAX0_0002_PESS "
      "from clie, pess where pess.idpess = clie.idpess and clie.idclie = "_s +
          consulta::entreAspas(idclie),
      data::Rows::First);
  QString fones;
  if (rs.eof()) co_return fones;
  for (const QStringView coluna : kColunas) {
    const QString fone = apara(rs.text(coluna));
    const QString junto = fones.isEmpty() ? fone : fones + u" / "_s + fone;
    // A number is given whole or not at all: half of one would be dialled.
    if (!fone.isEmpty() && junto.size() <= kMaior) fones = junto;
  }
  co_return fones;
}

Asked<QString> EmailCliente(const QString& idclie) {
  return porTexto(
      {u"SELECT pess.EMAI_PESS from clie, pess where pess.idpess = clie.idpess and clie.idclie = ",
       u"EMAI_PESS"},
      idclie);
}

namespace {

Asked<QString> colunaDoContato(const QString& idpess_cont, data::Literal coluna) {
  return porNumero({u"SELECT PESS_CONT.IDPESS_CONT, PESS_CONT.TELE_PESS_CONT, PESS_CONT.EMAI_PESS_CONT "
                    "FROM PESS, PESS_CONT Where PESS_CONT.idPESS = PESS.idPESS And (PESS_CONT.IDPESS_CONT = ",
                    coluna, u")"},
                   idpess_cont);
}

}  // namespace

Asked<QString> FoneContato(const QString& idpess_cont) {
  return colunaDoContato(idpess_cont, u"tele_pess_cont");
}

Asked<QString> EmailContato(const QString& idpess_cont) {
  return colunaDoContato(idpess_cont, u"emai_pess_cont");
}

Asked<QString> EnderecoCliente(QString idclie) {
  const data::Recordset rs = co_await pedeConsulta(
      u"select pess.nome_pess, pess.ende_coml_pess, pess.cida_coml_pess, pess.uf00_coml_pess, "
      "pess.cep0_coml_pess, pess.rg00_ie00, pess.cpf0_cnpj, pess.bair_coml_pess from clie, pess "
      "where pess.idpess = clie.idpess and clie.idclie = "_s +
          consulta::entreAspas(idclie),
      data::Rows::First);
  co_return consulta::emCampos(rs, rs.columns());
}

Asked<QString> IdVendedor(const QString& nome_conh) {
  return porTexto(
      {u"select vend.idvend from vend, pess where pess.idpess = vend.idpess and pess.nome_conh=", u"idvend"},
      nome_conh);
}

Asked<QString> NomeVendedor(const QString& idvend) {
  return porNumero({u"SELECT nome_conh From vend Where idVend = ", u"NOME_CONH"}, idvend);
}

Asked<QString> NomeConhecidoVendedor(const QString& idvend) {
  return porNumero(
      {u"select pess.nome_conh from pess, vend where pess.idpess = vend.idpess and vend.idvend = ",
       u"NOME_CONH"},
      idvend);
}

Asked<QString> IdTransportadora(const QString& nome_conh) {
  return porTexto(
      {u"select trpt.idtrpt from trpt, pess where pess.idpess = trpt.idpess and pess.nome_conh=", u"idtrpt"},
      nome_conh);
}

Asked<QString> NomeTransportadora(const QString& idtrpt) {
  return porTexto(
      {u"select pess.nome_pess from trpt, pess where pess.idpess = trpt.idpess and trpt.idtrpt = ",
       u"NOME_PESS"},
      idtrpt);
}

Asked<QString> FoneTransportadora(const QString& idtrpt) {
  return porTexto(
      {u"select pess.tele_0001_pess from trpt, pess where pess.idpess = trpt.idpess and trpt.idtrpt = ",
       u"TELE_0001_PESS"},
      idtrpt);
}

Asked<QString> NomeConhecidoTransportadora(const QString& idtrpt) {
  return porNumero(
      {u"select pess.nome_conh from pess, trpt where pess.idpess = trpt.idpess and trpt.idtrpt = ",
       u"NOME_CONH"},
      idtrpt);
}

Asked<QString> FoneTransportadoraPorId(const QString& idtrpt) {
  return porNumero(
      {u"select pess.tele_0001_pess from pess, trpt where pess.idpess = trpt.idpess and trpt.idtrpt = ",
       u"TELE_0001_PESS"},
      idtrpt);
}

Asked<QString> IdFornecedor(const QString& nome_pess) {
  return porTexto(
      {u"select forn.idforn from forn, pess where pess.idpess = forn.idpess and pess.nome_pess=", u"idforn"},
      nome_pess);
}

Asked<QString> NomeFornecedor(const QString& idforn) {
  return porTexto(
      {u"select pess.nome_pess from forn, pess where pess.idpess = forn.idpess and forn.idforn = ",
       u"NOME_PESS"},
      idforn);
}
