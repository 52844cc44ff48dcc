#include "quote_case.h"

using namespace Qt::StringLiterals;

QuoteCase::QuoteCase() {
  support::fillBasics(databasePath());
  contexto().LinhaComando = u"7^0^PRD^"_s;
  clock(u"15/03/2024 10:30"_s);
}

frmPropCmrcTL& QuoteCase::start() {
  screen = &forms::form<frmPropCmrcTL>();
  screen->showForm();
  support::settle();
  static_cast<void>(statements());
  return *screen;
}

void QuoteCase::store(int id, const QString& changes) {
  const QString quote = QString::number(id);
  sql(u"INSERT INTO prop_cmrc (idprop_cmrc, idvend, idclie, idclie_cont, idloca_veds, idtipo_mktg, "
      "idtipo_even, idtipo_serv, show_excl, data_prop_cmrc, data_even, data_vali, data_entg, prop_cmrc_desc, "
      "nome_clie, fone_clie, emai_clie, nome_clie_cont, fone_clie_cont, emai_clie_cont, idresv_prop_cmrc, "
      "nume_pess, obse_prop_cmrc, txt_cond_pgto, valo_dect, perc_dect, obse_pedi_veds, idtrpt, data_base, "
      "idcond_pgto, user_incl) VALUES (%1, 5, 5, 22, 11, 12, 13, 14, 'S', '20240301 09:15', '20240420', "
      "'20240331', '20240415', 'Bodas', 'Clara Festas Ltda', '3333', 'c@x', 'Dora', '9999', 'd@x', 7, '80', "
      "'Com fita', 'À vista', '1.5', '2', 'Cuidado', 5, '20240310', 41, 8)"_s.arg(quote));
  if (!changes.isEmpty()) sql(u"UPDATE prop_cmrc SET %1 WHERE idprop_cmrc = %2"_s.arg(changes, quote));
  for (const auto& item : {u"1, %1, 101, 'PROD', '3', '19.25', '19.25', '57.75', '20240302 14:05', 'Azul'"_s,
                           u"2, %1, 202, 'PROT', '2.5', '22.9', '22.9', '57.25', null, null"_s})
    sql(u"INSERT INTO prop_cmrc_deta (valo_dect, idprop_cmrc_deta, idprop_cmrc, idprodprot, prod_prot, qtde, "
        "valo_unit, valo_liqu, valo_tota, data_aprov, obse_prop_cmrc_deta) VALUES (0, %1"_s.arg(quote) +
        item.arg(quote) + u')');
  for (const auto& material : {u"101, 'PRODUTO', 1"_s, u"104, 'FECHAMENTO', 4"_s})
    sql(u"INSERT INTO prop_cmrc_deta_monta (idprop_cmrc, idprop_cmrc_deta, qtde, unid_medi, qtde_unid_medi, "
        "valo_unit, valo_tota, obse_prop_cmrc_deta_monta, idprod, tipo_mate_prima, ordem_mate_prima) VALUES "
        "(%1, %11, '1.5', 'UN', '1', '12.5', '18.75', 'obs', "_s.replace(u"%1"_s, quote) +
        material + u')');
  sql(u"INSERT INTO prop_cmrc_homg (idprop_cmrc, nome_homg) VALUES (%1, 'Ana')"_s.arg(quote));
}

void QuoteCase::load(int id) {
  support::type(screen->txtCodigo, QString::number(id));
  support::click(screen->cmdPesquisar_PropCmrc);
}

void QuoteCase::fillNew() {
  support::click(screen->cmdINCLUIR);
  const QString fields =
      u"cboVendedor=BIA|cboCliente=Clara Festas Ltda|cboClienteContato=Dora|cboLocalVenda=Loja Centro|"
      "cboTipoMktg=Indicação|cboTipoEven=Casamento|cboTipoServ=Lembrança|cboRespAtendimento=MARIA|"
      "mskDataEven=20/04/2024|mskDtValidade=31/03/2024|mskDtEntrega=15/04/2024|txtDesc= Bodas de prata |"
      "txtFoneExtra=(19) 3333,1|txtEmailExtra=c@x|txtFoneExtraContato=9999|txtEmailExtraContato=d@x|"
      "txtNumePess=80|txtObserva=Fita azul\nLaço|txtCondPagto=À vista"_s;
  for (const QString& field : fields.split(u'|'))
    forms::writeControl(u"frmPropCmrcTL"_s, field.section(u'=', 0, 0), field.section(u'=', 1));
  addItem(u"101;PROD;CX-100;Caixa branca;19,25;0,00;19,25;3;57,75;;UN; Azul "_s);
  addItem(u"202;PROT;202;Lata dourada;22,90;0,00;22,90;2,50;57,25;14/03/2024 16:20"_s);
  addMaterial(u"101"_s, u"PRODUTO"_s, u"1"_s);
  addMaterial(u"106"_s, u"ADEREÇO"_s, u"1"_s);
  screen->FlexHomg->grid().addItem(u"\tana lúcia\t"_s);
}

void QuoteCase::addItem(QString cells) { screen->Flex->grid().addItem(cells.replace(u';', u'\t')); }

void QuoteCase::addMaterial(const QString& id, const QString& type, const QString& link) {
  screen->FlexMonta.addItem(u"%1\tC%1\tD\t1,5\tUN\t1\t12,50\t18,75\t%2\tobs\t1\t%3"_s.arg(id, type, link));
}

void QuoteCase::expectShown(const forms::Form& form, const QString& fields) {
  for (const QString& field : fields.split(u'|')) {
    const auto* control = form.findChild<QObject*>(field.section(u'=', 0, 0));
    EXPECT_EQ(forms::controlText(control), field.section(u'=', 1)) << field.toStdString();
  }
}

QString QuoteCase::cells(const forms::GridModel& grid, int row) {
  QStringList texts;
  for (int i = 0; i < grid.cols(); ++i) texts << grid.text(row, i);
  return texts.join(u';');
}

QString QuoteCase::column(const forms::GridModel& grid, int column) {
  QStringList texts;
  for (int row = 1; row < grid.rows(); ++row) texts << grid.text(row, column);
  return texts.join(u';');
}

QStringList QuoteCase::writes() {
  QStringList kept;
  for (const QString& statement : statements())
    if (!statement.startsWith(u"SELECT", Qt::CaseInsensitive) || statement.contains(u"@@")) kept << statement;
  return kept;
}
