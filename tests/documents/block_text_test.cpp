// What the blocks of the other models tell, in its order, as the browser engine shows it.
#include "platform/web/web_pane.h"
#include "quote_rows.h"

using namespace Qt::StringLiterals;

namespace {

const bool kPrepared = (web::prepare(), true);  // the engine wants it before the application object

class BlockText : public support::Quotes {
 protected:
  QString shown() {
    web::WebPane pane;
    pane.resize(900, 600);
    pane.show();
    pane.navigate(document());
    EXPECT_TRUE(pane.waitForLoad());
    return pane.pageText();
  }
  void expectInOrder(const QStringList& told) {
    const QString text = shown();
    EXPECT_EQ(support::missingInOrder(text, told), QString()) << text.toStdString();
  }
  void order() {
    sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, idclie, data_pedi, idtrpt, nome_compr, fone_compr, "
        "idcond_pgto, idtipo_even, idtipo_serv, valo_dect, obse_pedi_veds) VALUES (9, 300, 5, '20240402', 5, "
        "'Rui', "
        "'(19) 4444-0000', 41, 13, 14, 5, 'Portaria 2')"_s);
    sql(u"INSERT INTO pedi_veds_deta (idpedi_veds_deta, idpedi_veds, idprod, qtde, valo_dect, valo_liqu, "
        u"valo_tota, "
        "data_emba, qtde_emba) VALUES (1, 9, 104, 2.5, 0.1, 0.75, 1.875, '20240520', 2), (2, 9, 101, 4, 0, "
        "12.5, 50, "
        "null, null)"_s);
  }
};

TEST_F(BlockText, ListModelWithNcmAndDiscounts) {
  print(123);
  sql(u"UPDATE prop_cmrc SET idcond_pgto = 41 WHERE idprop_cmrc = 123"_s);
  sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, valo_dect) VALUES (8, 123, 7.25)"_s);
  MontaOrcaHTML(123, document());
  expectInOrder(
      {u"Orçamento de Venda - 000123 - 05/03/2024"_s, u"Dados do Cliente"_s, u"Nome: Clara Festas Ltda"_s,
       u"Fone: (19) 3333-1000"_s, u"e-mail: Contato@Clara.example"_s,
       u"Contato: Dora - (19) 99999-0001 - dora@clara.example"_s, u"Endereço: Av. Brasil, 200"_s,
       u"Centro - Campinas - SP - 13020-000"_s, u"CNPJ/CPF: 22.333.444/0001-05"_s, u"Dados Gerais"_s,
       u"Condição de Pagamento: 3 - 030/060/090/"_s, u"Observações: Entregar cedo"_s, u"Codigo"_s,
       u"Descrição"_s, u"NCM"_s, u"Quant."_s, u"Vr.Unit.Prod."_s, u"Vr.Tot.Prod."_s, u"CX-100"_s,
       u"Caixa branca"_s, u"4819.10.00"_s, u"100"_s, u"12,50"_s, u"1250,00"_s, u"202"_s, u"Lata dourada"_s,
       u"2,50"_s, u"22,90"_s, u"57,25"_s,
       // 100 times 0.5 of the rows, 7.25 of the order with the quote's number
       u"Total Geral: 1307,25 - Descontos: 57,25 - Total Liquido: 1250,00"_s, u"Condições Gerais"_s});
  EXPECT_FALSE(written().contains(u"Foto"_s));
  EXPECT_FALSE(written().contains(u"10:30"_s));  // the title has the day alone
}

TEST_F(BlockText, CatalogueModelSortsItsComposition) {
  parameter(u"MODELO_PROP_CMRC"_s, u"1"_s);
  print(123);
  const QStringList before{u"Dados do Cliente"_s,        u"Nome: Clara Festas Ltda"_s,
                           u"Contato: Dora"_s,           u"Data/Hora do Evento: 15/06/2024 20:00"_s,
                           u"Número de Pessoas: 80"_s,   u"Validade do Orçamento: 05/04/2024"_s,
                           u"Resp.Atendimento: MARIA"_s, u"Tipo Evento: Casamento"_s,
                           u"Tipo Serviço: Lembrança"_s, u"Observações: Entregar cedo"_s,
                           u"Protótipo 001"_s,           u"Caixa branca - Código CX-100"_s,
                           u"Quantidade: 100"_s,         u"Valor Unitário: R$ 12,50"_s,
                           u"Total: R$ 1250,00"_s,       u"Observações:"_s,
                           u"Protótipo 002"_s,           u"Lata dourada - Código 202"_s};
  const QStringList after{u"Quantidade: 2,50"_s, u"Total: R$ 57,25"_s, u"Observações: Sem fita"_s,
                          u"Condições Gerais"_s};
  const QStringList natural{u"FLOR"_s,           u"Flor seca"_s, u"3"_s,  u"NPROD"_s,
                            u"Areia colorida"_s, u"0,250"_s,     u"KG"_s, u"BOM-1"_s,
                            u"Bombom"_s,         u"12"_s,        u"UN"_s};
  MontaOrcaHTML(123, document());
  expectInOrder(before + natural + after);
  files::remove(document());
  documento().OrdemComposicao = u"DESCRICAO"_s;
  MontaOrcaHTML(123, document());
  expectInOrder(before + QStringList{u"Areia colorida"_s, u"Bombom"_s, u"Flor seca"_s} + after);
  files::remove(document());
  documento().ExibeComposicao = false;
  MontaOrcaHTML(123, document());
  EXPECT_FALSE(written().contains(u"Areia"_s));
}

TEST_F(BlockText, ShipmentModelShowsItsItemsThreeTimes) {
  parameter(u"MODELO_PROP_CMRC"_s, u"3"_s);
  print(123);
  MontaOrcaHTML(123, document());
  const QStringList items{u"Prev.Entrega"_s,
                          u"CX-100"_s,
                          u"Data"_s,
                          u"Qtde"_s,
                          u"01/05"_s,
                          u"60"_s,
                          u"-"_s,
                          u"Lata dourada"_s,
                          u"Total Geral: 1307,25"_s};
  expectInOrder(QStringList{u"Endereço: Av. Brasil, 200 - Bairro: Centro"_s,
                            u"CNPJ/CPF: 22.333.444/0001-05 - I.E./RG: 220.100"_s, u"Tipo Evento: Casamento"_s,
                            u"Tipo Serviço: Lembrança"_s} +
                items + items + items);
  const QString text = written();
  EXPECT_EQ(text.count(u"Total Geral"_s), 3);
  EXPECT_FALSE(text.contains(u"Contato:"_s));
  EXPECT_FALSE(text.contains(u"Condições Gerais"_s));
}

TEST_F(BlockText, DetailTableHidesPricesWithoutAssembly) {
  parameter(u"MODELO_PROP_CMRC"_s, u"2"_s);
  print(123);
  documento().ExibeComposicao = false;
  MontaOrcaHTML(123, document());
  expectInOrder({u"Cod.Prod."_s, u"Produto"_s, u"Observação"_s, u"Qtde"_s, u"Valor Unit."_s, u"Valor Total"_s,
                 u"CX-100"_s, u"Fita João → azul"_s, u"12,50"_s, u"1250,00"_s, u"202"_s, u"Lata dourada"_s,
                 u"2,50"_s, u"Total"_s, u"1307,25"_s, u"Quantidade Solicitada: 80"_s,
                 u"Total Geral - R$ 2832,00"_s, u"Forma de Pagamento:"_s, u"Aprovação do Pedido"_s});
  files::remove(document());
  documento().ExibeMontagem = false;
  sql(u"UPDATE prop_cmrc SET nume_pess = null WHERE idprop_cmrc = 123"_s);
  MontaOrcaHTML(123, document());
  expectInOrder({u"Cod.Prod."_s, u"CX-100"_s, u"Lata dourada"_s, u"Total Unitário"_s, u"35,40"_s});
  for (const QString& hidden : {u"1250,00"_s, u"22,90"_s, u"Quantidade Solicitada"_s})
    EXPECT_FALSE(written().contains(hidden)) << hidden.toStdString();
}

TEST_F(BlockText, ClosingDetailHasPaymentAndNoLetterhead) {
  for (const QString& model : {u""_s, u"1"_s, u"2"_s, u"3"_s}) {
    parameter(u"MODELO_PROP_CMRC"_s, model);
    print(124);
    documento().RsImpressao.close();  // nobody is printing when a quote is closed
    MontaDetalheOrcaHTML(124, document());
    const QString text = shown();
    EXPECT_TRUE(text.contains(u"Clara Festas Ltda"_s)) << model.toStdString();
    EXPECT_TRUE(written().contains(u"size='1'>41</font>"_s)) << model.toStdString();
    EXPECT_FALSE(text.contains(u"Acácias"_s) || text.contains(u"Presentes Aurora Ltda\nCNPJ:"_s));
    EXPECT_EQ(text.contains(u"Condições Gerais"_s), model.isEmpty() || model == u"1") << model.toStdString();
    files::remove(document());
    sql(u"DELETE FROM empr_cnfg"_s);
  }
}

TEST_F(BlockText, PhotosFollowPublicationAndFiles) {
  files::write(u"c:\\zarim\\imagens\\CX-100W2.jpg"_s, "x");
  print(123);
  documento().ExibeFotos = true;
  MontaOrcaHTML(123, document());
  EXPECT_EQ(
      support::missingInOrder(
          written(),
          {u"width='25%'"_s, u"Foto"_s, u"width='20%'"_s, u"Descrição"_s,
           u"            <td width='25%' align='center'><IMG SRC='c:\\zarim\\imagens\\CX-100W2.jpg'></td>"_s,
           u"<IMG SRC='c:\\zarim\\imagens\\sem_imagem.jpg'></td>"_s}),
      QString());
  files::remove(document());
  documento().PublicacaoExterna = true;
  MontaOrcaHTML(123, document());
  const QString link =
      u"<a TARGET='_blank' href='http://www.exemplo.com.br/fotos/CX-100.jpg'>"
      "<img border='0' src='http://www.exemplo.com.br/imagens/CX-100.jpg'></a></td>"_s;
  EXPECT_TRUE(written().contains(link));
  // The catalogue looks for the file first.
  files::remove(document());
  parameter(u"MODELO_PROP_CMRC"_s, u"1"_s);
  MontaOrcaHTML(123, document());
  EXPECT_EQ(
      support::missingInOrder(
          written(),
          {link,
           u"<td align='center'><img border='0' src='http://www.exemplo.com.br/imagens/imagem_branco.jpg'></td>"_s}),
      QString());
  EXPECT_EQ(written().count(u"imagem_branco.jpg"_s), 7);
}

TEST_F(BlockText, OrdersByLookAndModel) {
  order();
  const QStringList start{u"Pedido de Venda - 000300 - 02/04/2024"_s,
                          u"Nome: Clara Festas Ltda"_s,
                          u"Endereço: Av. Brasil, 200 - Bairro: Centro"_s,
                          u"I.E./RG: 220.100"_s,
                          u"Transportadora: Rápido Sul Transportes - Fone: (11) 4000-0001"_s,
                          u"Comprador: Rui - Fone: (19) 4444-0000"_s,
                          u"Condição de Pagamento: 3 - 030/060/090/"_s,
                          u"Tipo Evento: Casamento"_s,
                          u"Tipo Serviço: Lembrança"_s,
                          u"Observações: Portaria 2"_s};
  const QStringList boxes{u"Produto - 001"_s,
                          u"Codigo"_s,
                          u"Quant."_s,
                          u"FITA"_s,
                          u"Fita de cetim"_s,
                          u"2,5"_s,
                          u"Valor Unitário: R$ 0,75 - Total: R$ 1,88"_s,
                          u"Produto - 002"_s,
                          u"Caixa branca"_s,
                          u"Condições Gerais"_s,
                          u"7 - Fica vedada"_s,
                          u"De Acordo"_s};
  const QStringList table{u"Prev.Entrega"_s, u"FITA"_s, u"20/05"_s, u"2,0"_s, u"Caixa branca"_s,
                          // 2.5 times 0.1 of the rows, 5 of the order
                          u"Total Geral: 51,88 - Descontos: 5,25 - Total Liquido: 46,63"_s,
                          u"Condições Gerais"_s, u"6 - No caso de entrega parcial"_s, u"Comprador"_s,
                          u"Assinatura"_s};
  for (const QString& look : {u"1"_s, u"2"_s}) {
    parameter(u"MODELO_PEDI_VEDS"_s, look);
    for (const QString& model : {u""_s, u"2"_s, u"3"_s}) {
      parameter(u"MODELO_PEDIDO_VEDS"_s, model);
      MontaPedidoHTML(300, document());
      if (model == u"3") {
        expectInOrder(start);
        EXPECT_FALSE(written().contains(u"Codigo"_s) || written().contains(u"Condições Gerais"_s));
      } else {
        expectInOrder(start + (model.isEmpty() ? boxes : table));
        EXPECT_EQ(written().contains(u"font-weight:bold' align='center'>\n        Produto - 001\n"_s),
                  model.isEmpty() && look == u"1");
      }
      EXPECT_EQ(written().contains(u"span.titulo2{"_s), look == u"2");
      EXPECT_EQ(written().contains(u"<td width='70%'"_s), model.isEmpty());
      files::remove(document());
      sql(u"DELETE FROM empr_cnfg WHERE nome_para = 'MODELO_PEDIDO_VEDS'"_s);
    }
    sql(u"DELETE FROM empr_cnfg"_s);
  }
}

}  // namespace
