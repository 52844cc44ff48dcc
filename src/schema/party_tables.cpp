#include "schema/parts.h"

namespace schema {

using enum Type;

std::vector<Table> partyTables() {
  return {
      {"pess",
       {{"idpess", Key},
        {"nome_pess", Text, 200},
        {"nome_conh", Text, 100},
        {"psfi_psju", Text, 2},
        {"cpf0_cnpj", Text, 20},
        {"rg00_ie00", Text, 20},
        {"ende_coml_pess", Text, 200},
        {"bair_coml_pess", Text, 100},
        {"cida_coml_pess", Text, 100},
        {"uf00_coml_pess", Text, 2},
        {"cep0_coml_pess", Text, 10},
        {"ende_cobr_pess", Text, 200},
        {"bair_cobr_pess", Text, 100},
        {"cida_cobr_pess", Text, 100},
        {"uf00_cobr_pess", Text, 2},
        {"cep0_cobr_pess", Text, 10},
        {"ende_entg_pess", Text, 200},
        {"bair_entg_pess", Text, 100},
        {"cida_entg_pess", Text, 100},
        {"uf00_entg_pess", Text, 2},
        {"cep0_entg_pess", Text, 10},
        {"tele_0001_pess", Text, 50},
        {"tele_0002_pess", Text, 50},
        {"fax0_0001_pess", Text, 50},
        {"fax0_0002_pess", Text, 50},
        {"emai_pess", Text, 200},
        {"data_desa", DateTime}},
       {{{"nome_pess"}}, {{"nome_conh"}}}},
      {"pess_cont",
       {{"idpess_cont", Key},
        {"idpess", Integer},
        {"nome_pess_cont", Text, 200},
        {"tele_pess_cont", Text, 50},
        {"emai_pess_cont", Text, 200}},
       {{{"idpess"}}}},
      {"clie", {{"idclie", Key}, {"idpess", Integer}, {"data_desa", DateTime}}, {{{"idpess"}}}},
      {"clie_cont",
       {{"idclie_cont", Key},
        {"idclie", Integer},
        {"nome_clie_cont", Text, 200},
        {"tele_clie_cont", Text, 50},
        {"emai_clie_cont", Text, 200}},
       {{{"idclie"}}}},
      {"cliente", {{"idclie", Key}, {"idvendedor", Integer}, {"idtransp", Integer}}},
      {"vend",
       {{"idvend", Key}, {"idpess", Integer}, {"nome_conh", Text, 100}, {"data_desa", DateTime}},
       {{{"idpess"}}}},
      {"deco", {{"idpess", Integer}}, {{{"idpess"}}}},
      {"trpt", {{"idtrpt", Key}, {"idpess", Integer}, {"data_desa", DateTime}}, {{{"idpess"}}}},
      {"forn", {{"idforn", Key}, {"idpess", Integer}}, {{{"idpess"}}}},
  };
}

}  // namespace schema
