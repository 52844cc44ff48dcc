#pragma once

#include "screens/screen_case.h"

using namespace Qt::StringLiterals;

/// The quote screen.
class QuoteCase : public ScreenCase {
 protected:
  /// Starts the program's screen; the statements of the start are forgotten.
  frmPropCmrcTL& start() {
    screen = &forms::form<frmPropCmrcTL>();
    screen->showForm();
    support::settle();
    static_cast<void>(statements());
    return *screen;
  }

  /// A stored quote: header fields as "column='value', …" on top of a header with every field.
  void store(int id, const QString& changes = {}) {
    const auto insert = [&](const QString& into) {
      sql(u"INSERT INTO prop_cmrc"_s + QString(into).replace(u"%1"_s, QString::number(id)));
    };
    insert(
        u" (idprop_cmrc, idvend, idclie, idclie_cont, idloca_veds, idtipo_mktg, idtipo_even, idtipo_serv, "
        "show_excl, data_prop_cmrc, data_even, data_vali, data_entg, prop_cmrc_desc, nome_clie, fone_clie, "
        "emai_clie, nome_clie_cont, fone_clie_cont, emai_clie_cont, idresv_prop_cmrc, nume_pess, "
        "obse_prop_cmrc, txt_cond_pgto, valo_dect, perc_dect, obse_pedi_veds, idtrpt, data_base, "
        "idcond_pgto, user_incl) VALUES (%1, 5, 5, 22, 11, 12, 13, 14, 'S', '20240301 09:15', '20240420', "
        "'20240331', '20240415', 'Bodas', 'Clara Festas Ltda', '3333', 'c@x', 'Dora', '9999', 'd@x', 7, "
        "'80', 'Com fita', 'À vista', '1.5', '2', 'Cuidado', 5, '20240310', 41, 8)"_s);
    insert(
        u"_deta (valo_dect, idprop_cmrc_deta, idprop_cmrc, idprodprot, prod_prot, qtde, valo_unit, "
        "valo_liqu, valo_tota, data_aprov, obse_prop_cmrc_deta) VALUES "
        "(0, %11, %1, 101, 'PROD', '3', '19.25', '19.25', '57.75', '20240302 14:05', 'Azul'), "
        "(0, %12, %1, 202, 'PROT', '2.5', '22.9', '22.9', '57.25', null, null)"_s);
    insert(
        u"_deta_monta (idprop_cmrc, idprop_cmrc_deta, qtde, unid_medi, qtde_unid_medi, valo_unit, "
        "valo_tota, obse_prop_cmrc_deta_monta, idprod, tipo_mate_prima, ordem_mate_prima) VALUES "
        "(%1, %11, '1.5', 'UN', '1', '12.5', '18.75', 'obs', 101, 'PRODUTO', 1), "
        "(%1, %11, '1.5', 'UN', '1', '12.5', '18.75', 'obs', 104, 'FECHAMENTO', 4)"_s);
    insert(u"_homg (idprop_cmrc, nome_homg) VALUES (%1, 'Ana')"_s);
    if (!changes.isEmpty()) sql(u"UPDATE prop_cmrc SET "_s + changes + u" WHERE idprop_cmrc = %1"_s.arg(id));
  }

  void load(int id) {
    support::type(screen->txtCodigo, QString::number(id));
    support::click(screen->cmdPesquisar_PropCmrc);
  }

  /// Cells separated by ";".
  void addItem(QString cells) { screen->Flex->grid().addItem(cells.replace(u';', u'\t')); }
  void addMaterial(const QString& id, const QString& type, const QString& link) {
    screen->FlexMonta.addItem(u"%1\tC%1\tD\t1,5\tUN\t1\t12,50\t18,75\t%2\tobs\t1\t%3"_s.arg(id, type, link));
  }

  /// Statements since the last call, without the reads; those of identities stay.
  QStringList writes() {
    QStringList kept;
    for (const QString& statement : statements())
      if (!statement.startsWith(u"SELECT", Qt::CaseInsensitive) || statement.contains(u"@@"))
        kept << statement;
    return kept;
  }

  frmPropCmrcTL* screen = nullptr;
};
