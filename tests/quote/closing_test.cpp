#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/files/paths.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(QuoteCase, AFailingNoticeKeepsTheQuoteClosedAndTheOthersAreTried) {
  const QString detail = u"c:\\zarim\\documentos\\deta_orca_000003.html"_s;
  files::write(detail, "velho");
  sql(u"UPDATE empr SET emai_serv = '127.0.0.1:1'"_s);
  sql(u"INSERT INTO work_even (idwork_even, codi_work_even) VALUES (1, 'PROJETACOMPRA')"_s);
  sql(u"INSERT INTO work_even_usen (idwork_even, idusen) VALUES (1, 7)"_s);
  store(3);
  start();
  load(3);
  QStringList boxes;
  forms::setBoxAnswerer([&boxes](const forms::Box& box) {
    boxes << box.text;
    return forms::Answer::Yes;
  });
  script
      .modal([](forms::Form& form) {
        auto& terms = static_cast<frmConfirmaPropCmrcTL&>(form);
        EXPECT_EQ(terms.lblVrBrutoTOT->text() + u' ' + terms.txtDescontoGeral->text(), u"57,75 1,50"_s);
        EXPECT_EQ(terms.txtPercDesc->text() + u' ' + terms.lblVrLiqTOT->text(), u"2,00 56,25"_s);
        form.hideForm();
      })
      .expectEnd(1);
  support::click(screen->cmdFechar);
  ASSERT_EQ(boxes.size(), 2);
  EXPECT_TRUE(boxes[1].startsWith(u"Erro em tempo de execução"_s));
  EXPECT_EQ(ask(u"SELECT data_fech || ' ' || user_fech FROM prop_cmrc WHERE idprop_cmrc = 3"_s),
            u"20240315 10:30 7"_s);
  EXPECT_TRUE(files::readAll(detail).startsWith("<"));
  EXPECT_TRUE(statements().join(u' ').contains(u"AVISOORCAFECHADOFULL"_s));
}

}  // namespace
