#include "schema/parts.h"

namespace schema {

using enum Type;

std::vector<Table> catalogueTables() {
  return {
      {"prod",
       {{"idprod", Key},
        {"codi_prod", Text, 30},
        {"desc_prod", Text, 200},
        {"idunid", Integer},
        {"valo_veds", Decimal},
        {"idmoed", Integer},
        {"idmarc", Integer},
        {"idclas_fisc", Integer},
        {"idcole", Integer},
        {"qtde_disp", Decimal},
        {"qtde_unid", Decimal},
        {"prod_mate_prim", Text, 1},
        {"tipo_mate_prima", Text, 50},
        {"data_desa", DateTime},
        {"data_limi_prom", DateTime},
        {"perc_dect", Decimal}},
       {{{"codi_prod"}}, {{"prod_mate_prim", "tipo_mate_prima", "codi_prod"}}}},
      {"prod_kit0",
       {{"idprod", Integer}, {"idprod_kit0", Integer}, {"qtde_prod", Decimal}, {"data_desa", DateTime}},
       {{{"idprod"}}}},
      {"prot",
       {{"idprot", Key},
        {"desc_prot", Text, 200},
        {"obse_prot", Text, 1000},
        {"valo_veds", Decimal},
        {"idclie", Integer},
        {"idunid", Integer},
        {"idcole", Integer},
        {"idprod", Integer},
        {"data_desa", DateTime},
        {"data_inut", DateTime},
        {"data_limi_prom", DateTime},
        {"perc_dect", Decimal},
        {"prop_cmrc_aprv", Integer},
        {"data_aprv", DateTime}},
       {{{"idclie"}}, {{"idcole"}}}},
      {"prot_kit0",
       {{"idprot", Integer},
        {"idprod", Integer},
        {"desc_nprod", Text, 200},
        {"idunid_nprod", Integer},
        {"qtde", Decimal},
        {"qtde_prod", Decimal},
        {"data_desa", DateTime}},
       {{{"idprot"}}}},
      {"unid", {{"idunid", Key}, {"desc_unid", Text, 50}, {"qtde_deci", Integer}}, {{{"desc_unid"}}}},
      {"cole", {{"idcole", Key}, {"desc_cole", Text, 100}, {"data_desa", DateTime}}, {{{"desc_cole"}}}},
      {"camb",
       {{"idmoed", Integer}, {"data_camb", DateTime}, {"valo_camb", Decimal}, {"data_desa", DateTime}},
       {{{"idmoed", "data_camb"}}}},
      {"clas_fisc", {{"idclas_fisc", Key}, {"codi_comt", Text, 20}}},
  };
}

}  // namespace schema
