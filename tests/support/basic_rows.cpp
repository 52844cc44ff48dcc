#include <initializer_list>

#include "support/company.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

struct Rows {
  QStringView table;
  QStringView columns;
  std::initializer_list<QStringView> values;
};

// Number 5 salesperson, customer and carrier are persons 1, 2 and 3: an id never happens to be the right one.
const std::initializer_list<Rows> kBasics{
    {u"empr",
     u"nome_empr, nome_conh_empr, cnpj_empr, ie00_empr, ende_coml_empr, cida_coml_empr, uf00_coml_empr, "
     "cep0_coml_empr, tele_0001_empr, tele_0002_empr, http_empr, emai_empr, emai_empr_senh, emai_orca, "
     "senh_emai_orca, emai_serv",
     {u"'Presentes Aurora Ltda', 'Aurora', '11.222.333/0001-81', '110.042.490.114', 'Rua das Flores, 10', "
      "'Campinas', 'SP', '13010-000', '(19) 3200-1000', '(19) 3200-1001', 'www.aurora.example', "
      "'vendas@aurora.example', 'senha-empresa', 'orcamentos@aurora.example', 'senha-orca', "
      "'smtp.aurora.example'"}},
    {u"usen",
     u"idusen, usen, emai_user",
     {u"7, 'MARIA', 'maria@aurora.example'", u"8, 'JOAO', 'joao@aurora.example'"}},
    {u"unid", u"idunid, desc_unid, qtde_deci", {u"1, 'UN', 0", u"2, 'KG', 3", u"3, 'CX', 2", u"4, 'MT', 1"}},
    {u"loca_veds", u"idloca_veds, desc_loca_veds", {u"11, 'Loja Centro'"}},
    {u"tipo_mktg", u"idtipo_mktg, desc_tipo_mktg", {u"12, 'Indicação'"}},
    {u"tipo_even", u"idtipo_even, desc_tipo_even", {u"13, 'Casamento'"}},
    {u"tipo_serv", u"idtipo_serv, desc_tipo_serv", {u"14, 'Lembrança'"}},
    {u"cole", u"idcole, desc_cole", {u"15, 'Primavera'"}},
    {u"pess",
     u"idpess, nome_pess, nome_conh, psfi_psju, cpf0_cnpj, rg00_ie00, ende_coml_pess, bair_coml_pess, "
     "cida_coml_pess, uf00_coml_pess, cep0_coml_pess, tele_0001_pess, tele_0002_pess, fax0_0001_pess, "
     "fax0_0002_pess, emai_pess",
     {u"1, 'Beatriz Vendedora', 'BIA', 'F', '', '', '', '', '', '', '', '', '', '', '', ''",
      u"2, 'Clara Festas Ltda', 'Clara', 'J', '22.333.444/0001-05', '220.100', 'Av. Brasil, 200', 'Centro', "
      "'Campinas', 'SP', '13020-000', '(19) 3333-1000', '', '(19) 3333-1002', '', 'contato@clara.example'",
      u"3, 'Rápido Sul Transportes', 'Rápido Sul', 'J', '', '', '', '', '', '', '', '(11) 4000-0001', '', "
      u"'', '', ''",
      u"4, 'Papéis Norte', 'Norte', 'J', '', '', '', '', '', '', '', '', '', '', '', ''"}},
    {u"pess_cont",
     u"idpess_cont, idpess, nome_pess_cont, tele_pess_cont, emai_pess_cont",
     {u"21, 2, 'Dora', '(19) 99999-0001', 'dora@clara.example'"}},
    {u"clie", u"idclie, idpess", {u"5, 2"}},
    {u"clie_cont",
     u"idclie_cont, idclie, nome_clie_cont, tele_clie_cont, emai_clie_cont",
     {u"22, 5, 'Dora', '(19) 99999-0001', 'dora@clara.example'"}},
    {u"vend", u"idvend, idpess, nome_conh", {u"5, 1, 'BIA'"}},
    {u"trpt", u"idtrpt, idpess", {u"5, 3"}},
    {u"forn", u"idforn, idpess", {u"5, 4"}},
    {u"clas_fisc", u"idclas_fisc, codi_comt", {u"31, '4819.10.00'"}},
    {u"camb", u"idmoed, data_camb, valo_camb", {u"2, '20240101', '4.5'", u"2, '20240301', '5.2'"}},
    {u"prod",
     u"idprod, codi_prod, desc_prod, idunid, valo_veds, idmoed, idmarc, idclas_fisc, idcole, qtde_disp, "
     u"qtde_unid, "
     "prod_mate_prim, tipo_mate_prima",
     {u"101, 'CX-100', 'Caixa branca', 1, '12.5', 1, 9, 31, 15, 40, 1, 'P', 'PRODUTO'",
      u"102, 'BOM-1', 'Bombom', 1, '2', 2, 9, 31, 15, 500, 1, 'M', 'CONTEÚDO COMESTÍVEL'",
      u"103, 'VELA', 'Vela aromática', 1, '3.4', 1, 9, 31, 15, 80, 1, 'M', 'CONTEÚDO NÃO COMESTÍVEL'",
      u"104, 'FITA', 'Fita de cetim', 4, '0.75', 1, 9, 31, 15, 900, 1, 'M', 'FECHAMENTO'",
      u"105, 'CARD-A', 'Cartão impresso', 1, '1.1', 1, 9, 31, 15, 700, 1, 'M', 'CARD'",
      u"106, 'FLOR', 'Flor seca', 1, '0.333', 1, 9, 31, 15, 60, 1, 'M', 'ADEREÇO'",
      u"107, 'SAL', 'Sal de banho', 2, '18', 1, 9, 31, 15, 25, 1, 'M', 'OUTROS'"}},
    {u"prot",
     u"idprot, desc_prot, obse_prot, valo_veds, idclie, idunid, idcole",
     {u"201, 'Caixa lembrança', 'Tampa com relevo', '35', 5, 1, 15",
      u"202, 'Lata dourada', 'Sem fita', '22.9', 5, 3, 15"}},
    {u"cond_pgto",
     u"idcond_pgto, desc_cond_pgto, qtde_parc",
     {u"41, '30/60/90 dias', 3", u"42, 'À vista', 1"}},
    {u"cond_pgto_deta",
     u"idcond_pgto, nume_parc, qtde_dias",
     {u"41, 2, 60", u"41, 1, 30", u"41, 3, 90", u"42, 1, 0"}},
};

}  // namespace

void fillBasics(const QString& databasePath) {
  data::Connection connection = connectionTo(databasePath);
  connection.begin();
  for (const Rows& rows : kBasics)
    for (const QStringView values : rows.values)
      connection.execute(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(rows.table, rows.columns, values));
  connection.commit();
}

}  // namespace support
