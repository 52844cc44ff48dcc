#include "schema/parts.h"

using namespace Qt::StringLiterals;

namespace schema {

using enum Type;

// Lists of choices, the company, its users and the events that they are notified of.
std::vector<Table> companyTables() {
  return {
      {u"loca_veds"_s,
       {{u"idloca_veds"_s, Key}, {u"desc_loca_veds"_s, Text, 100}, {u"data_desa"_s, DateTime}},
       {{{u"desc_loca_veds"_s}}}},
      {u"tipo_mktg"_s,
       {{u"idtipo_mktg"_s, Key}, {u"desc_tipo_mktg"_s, Text, 100}, {u"data_desa"_s, DateTime}},
       {{{u"desc_tipo_mktg"_s}}}},
      {u"tipo_even"_s,
       {{u"idtipo_even"_s, Key}, {u"desc_tipo_even"_s, Text, 100}, {u"data_desa"_s, DateTime}},
       {{{u"desc_tipo_even"_s}}}},
      {u"tipo_serv"_s,
       {{u"idtipo_serv"_s, Key}, {u"desc_tipo_serv"_s, Text, 100}, {u"data_desa"_s, DateTime}},
       {{{u"desc_tipo_serv"_s}}}},
      {u"cond_pgto"_s,
       {{u"idcond_pgto"_s, Key},
        {u"desc_cond_pgto"_s, Text, 100},
        {u"qtde_parc"_s, Integer},
        {u"data_desa"_s, DateTime}}},
      {u"cond_pgto_deta"_s,
       {{u"idcond_pgto"_s, Integer}, {u"nume_parc"_s, Integer}, {u"qtde_dias"_s, Integer}},
       {{{u"idcond_pgto"_s, u"nume_parc"_s}}}},
      {u"empr"_s,
       {{u"nome_empr"_s, Text, 200},
        {u"nome_conh_empr"_s, Text, 100},
        {u"cnpj_empr"_s, Text, 20},
        {u"ie00_empr"_s, Text, 20},
        {u"ende_coml_empr"_s, Text, 200},
        {u"cida_coml_empr"_s, Text, 100},
        {u"uf00_coml_empr"_s, Text, 2},
        {u"cep0_coml_empr"_s, Text, 10},
        {u"tele_0001_empr"_s, Text, 50},
        {u"tele_0002_empr"_s, Text, 50},
        {u"http_empr"_s, Text, 200},
        {u"emai_empr"_s, Text, 200},
        {u"emai_empr_senh"_s, Text, 100},
        {u"emai_empr_usox"_s, Text, 200},
        {u"emai_orca"_s, Text, 200},
        {u"senh_emai_orca"_s, Text, 100},
        {u"emai_serv"_s, Text, 200},
        {u"data_desa"_s, DateTime}}},
      {u"empr_cnfg"_s, {{u"nome_para"_s, Text, 50}, {u"valo_para"_s, Text, 200}}, {{{u"nome_para"_s}}}},
      {u"usen"_s,
       {{u"idusen"_s, Key}, {u"usen"_s, Text, 50}, {u"emai_user"_s, Text, 200}, {u"data_desa"_s, DateTime}},
       {{{u"usen"_s}}}},
      {u"cor_sist"_s,
       {{u"desc_cor_sist"_s, Text, 50},
        {u"codi_back_0001"_s, Text, 20},
        {u"codi_fore_0001"_s, Text, 20},
        {u"codi_back_0002"_s, Text, 20},
        {u"codi_fore_0002"_s, Text, 20}},
       {{{u"desc_cor_sist"_s}}}},
      {u"work_even"_s,
       {{u"idwork_even"_s, Key},
        {u"codi_work_even"_s, Text, 50},
        {u"desc_work_even"_s, Text, 200},
        {u"text_work_even"_s, Memo}},
       {{{u"codi_work_even"_s}}}},
      {u"work_even_usen"_s,
       {{u"idwork_even"_s, Integer}, {u"idusen"_s, Integer}, {u"data_desa"_s, DateTime}},
       {{{u"idwork_even"_s}}}},
  };
}

}  // namespace schema
