#include "schema/parts.h"

using namespace Qt::StringLiterals;

namespace schema {

using enum Type;

std::vector<Table> partyTables() {
  return {
      {u"pess"_s,
       {{u"idpess"_s, Key},
        {u"nome_pess"_s, Text, 200},
        {u"nome_conh"_s, Text, 100},
        {u"psfi_psju"_s, Text, 2},
        {u"cpf0_cnpj"_s, Text, 20},
        {u"rg00_ie00"_s, Text, 20},
        {u"ende_coml_pess"_s, Text, 200},
        {u"bair_coml_pess"_s, Text, 100},
        {u"cida_coml_pess"_s, Text, 100},
        {u"uf00_coml_pess"_s, Text, 2},
        {u"cep0_coml_pess"_s, Text, 10},
        {u"ende_cobr_pess"_s, Text, 200},
        {u"bair_cobr_pess"_s, Text, 100},
        {u"cida_cobr_pess"_s, Text, 100},
        {u"uf00_cobr_pess"_s, Text, 2},
        {u"cep0_cobr_pess"_s, Text, 10},
        {u"ende_entg_pess"_s, Text, 200},
        {u"bair_entg_pess"_s, Text, 100},
        {u"cida_entg_pess"_s, Text, 100},
        {u"uf00_entg_pess"_s, Text, 2},
        {u"cep0_entg_pess"_s, Text, 10},
        {u"tele_0001_pess"_s, Text, 50},
        {u"tele_0002_pess"_s, Text, 50},
        {u"fax0_0001_pess"_s, Text, 50},
        {u"fax0_0002_pess"_s, Text, 50},
        {u"emai_pess"_s, Text, 200},
        {u"data_desa"_s, DateTime}},
       {{{u"nome_pess"_s}}, {{u"nome_conh"_s}}}},
      {u"pess_cont"_s,
       {{u"idpess_cont"_s, Key},
        {u"idpess"_s, Integer},
        {u"nome_pess_cont"_s, Text, 200},
        {u"tele_pess_cont"_s, Text, 50},
        {u"emai_pess_cont"_s, Text, 200}},
       {{{u"idpess"_s}}}},
      {u"clie"_s,
       {{u"idclie"_s, Key}, {u"idpess"_s, Integer}, {u"data_desa"_s, DateTime}},
       {{{u"idpess"_s}}}},
      {u"clie_cont"_s,
       {{u"idclie_cont"_s, Key},
        {u"idclie"_s, Integer},
        {u"nome_clie_cont"_s, Text, 200},
        {u"tele_clie_cont"_s, Text, 50},
        {u"emai_clie_cont"_s, Text, 200}},
       {{{u"idclie"_s}}}},
      {u"cliente"_s, {{u"idclie"_s, Key}, {u"idvendedor"_s, Integer}, {u"idtransp"_s, Integer}}},
      {u"vend"_s,
       {{u"idvend"_s, Key}, {u"idpess"_s, Integer}, {u"nome_conh"_s, Text, 100}, {u"data_desa"_s, DateTime}},
       {{{u"idpess"_s}}}},
      {u"deco"_s, {{u"idpess"_s, Integer}}, {{{u"idpess"_s}}}},
      {u"trpt"_s,
       {{u"idtrpt"_s, Key}, {u"idpess"_s, Integer}, {u"data_desa"_s, DateTime}},
       {{{u"idpess"_s}}}},
      {u"forn"_s, {{u"idforn"_s, Key}, {u"idpess"_s, Integer}}, {{{u"idpess"_s}}}},
  };
}

}  // namespace schema
