#include "run/context.h"
#include "support/company.h"

using namespace Qt::StringLiterals;

namespace {

using Schema = support::Company;

/// What a lookup of one row reads must be found by an index, not by reading the whole table.
TEST_F(Schema, LookupsAndChildrenOfAQuoteAreFoundByIndex) {
  for (const auto& sql :
       {u"SELECT CODI_PROD FROM PROD WHERE IDPROD = 5"_s, u"SELECT IDPROD FROM PROD WHERE CODI_PROD='A'"_s,
        u"SELECT QTDE_DECI FROM UNID WHERE DESC_UNID='UN'"_s,
        u"SELECT VALO_CAMB FROM CAMB WHERE IDMOED =2 AND DATA_DESA IS NULL ORDER BY DATA_CAMB DESC"_s,
        u"SELECT CLIE.IDCLIE FROM CLIE, PESS WHERE PESS.IDPESS = CLIE.IDPESS AND PESS.NOME_PESS='X'"_s,
        u"SELECT VEND.IDVEND FROM VEND, PESS WHERE PESS.IDPESS = VEND.IDPESS AND PESS.NOME_CONH='X'"_s,
        u"SELECT * FROM PROP_CMRC_DETA_MONTA WHERE IDPROP_CMRC = '1' AND IDPROP_CMRC_DETA = '2'"_s,
        u"SELECT * FROM PROP_CMRC_DETA WHERE IDPROP_CMRC = '1'"_s,
        u"SELECT * FROM COND_PGTO_DETA WHERE IDCOND_PGTO = 1 ORDER BY NUME_PARC"_s,
        u"SELECT NUME_PEDI FROM PEDI_VEDS WHERE IDPROP_CMRC = '1'"_s,
        u"SELECT * FROM EMPR_CNFG WHERE NOME_PARA='COR_PADRAO'"_s}) {
    for (auto rs = contexto().Conexao.query(u"EXPLAIN QUERY PLAN "_s + sql); !rs.eof(); rs.moveNext()) {
      EXPECT_FALSE(rs.text(u"detail").startsWith(u"SCAN"_s)) << sql.toStdString();
      EXPECT_FALSE(rs.text(u"detail").contains(u"TEMP B-TREE"_s)) << sql.toStdString();
    }
  }
}

}  // namespace
