// What the blocks of the other models say, in order, as the pane shows it.
#include "platform/files/contents.h"
#include "platform/web/web_pane.h"
#include "quote_rows.h"

using namespace Qt::StringLiterals;

namespace {

class BlockText : public Quotes {
 protected:
  static QString shown() {
    web::WebPane pane;
    pane.resize(900, 600);
    pane.show();
    pane.navigate(document());
    EXPECT_TRUE(pane.stands());
    return pane.pageText();
  }
  static void expectShown(const QString& expected) { expectInOrder(expected, shown()); }
};

TEST_F(BlockText, ListModelWithNcmAndDiscounts) {
  print(123);
  sql(u"UPDATE prop_cmrc SET idcond_pgto = 41 WHERE idprop_cmrc = 123"_s);
  sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, valo_dect) VALUES (8, 123, 7.25)"_s);
  build(MontaOrcaHTML, 123);
  // Discounts: 100 times 0.5 of the rows, 7.25 of the order with the quote's number.
  expectShown(
      u"Orçamento de Venda - 000123 - 05/03/2024|Dados do Cliente|Nome: Clara Festas Ltda|"
      "Fone: (19) 3333-1000|e-mail: Contato@Clara.example|"
      "Contato: Dora - (19) 99999-0001 - dora@clara.example|Endereço: Av. Brasil, 200|"
      "Centro - Campinas - SP - 13020-000|CNPJ/CPF: 22.333.444/0001-05|Dados Gerais|"
      "Condição de Pagamento: 3 - 030/060/090/|Observações: Entregar cedo|Codigo|Descrição|NCM|Quant.|"
      "Vr.Unit.Prod.|Vr.Tot.Prod.|CX-100|Caixa branca|4819.10.00|100|12,50|1250,00|202|Lata dourada|"
      "2,50|22,90|57,25|Total Geral: 1307,25 - Descontos: 57,25 - Total Liquido: 1250,00|"
      "Condições Gerais"_s);
  EXPECT_FALSE(written().contains(u"Foto"_s));
  EXPECT_FALSE(written().contains(u"10:30"_s));  // the title has the day alone
}

TEST_F(BlockText, CatalogueModelSortsItsComposition) {
  parameter(u"MODELO_PROP_CMRC"_s, u"1"_s);
  print(123);
  const QString before =
      u"Dados do Cliente|Nome: Clara Festas Ltda|Contato: Dora|Data/Hora do Evento: 15/06/2024 20:00|"
      "Número de Pessoas: 80|Validade do Orçamento: 05/04/2024|Resp.Atendimento: MARIA|"
      "Tipo Evento: Casamento|Tipo Serviço: Lembrança|Observações: Entregar cedo|Protótipo 001|"
      "Caixa branca - Código CX-100|Quantidade: 100|Valor Unitário: R$ 12,50|Total: R$ 1250,00|"
      "Observações:|Protótipo 002|Lata dourada - Código 202|"_s;
  const QString after = u"Quantidade: 2,50|Total: R$ 57,25|Observações: Sem fita|Condições Gerais"_s;
  const QString natural = u"FLOR|Flor seca|3|NPROD|Areia colorida|0,250|KG|BOM-1|Bombom|12|UN|"_s;
  build(MontaOrcaHTML, 123);
  expectShown(before + natural + after);
  documento().OrdemComposicao = u"DESCRICAO"_s;
  build(MontaOrcaHTML, 123);
  expectShown(before + u"Areia colorida|Bombom|Flor seca|"_s + after);
  sql(u"ALTER TABLE prot_kit0 DROP COLUMN qtde_prod"_s);
  sql(u"UPDATE prot_kit0 SET qtde = 4"_s);
  build(MontaOrcaHTML, 123);
  expectShown(u"Areia colorida|4,000|KG|Bombom|4|UN"_s);
  documento().ExibeComposicao = false;
  sql(u"UPDATE prop_cmrc SET obse_prop_cmrc = 'cedo' || char(13, 10) || 'ou tarde' WHERE idprop_cmrc = 123"_s);
  build(MontaOrcaHTML, 123);
  EXPECT_FALSE(written().contains(u"Areia"_s));
  EXPECT_TRUE(written().contains(u"cedo\nou tarde</span>"_s));
}

TEST_F(BlockText, ShipmentModelShowsItsItemsThreeTimes) {
  parameter(u"MODELO_PROP_CMRC"_s, u"3"_s);
  print(123);
  build(MontaOrcaHTML, 123);
  const QString items = u"Prev.Entrega|CX-100|Data|Qtde|01/05|60|-|Lata dourada|Total Geral: 1307,25|"_s;
  expectShown(
      u"Endereço: Av. Brasil, 200 - Bairro: Centro|CNPJ/CPF: 22.333.444/0001-05 - I.E./RG: 220.100|"
      "Tipo Evento: Casamento|Tipo Serviço: Lembrança|"_s +
      items.repeated(3));
  const QString text = written();
  EXPECT_EQ(text.count(u"Total Geral"_s), 3);
  EXPECT_FALSE(text.contains(u"Contato:"_s));
  EXPECT_FALSE(text.contains(u"Condições Gerais"_s));
}

TEST_F(BlockText, DetailTableHidesPricesWithoutAssembly) {
  parameter(u"MODELO_PROP_CMRC"_s, u"2"_s);
  print(123);
  documento().ExibeComposicao = false;
  build(MontaOrcaHTML, 123);
  expectShown(
      u"Cod.Prod.|Produto|Observação|Qtde|Valor Unit.|Valor Total|CX-100|Fita João → azul|12,50|1250,00|"
      "202|Lata dourada|2,50|Total|1307,25|Quantidade Solicitada: 80|Total Geral - R$ 2832,00|"
      "Forma de Pagamento:|Aprovação do Pedido"_s);
  documento().ExibeMontagem = false;
  sql(u"UPDATE prop_cmrc SET nume_pess = null WHERE idprop_cmrc = 123"_s);
  build(MontaOrcaHTML, 123);
  expectShown(u"Cod.Prod.|CX-100|Lata dourada|Total Unitário|35,40"_s);
  for (const QString& hidden : {u"1250,00"_s, u"22,90"_s, u"Quantidade Solicitada"_s})
    EXPECT_FALSE(written().contains(hidden)) << hidden.toStdString();
}

TEST_F(BlockText, ClosingDetailHasPaymentAndNoLetterhead) {
  for (const QString& model : {u""_s, u"1"_s, u"2"_s, u"3"_s}) {
    parameter(u"MODELO_PROP_CMRC"_s, model);
    reiniciaDocumento();  // nobody has printed in this run
    build(MontaDetalheOrcaHTML, 124);
    const QString text = shown();
    EXPECT_TRUE(text.contains(u"Clara Festas Ltda"_s)) << model.toStdString();
    EXPECT_TRUE(written().contains(u"size='1'>41</font>"_s)) << model.toStdString();
    EXPECT_EQ(text.contains(u"Valor Unit."_s), model == u"2");
    EXPECT_EQ(written().contains(u"width='100%' style='FONT-SIZE: 8pt"_s), model == u"3");
    EXPECT_FALSE(written().contains(u" -  - "_s)) << "nothing is known of a contact";
    EXPECT_FALSE(text.contains(u"Acácias"_s) || text.contains(u"Presentes Aurora Ltda\nCNPJ:"_s));
    EXPECT_EQ(text.contains(u"Condições Gerais"_s), model.isEmpty() || model == u"1") << model.toStdString();
  }
  // An unknown model keeps what all models have: head, payment, close.
  parameter(u"MODELO_PROP_CMRC"_s, u"4"_s);
  build(MontaDetalheOrcaHTML, 124);
  expectInOrder(u"<head>|size='1'>41</font>|</html>"_s);
  EXPECT_FALSE(written().contains(u"Clara Festas"_s));
}

TEST_F(BlockText, PhotosFollowPublicationAndFiles) {
  files::write(u"c:\\zarim\\imagens\\CX-100W2.jpg"_s, "x");
  print(123);
  documento().ExibeFotos = true;
  build(MontaOrcaHTML, 123);
  expectInOrder(
      u"width='25%'|Foto|width='20%'|Descrição|"
      "            <td width='25%' align='center'><IMG SRC='c:\\zarim\\imagens\\CX-100W2.jpg'></td>|"
      "<IMG SRC='c:\\zarim\\imagens\\sem_imagem.jpg'></td>"_s);
  documento().PublicacaoExterna = true;
  build(MontaOrcaHTML, 123);
  const QString link =
      u"<a TARGET='_blank' href='http://www.exemplo.com.br/fotos/CX-100.jpg'>"
      "<img border='0' src='http://www.exemplo.com.br/imagens/CX-100.jpg'></a></td>"_s;
  EXPECT_TRUE(written().contains(link));
  // The catalogue looks for the file first.
  parameter(u"MODELO_PROP_CMRC"_s, u"1"_s);
  build(MontaOrcaHTML, 123);
  const QString blank =
      u"|<td align='center'><img border='0' src='http://www.exemplo.com.br/imagens/imagem_branco.jpg'></td>"_s;
  expectInOrder(u"<tr>            <td width='25%' align='center'>"_s + link + blank);
  EXPECT_EQ(written().count(u"imagem_branco.jpg"_s), 7);
}

TEST_F(BlockText, OrdersByLookAndModel) {
  sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, idclie, data_pedi, idtrpt, nome_compr, fone_compr, "
      "idcond_pgto, idtipo_even, idtipo_serv, valo_dect, obse_pedi_veds) VALUES (9, 300, 5, '20240402', 5, "
      "'Rui', '(19) 4444-0000', 41, 13, 14, 5, 'Portaria 2')"_s);
  sql(u"INSERT INTO pedi_veds_deta (idpedi_veds_deta, idpedi_veds, idprod, qtde, valo_dect, valo_liqu, "
      "valo_tota, data_emba, qtde_emba) VALUES (1, 9, 104, 2.5, 0.1, 0.75, 1.875, '20240520', 2), "
      "(2, 9, 101, 4, 0, 12.5, 50, null, null)"_s);
  const QString start =
      u"Pedido de Venda - 000300 - 02/04/2024|Nome: Clara Festas Ltda|"
      "Endereço: Av. Brasil, 200 - Bairro: Centro|I.E./RG: 220.100|"
      "Transportadora: Rápido Sul Transportes - Fone: (11) 4000-0001|"
      "Comprador: Rui - Fone: (19) 4444-0000|Condição de Pagamento: 3 - 030/060/090/|"
      "Tipo Evento: Casamento|Tipo Serviço: Lembrança|Observações: Portaria 2"_s;
  const QString boxes =
      u"Produto - 001|Codigo|Quant.|FITA|Fita de cetim|2,5|Valor Unitário: R$ 0,75 - Total: R$ 1,88|"
      "Produto - 002|Caixa branca|Condições Gerais|7 - Fica vedada|De Acordo"_s;
  // Discounts: 2.5 times 0.1 of the rows, 5 of the order.
  const QString table =
      u"Prev.Entrega|FITA|20/05|2,0|Caixa branca|"
      "Total Geral: 51,88 - Descontos: 5,25 - Total Liquido: 46,63|Condições Gerais|"
      "6 - No caso de entrega parcial|Comprador|Assinatura"_s;
  for (const QString& look : {u"1"_s, u"2"_s}) {
    parameter(u"MODELO_PEDI_VEDS"_s, look);
    for (const QString& model : {u""_s, u"2"_s, u"3"_s}) {
      parameter(u"MODELO_PEDIDO_VEDS"_s, model);
      build(MontaPedidoHTML, 300);
      if (model == u"3") {
        expectShown(start);
        EXPECT_FALSE(written().contains(u"Codigo"_s) || written().contains(u"Condições Gerais"_s));
      } else {
        expectShown(start + u'|' + (model.isEmpty() ? boxes : table));
        EXPECT_EQ(written().contains(u"font-weight:bold' align='center'>\n        Produto - 001\n"_s),
                  model.isEmpty() && look == u"1");
      }
      EXPECT_EQ(written().contains(u"span.titulo2{"_s), look == u"2");
      EXPECT_EQ(written().contains(u"<td width='70%'"_s), model.isEmpty());
    }
  }
}

// Every text of the database is shown as it was typed, none is taken for a tag or an entity.
TEST_F(BlockText, DataAreShownAsTheyWereTyped) {
  const QString typed = u"Qx&reg <i>'\"&#65;"_s;
  const QString columns[] = {
      u"empr: nome_empr cnpj_empr ie00_empr ende_coml_empr tele_0001_empr emai_empr_usox http_empr"_s,
      u"usen: usen emai_user"_s,
      u"tipo_even: desc_tipo_even"_s,
      u"tipo_serv: desc_tipo_serv"_s,
      u"pess: nome_pess ende_coml_pess bair_coml_pess cida_coml_pess cpf0_cnpj rg00_ie00 emai_pess"_s,
      u"prod: codi_prod desc_prod"_s,
      u"prot: desc_prot obse_prot"_s,
      u"prot_kit0: desc_nprod"_s,
      u"clas_fisc: codi_comt"_s,
      u"pedi_veds: nome_compr fone_compr obse_pedi_veds"_s,
      u"prop_cmrc: fone_clie emai_clie nome_clie_cont obse_prop_cmrc txt_cond_pgto nume_pess"_s,
      u"prop_cmrc_deta: obse_prop_cmrc_deta"_s,
      u"prop_cmrc_deta_monta: obse_prop_cmrc_deta_monta"_s,
      u"cota_comp: cont_forn_b"_s,
      u"cota_comp_deta: desc_nprod"_s,
      u"pedi_comp_deta: desc_nprod"_s};
  sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, idclie) VALUES (9, 123, 5)"_s);
  sql(u"INSERT INTO pedi_veds_deta (idpedi_veds, idprod, qtde) VALUES (9, 104, 1)"_s);
  sql(u"INSERT INTO cota_comp (idcota_comp, idforn_b) VALUES (123, 5)"_s);
  sql(u"INSERT INTO cota_comp_deta (idcota_comp, idprod, qtde) VALUES (123, 0, 1)"_s);
  sql(u"INSERT INTO pedi_comp (idpedi_comp, idforn) VALUES (123, 5)"_s);
  sql(u"INSERT INTO pedi_comp_deta (idpedi_comp, idprod, qtde) VALUES (123, 0, 1)"_s);
  for (const QString& one : columns)
    for (const QString& column : one.section(u": "_s, 1).split(u' '))
      sql(u"UPDATE %1 SET %2 = '%3'"_s.arg(one.section(u':', 0, 0), column,
                                           QString(typed).replace(u'\'', u"''"_s)));
  print(123);
  documento().ExibeFotos = true;
  documento().letraFornecedor = u"B"_s;
  const auto look = [&](void (*routine)(qint32, const QString&)) {
    build(routine, 123);
    const QString html = written().toLower();
    EXPECT_EQ(html.count(u"qx"_s), html.count(u"qx&amp;reg &lt;i&gt;"_s));
    EXPECT_EQ(html.count(u"/qx"_s), html.count(u"&#39;&quot;&amp;#65;.jpg'"_s));
    EXPECT_GE(shown().count(typed), 2);
  };
  for (const QString& model : {u""_s, u"1"_s, u"2"_s, u"3"_s}) {
    SCOPED_TRACE(model.toStdString());
    parameter(u"MODELO_PROP_CMRC"_s, model);
    for (const bool external : {false, true}) {
      documento().PublicacaoExterna = external;
      look(MontaOrcaHTML);
    }
    look(MontaDetalheOrcaHTML);
    parameter(u"MODELO_PEDI_VEDS"_s, model);
    parameter(u"MODELO_PEDIDO_VEDS"_s, model);
    look(MontaPedidoHTML);
  }
  for (auto* routine : {MontaOrcaGradeHTML, CotacaoCompraHTML, OrdemCompraHTML}) look(routine);
}

}  // namespace
