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
  sql(u"INSERT INTO prop_cmrc (idprop_cmrc, idvend, idclie, idclie_cont, idloca_veds, idtipo_mktg, "
      u"idtipo_even, "
      "idtipo_serv, show_excl, data_prop_cmrc, data_even, data_vali, data_entg, prop_cmrc_desc, nome_clie, "
      "fone_clie, emai_clie, nome_clie_cont, fone_clie_cont, emai_clie_cont, idresv_prop_cmrc, nume_pess, "
      "obse_prop_cmrc, txt_cond_pgto, valo_dect, perc_dect, obse_pedi_veds, idtrpt, data_base, idcond_pgto, "
      "data_incl, user_incl) VALUES (%1, 5, 5, 22, 11, 12, 13, 14, 'S', '20240301 09:15', '20240420', "
      "'20240331', '20240415', 'Bodas', 'Clara Festas Ltda', '3333', 'c@x', 'Dora', '9999', 'd@x', 7, '80', "
      "'Com fita', 'À vista', '1.5', '2', 'Cuidado', 5, '20240310', 41, '20240301', 8)"_s.arg(id));
  if (!changes.isEmpty()) sql(u"UPDATE prop_cmrc SET %1 WHERE idprop_cmrc = %2"_s.arg(changes).arg(id));
  sql(u"INSERT INTO prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idmoed, idprodprot, prod_prot, qtde, "
      u"valo_unit, "
      "valo_dect, valo_liqu, valo_tota, data_aprov, obse_prop_cmrc_deta, data_incl, user_incl) VALUES "
      "(%1, %2, 0, 101, 'PROD', '3', '19.25', '0', '19.25', '57.75', '20240302 14:05', 'Azul', '20240301', 8)"_s
          .arg(id * 10 + 1)
          .arg(id));
  sql(u"INSERT INTO prop_cmrc_deta (idprop_cmrc_deta, idprop_cmrc, idmoed, idprodprot, prod_prot, qtde, "
      u"valo_unit, "
      "valo_dect, valo_liqu, valo_tota, data_incl, user_incl) VALUES "
      "(%1, %2, 0, 202, 'PROT', '2.5', '22.9', '0', '22.9', '57.25', '20240301', 8)"_s.arg(id * 10 + 2)
          .arg(id));
  for (const auto& [product, type, order] : {std::tuple{101, u"PRODUTO", 1}, {104, u"FECHAMENTO", 4}})
    sql(u"INSERT INTO prop_cmrc_deta_monta (idprop_cmrc, idprop_cmrc_deta, idprod, qtde, unid_medi, "
        u"qtde_unid_medi, "
        "valo_unit, valo_tota, tipo_mate_prima, obse_prop_cmrc_deta_monta, ordem_mate_prima, data_incl, "
        "user_incl) "
        "VALUES (%1, %2, %3, '1.5', 'UN', '1', '12.5', '18.75', '%4', 'obs', %5, '20240301', 8)"_s.arg(id)
            .arg(id * 10 + 1)
            .arg(product)
            .arg(QStringView(type))
            .arg(order));
  sql(u"INSERT INTO prop_cmrc_homg (idprop_cmrc, nome_homg, data_incl, user_incl) VALUES (%1, 'Ana', '20240301', 8)"_s
          .arg(id));
}

void QuoteCase::load(int id) {
  support::type(screen->txtCodigo, QString::number(id));
  support::click(screen->cmdPesquisar_PropCmrc);
}

void QuoteCase::fillNew() {
  support::click(screen->cmdINCLUIR);
  const std::pair<QObject*, QString> fields[] = {
      {screen->cboVendedor, u"BIA"_s},          {screen->cboCliente, u"Clara Festas Ltda"_s},
      {screen->cboClienteContato, u"Dora"_s},   {screen->cboLocalVenda, u"Loja Centro"_s},
      {screen->cboTipoMktg, u"Indicação"_s},    {screen->cboTipoEven, u"Casamento"_s},
      {screen->cboTipoServ, u"Lembrança"_s},    {screen->cboRespAtendimento, u"MARIA"_s},
      {screen->mskDataEven, u"20/04/2024"_s},   {screen->mskDtValidade, u"31/03/2024"_s},
      {screen->mskDtEntrega, u"15/04/2024"_s},  {screen->txtDesc, u" Bodas de prata "_s},
      {screen->txtFoneExtra, u"(19) 3333,1"_s}, {screen->txtEmailExtra, u"c@x"_s},
      {screen->txtFoneExtraContato, u"9999"_s}, {screen->txtEmailExtraContato, u"d@x"_s},
      {screen->txtNumePess, u"80"_s},           {screen->txtObserva, u"Fita azul\nLaço"_s},
      {screen->txtCondPagto, u"À vista"_s}};
  for (const auto& [field, text] : fields) forms::setControlText(field, text);
  addItem({u"101"_s,
           u"PROD"_s,
           u"CX-100"_s,
           u"Caixa branca"_s,
           u"19,25"_s,
           u"0,00"_s,
           u"19,25"_s,
           u"3"_s,
           u"57,75"_s,
           {},
           u"UN"_s,
           u" Azul "_s});
  addItem({u"202"_s,
           u"PROT"_s,
           u"202"_s,
           u"Lata dourada"_s,
           u"22,90"_s,
           u"0,00"_s,
           u"22,90"_s,
           u"2,50"_s,
           u"57,25"_s,
           u"14/03/2024 16:20"_s,
           {},
           {}});
  addMaterial(u"101"_s, u"PRODUTO"_s, u"1"_s);
  addMaterial(u"106"_s, u"ADEREÇO"_s, u"1"_s);
  screen->FlexHomg->grid().addItem(u"\tana lúcia\t"_s);
}

void QuoteCase::addItem(const QStringList& cells) { screen->Flex->grid().addItem(cells.join(u'\t')); }

void QuoteCase::addMaterial(const QString& id, const QString& type, const QString& link) {
  screen->FlexMonta.addItem(QStringList{id, u"C"_s + id, u"D"_s, u"1,5"_s, u"UN"_s, u"1"_s, u"12,50"_s,
                                        u"18,75"_s, type, u"obs"_s, u"1"_s, link}
                                .join(u'\t'));
}

QStringList QuoteCase::cells(const forms::GridModel& grid, int row) {
  QStringList texts;
  for (int i = 0; i < grid.cols(); ++i) texts << grid.text(row, i);
  return texts;
}

QStringList QuoteCase::column(const forms::GridModel& grid, int column) {
  QStringList texts;
  for (int row = 1; row < grid.rows(); ++row) texts << grid.text(row, column);
  return texts;
}

QStringList QuoteCase::writes() {
  QStringList kept;
  for (const QString& statement : statements())
    if (!statement.startsWith(u"SELECT", Qt::CaseInsensitive) || statement.contains(u"@@")) kept << statement;
  return kept;
}
