// The two letters to suppliers.
#include "platform/files/paths.h"
#include "quote_rows.h"

using namespace Qt::StringLiterals;

namespace {

class PurchaseLetter : public Quotes {
 protected:
  PurchaseLetter() {
    sql(u"INSERT INTO cota_comp (idcota_comp, idforn_b, cont_forn_b, cont_forn_c, data_limi_cota_comp) "
        "VALUES (71, 5, 'Sr. Ivo', 'Sra. Eva', '20240410')"_s);
    sql(u"INSERT INTO cota_comp_deta (idcota_comp, idprod, desc_nprod, qtde) VALUES (71, 104, 'x', 2.5), "
        "(71, 0, 'Papel de seda', 30)"_s);
    sql(u"INSERT INTO pedi_comp (idpedi_comp, idforn, data_prev_entg) VALUES (72, 5, '20240420')"_s);
    sql(u"INSERT INTO pedi_comp_deta (idpedi_comp, idprod, desc_nprod, qtde, valo_liqu) VALUES (72, 0, 'Juta', 3, 1.5)"_s);
  }
};

TEST_F(PurchaseLetter, RequestForPricesBySupplierLetter) {
  struct Case {
    QString letter, supplier, contact;
  };
  for (const Case& one :
       {Case{u"B"_s, u"ÀPapéis Norte<"_s, u">Sr. Ivo<"_s}, Case{u"C"_s, u"À<"_s, u">Sra. Eva<"_s},
        Case{u"F"_s, u"À<"_s, u"><"_s}, Case{u""_s, u"À<"_s, u"><"_s}}) {
    documento().letraFornecedor = one.letter;
    build(CotacaoCompraHTML, 71);
    SCOPED_TRACE(one.letter.toStdString());
    expectInOrder(
        u"<!--Abrir Documento-->|logomartatavora283x127.jpg|%1|%2|Prezados,|para os itens abaixo:|"
        "Data limite para resposta: 10/04/2024|width=70%|Descrição|Quantidade|Fita de cetim|2,5|"
        "Papel de seda|30|Atenciosamente,|Marta Tavora Prestige|Departamento de Compras|</html>"_s.arg(
            one.supplier, one.contact));
  }
}

TEST_F(PurchaseLetter, PurchaseOrder) {
  build(OrdemCompraHTML, 72);
  expectInOrder(
      u"ÀPapéis Norte<|Ordem de Compra: 72<|Prezados,|"
      "Seu orçamento foi aprovado. Confirmamos a compra dos itens abaixo:|Valor Unit.|Valor Total|Juta|>3<|"
      ">1,50<|>4,50<|Favor informar o número desta Ordem de Compra em sua NF.|Data de Entrega: 20/04/2024|"
      "Atenciosamente,"_s);
}

TEST_F(PurchaseLetter, NoRowWritesNothingAndAFailureIsShown) {
  CotacaoCompraHTML(99, document());
  OrdemCompraHTML(99, document());
  EXPECT_FALSE(files::exists(document()));
  sql(u"DROP TABLE pedi_comp_deta"_s);
  script.box(u"Problemas no Sistema. Avise o suporte técnico"_s);
  OrdemCompraHTML(72, document());
  EXPECT_EQ(script.lastBox().icon, forms::Icon::Critical);
  EXPECT_FALSE(files::exists(document()));
}

}  // namespace
