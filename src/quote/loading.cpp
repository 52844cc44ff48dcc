#include "quote/default_terms.h"
#include "quote/frmPropCmrcTL.h"
#include "shared/lookups.h"
#include "shared/screen_kit.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;
using forms::RowBuilder;

// A stored quote on the screen: header, items with their materials, honorees.

void frmPropCmrcTL::CarregaOrcamento() {
  const forms::WaitPointer espera;
  data::Recordset rs =
      AbreConsulta(u"SELECT * FROM PROP_CMRC WHERE PROP_CMRC.IDPROP_CMRC = '"_s + txtCodigo->text() + u"'"_s);
  if (rs.eof()) return Falha(u"Há Problemas Neste Registro!"_s);
  LimpaTela();
  carregaCabecalho(rs);
  idCarregado_ = txtRowId->text();
  carregaConfirmacao(rs);
  rs.close();
  carregaItens();
  carregaHomenageados();
  MostraSituacao();
}

void frmPropCmrcTL::carregaCabecalho(const data::Recordset& rs) {
  const auto texto = [&rs](QStringView coluna, QObject* campo) {
    if (!rs.isNull(coluna)) forms::setControlText(campo, rs.text(coluna));
  };
  const auto nome = [&rs](QStringView coluna, forms::Combo* combo,
                          Asked<QString> (*consulta)(const QString&)) {
    if (!rs.isNull(coluna)) combo->setText(consulta(rs.text(coluna)));
  };
  const auto dia = [&rs](QStringView coluna, QObject* campo) {
    if (!rs.isNull(coluna)) forms::setControlText(campo, rs.formatDate(coluna, u"dd/mm/yyyy"));
  };
  const auto desconto = [&rs](QStringView coluna, QLabel* valor) {
    valor->setText(rs.isNull(coluna) ? u"0"_s : rs.format(coluna, kMascaraMoeda));
  };

  texto(u"idprop_cmrc", txtRowId);
  texto(u"idprop_cmrc", txtCodigo);
  texto(u"prop_cmrc_desc", txtDesc);
  if (!rs.isNull(u"SHOW_EXCL")) (rs.text(u"SHOW_EXCL") == u"S" ? opShowRoom : opPV)->setChecked(true);
  texto(u"NOME_CLIE", cboCliente);
  texto(u"fone_CLIE", txtFoneExtra);
  texto(u"emai_CLIE", txtEmailExtra);
  texto(u"NOME_CLIE_CONT", cboClienteContato);
  texto(u"fone_CLIE_CONT", txtFoneExtraContato);
  texto(u"emai_CLIE_CONT", txtEmailExtraContato);
  nome(u"IDRESV_PROP_CMRC", cboRespAtendimento, &UsuarioAtual);
  texto(u"NUME_PESS", txtNumePess);
  nome(u"idvend", cboVendedor, &NomeConhecidoVendedor);
  nome(u"idloca_veds", cboLocalVenda, &DescricaoLocalVenda);
  nome(u"idtipo_mktg", cboTipoMktg, &DescricaoTipoMarketing);
  nome(u"idtipo_even", cboTipoEven, &DescricaoTipoEvento);
  nome(u"idtipo_serv", cboTipoServ, &DescricaoTipoServico);
  dia(u"DATA_PROP_CMRC", mskDtPropCmrc);
  dia(u"DATA_even", mskDataEven);
  dia(u"DATA_vali", mskDtValidade);
  dia(u"DATA_ENTG", mskDtEntrega);
  texto(u"OBSE_prop_CMRC", txtObserva);
  dia(u"data_desa", lblDTDesativa);
  dia(u"data_fech", lblDataFechamento);
  forms::setControlText(
      txtCondPagto, rs.isNull(u"txt_cond_pgto") ? kCondPagtoPadrao.toString() : rs.text(u"txt_cond_pgto"));
  desconto(u"VALO_DECT", lblDesconto);
  desconto(u"PERC_DECT", lblPercDesconto);
}

void frmPropCmrcTL::carregaItens() {
  data::Recordset rs =
      AbreConsulta(u"SELECT * From PROP_CMRC_DETA Where IDPROP_CMRC = '"_s + txtCodigo->text() + u"'"_s);
  for (; !rs.eof(); rs.moveNext()) {
    const QString id = rs.text(u"idprodprot");
    const bool produto = Maiusculas(rs.text(u"prod_prot")) == QStringView(grids::kProduto);
    const QString codigo = produto ? CodigoProduto(id) : ValidaPrototipo(id);
    const QString descricao = produto ? DescricaoProduto(id) : DescricaoPrototipo(id);
    const QString unidade = DescricaoUnidade(produto ? UnidadeProduto(id) : UnidadePrototipo(id));
    const QString mascara = MascaraDecimais(CasasDecimaisUnidade(unidade));
    RowBuilder linha;
    linha << id << rs.text(u"prod_prot") << codigo << descricao << rs.format(u"VALO_UNIT", kMascaraMoeda)
          << rs.format(u"VALO_DECT", kMascaraMoeda) << rs.format(u"VALO_LIQU", kMascaraMoeda)
          << rs.format(u"QTDE", mascara) << rs.format(u"VALO_TOTA", kMascaraMoeda)
          << rs.formatDate(u"DATA_APROV", u"dd/mm/yyyy hh:mm") << (produto ? unidade : QString())
          << rs.text(u"OBSE_PROP_CMRC_DETA");
    Flex->grid().addItem(linha.text());
    CarregaMontagem(txtCodigo->text(), rs.text(u"idPROP_CMRC_DETA"),
                    QString::number(Flex->grid().rows() - 1));
  }
}

void frmPropCmrcTL::CarregaMontagem(const QString& idOrcamento, const QString& idDetalhe,
                                    const QString& linhaFlex) {
  data::Recordset rs = AbreConsulta(u"SELECT * From PROP_CMRC_DETA_MONTA Where IDPROP_CMRC = '"_s +
                                    idOrcamento + u"' and idPROP_CMRC_DETA = '"_s + idDetalhe + u"'"_s);
  for (; !rs.eof(); rs.moveNext()) {
    const QString id = rs.text(u"idprod");
    RowBuilder linha;
    linha << id << CodigoProduto(id) << DescricaoProduto(id) << rs.text(u"QTDE") << rs.text(u"UNID_MEDI")
          << rs.text(u"QTDE_UNID_MEDI") << rs.format(u"VALO_UNIT", kMascaraMoeda)
          << rs.format(u"VALO_TOTA", kMascaraMoeda) << rs.text(u"TIPO_MATE_PRIMA")
          << rs.text(u"OBSE_PROP_CMRC_DETA_MONTA") << rs.text(u"ORDEM_MATE_PRIMA") << linhaFlex;
    FlexMonta.addItem(linha.text());
  }
}

void frmPropCmrcTL::carregaHomenageados() {
  data::Recordset rs =
      AbreConsulta(u"SELECT IDPROP_CMRC_HOMG, NOME_HOMG From PROP_CMRC_HOMG Where IDPROP_CMRC = '"_s +
                   txtCodigo->text() + u"'"_s);
  for (; !rs.eof(); rs.moveNext())
    FlexHomg->grid().addItem((RowBuilder() << rs.text(u"IDPROP_CMRC_HOMG") << rs.text(u"NOME_HOMG")).text());
}
