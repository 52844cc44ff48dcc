#pragma once

#include "documents/document_values.h"
#include "documents/documents.h"
#include "platform/files/contents.h"
#include "screens/screen_case.h"
#include "shared/lookups.h"

using namespace Qt::StringLiterals;

/// Quotes 123 (open: an assembled product and a prototype), 124 (closed, one line of two approved), 125
/// (closed, none approved) and 126 (no lines), order 300, and the purchases 71 and 72.
class Quotes : public ScreenCase {
 protected:
  Quotes() {
    reiniciaDocumento();
    sql(u"UPDATE empr SET emai_empr_usox = 'USO@Aurora.example '"_s);
    sql(u"INSERT INTO prop_cmrc (idprop_cmrc, idclie, data_prop_cmrc, fone_clie, emai_clie, nome_clie_cont, "
        "fone_clie_cont, emai_clie_cont, idresv_prop_cmrc, idtipo_even, idtipo_serv, data_even, data_entg, "
        "data_vali, nume_pess, obse_prop_cmrc) VALUES (123, 5, '20240305 10:30', '(19) 3333-1000', "
        "'Contato@Clara.example', 'Dora', '(19) 99999-0001', 'dora@clara.example', 7, 13, 14, "
        "'20240615 20:00', '20240610', '20240405', '80', 'Entregar cedo')"_s);
    sql(u"INSERT INTO prop_cmrc (idprop_cmrc, idclie, data_prop_cmrc, idresv_prop_cmrc, data_fech, "
        "idcond_pgto, valo_dect, txt_cond_pgto) VALUES "
        "(124, 5, '20240306', 7, '20240310', 41, 10.5, 'texto do vendedor'), "
        "(125, 5, '20240306', 7, '20240310', 41, 0, null), "
        "(126, 5, '20240306', 7, null, null, null, 'combinar com Dora')"_s);
    sql(u"INSERT INTO prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idprodprot, prod_prot, qtde, valo_dect, "
        "valo_liqu, valo_tota, data_aprov, obse_prop_cmrc_deta, data_imed, qtde_imed) VALUES "
        "(1, 123, 101, 'PROD', 100, 0.5, 12.5, 1250, null, 'Fita João → azul', '20240501', 60), "
        "(2, 123, 202, 'prot', 2.5, null, 22.9, 57.25, null, '', null, null), "
        "(3, 124, 101, 'PROD', 10, 0, 12.5, 125, '20240309 15:00', null, null, null), "
        "(4, 124, 103, 'PROD', 7, 0, 3.4, 23.8, null, null, null, null), "
        "(5, 125, 103, 'PROD', 7, 0, 3.4, 23.8, null, null, null, null)"_s);
    sql(u"INSERT INTO prop_cmrc_deta_monta (idprop_cmrc, idprop_cmrc_deta, idprod, qtde, tipo_mate_prima, "
        "obse_prop_cmrc_deta_monta) VALUES (123, 1, 101, 1, 'PRODUTO', null), "
        "(123, 1, 104, 1.5, 'FECHAMENTO', ''), (123, 1, 999, 2, 'OUTROS', 'sem cadastro')"_s);
    sql(u"INSERT INTO prot_kit0 (idprot, idprod, desc_nprod, idunid_nprod, qtde_prod) VALUES "
        "(202, 106, null, null, 3), (202, 0, 'Areia colorida', 2, 0.25), (202, 102, null, null, 12)"_s);
  }
  ~Quotes() override { reiniciaDocumento(); }

  /// What the print screen does before the viewer opens.
  void print(qint32 id) {
    documento().TipoDocumento = u"ORCA_VENDAS"_s;
    documento().IdDocumento = id;
    documento().ExibeComposicao = true;
    documento().ExibeMontagem = true;
    documento().OrdemComposicao = u"NATURAL"_s;
    documento().rsImpressao =
        abreConsulta(u"SELECT * FROM prop_cmrc WHERE idprop_cmrc='"_s + QString::number(id) + u'\'');
  }
  void parameter(const QString& name, const QString& value) {
    sql(u"DELETE FROM empr_cnfg WHERE nome_para = '%1'"_s.arg(name));
    sql(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('%1', '%2')"_s.arg(name, value));
  }
  /// Writes the document again.
  static void build(void (*routine)(qint32, const QString&), qint32 id) {
    files::removeIfThere(document());
    routine(id, document());
  }
  [[nodiscard]] static QString document() { return contexto().PathDocs + u"teste.html"_s; }
  /// The document as text, its line ends as line feeds; every one of them must be CR LF.
  [[nodiscard]] static QString written() {
    QString text = QString::fromLatin1(files::readAll(document()));
    const auto ends = text.count(u'\n');
    EXPECT_EQ(text.count(u"\r\n"_s), ends);
    return text.replace(u"\r\n"_s, u"\n"_s);
  }
  /// Texts, "a|b", must follow each other.
  static void expectInOrder(const QString& expected, const QString& text = written()) {
    qsizetype from = 0;
    for (const QString& one : expected.split(u'|', Qt::SkipEmptyParts)) {
      const qsizetype at = text.indexOf(one, from);
      ASSERT_GE(at, 0) << one.toStdString() << " in " << text.toStdString();
      from = at + one.size();
    }
  }
};
