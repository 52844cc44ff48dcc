#include "rows.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

QString header(int id, const QString& client, const QString& description) {
  return u"INSERT INTO prop_cmrc (idprop_cmrc, idvend, idclie, idloca_veds, idtipo_mktg, idtipo_even, "
         u"idtipo_serv, "
         "show_excl, data_prop_cmrc, data_even, data_vali, prop_cmrc_desc, nome_clie, fone_clie, "
         "nome_clie_cont, "
         "idresv_prop_cmrc, nume_pess) VALUES (%1, 5, 5, 11, 12, 13, 14, 'E', '20240315 10:30', '20240601 "
         "20:00', "
         "'20240415', '%2', '%3', '(19) 3333-1000', 'Dora', 7, '120')"_s.arg(id)
             .arg(description, client);
}

}  // namespace

QStringList quoteRows(int idQuote, int lines) {
  QStringList sqls{header(idQuote, u"Clara Festas Ltda"_s, u"Lembranças do casamento"_s)};
  for (int line = 1; line <= lines; ++line) {
    const int idLine = idQuote * 10'000 + line;
    sqls
        << u"INSERT INTO prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idmoed, idprodprot, prod_prot, qtde, "
           "valo_unit, valo_dect, valo_liqu, valo_tota, obse_prop_cmrc_deta, data_incl, user_incl) VALUES "
           "(%1, %2, 0, "
           "101, 'PROD', '%3', '18.58', '0', '18.58', '%4', 'Fita na cor da festa', '20240315', 7)"_s
               .arg(idLine)
               .arg(idQuote)
               .arg(line)
               .arg(line * 18.58, 0, 'f', 2);
    for (int material = 1; material <= 5; ++material)
      sqls << u"INSERT INTO PROP_CMRC_DETA_MONTA (idprop_cmrc, idprop_cmrc_deta, idprod, qtde, unid_medi, "
              "qtde_unid_medi, valo_unit, valo_tota, tipo_mate_prima, ordem_mate_prima, "
              "obse_prop_cmrc_deta_monta) "
              "VALUES (%1, %2, %3, '2', 'UN', '1', '3.72', '7.44', '%4', '%5', '')"_s.arg(idQuote)
                  .arg(idLine)
                  .arg(100 + material)
                  .arg(material == 1 ? u"PRODUTO"_s : u"FECHAMENTO"_s)
                  .arg(material == 1 ? 1 : 4);
  }
  return sqls;
}

QStringList quoteHeaders(int firstId, int count) {
  QStringList sqls;
  for (int i = 0; i < count; ++i)
    sqls << header(firstId + i, u"Cliente %1 Festas e Eventos"_s.arg(i % 300),
                   u"Orçamento de lembranças %1"_s.arg(i));
  return sqls;
}

QStringList articleRows(int count) {
  QStringList sqls;
  for (int i = 1; i <= count; ++i)
    sqls << u"INSERT INTO prod (idprod, codi_prod, desc_prod, idunid, valo_veds, idmoed, idmarc, idcole, "
            u"qtde_disp, "
            "qtde_unid, prod_mate_prim, tipo_mate_prima) VALUES (%1, 'ART-%2', 'Artigo de lembrança %3', %4, "
            "'%5', %6, "
            "9, 15, 100, 1, 'P', 'PRODUTO')"_s.arg(10'000 + i)
                .arg(i, 5, 10, QChar(u'0'))
                .arg(i)
                .arg(1 + i % 4)
                .arg(1.0 + i % 90, 0, 'f', 2)
                .arg(1 + i % 2);
  return sqls;
}

QStringList prototypeRows(int count) {
  QStringList sqls;
  for (int i = 1; i <= count; ++i)
    sqls << u"INSERT INTO prot (idprot, desc_prot, obse_prot, valo_veds, idclie, idunid, idcole) VALUES (%1, "
            "'Protótipo %2', '', '%3', 5, %4, 15)"_s.arg(50'000 + i)
                .arg(i)
                .arg(10.0 + i % 50, 0, 'f', 2)
                .arg(1 + i % 4);
  return sqls;
}

}  // namespace bench
