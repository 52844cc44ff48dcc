#include <QTcpServer>

#include "closing/frmConfirmaPropCmrcTL.h"
#include "platform/files/contents.h"
#include "platform/mail/mail_message.h"
#include "quote_case.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(QuoteCase, ASilentMailServerIsWaitedForOnceAndTheQuoteStaysClosed) {
  const QString detail = u"c:\\zarim\\documentos\\deta_orca_000003.html"_s;
  files::write(detail, "velho");
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  mail::settings().connectTimeout = 1;
  sql(u"UPDATE empr SET emai_serv = '127.0.0.1:%1'"_s.arg(silent.serverPort()));
  for (const auto& event : {u"1, 'PROJETACOMPRA', 'Compras'"_s, u"2, 'AVISOORCAFECHADO', 'Sem assinante'"_s,
                            u"3, 'AVISOORCAFECHADOFULL', null"_s})
    sql(u"INSERT INTO work_even (idwork_even, codi_work_even, desc_work_even) VALUES (%1)"_s.arg(event));
  sql(u"INSERT INTO work_even_usen (idwork_even, idusen) VALUES (1, 7), (3, 7)"_s);
  store(3);
  start();
  load(3);
  QStringList boxes;
  forms::setBoxAnswerer([&boxes](const forms::Box& box) {
    boxes << box.text;
    return forms::Answer::Yes;
  });
  script.modal([](forms::Form& form) {
    auto& terms = static_cast<frmConfirmaPropCmrcTL&>(form);
    EXPECT_EQ(terms.lblVrBrutoTOT->text(), u"57,75"_s);
    EXPECT_EQ(terms.txtDescontoGeral->text(), u"1,50"_s);
    EXPECT_EQ(terms.txtPercDesc->text(), u"2,00"_s);
    EXPECT_EQ(terms.lblVrLiqTOT->text(), u"56,25"_s);
    form.hide();
  });
  support::click(screen->cmdFechar);
  mail::settings() = {};
  ASSERT_EQ(boxes.size(), 3);
  EXPECT_TRUE(boxes[1].startsWith(u"Erro em tempo de execução '-2147221503'"_s));
  EXPECT_EQ(boxes[2],
            u"O orçamento nr. 000003 está fechado. Avisos não enviados: Compras, AVISOORCAFECHADOFULL"_s);
  int tried = 0;
  while (silent.waitForNewConnection(100) || silent.hasPendingConnections())
    if (silent.nextPendingConnection() != nullptr) ++tried;
  EXPECT_EQ(tried, 1);
  EXPECT_EQ(screen->txtRowId->text(), QString());
  EXPECT_EQ(ask(u"SELECT data_fech || ' ' || user_fech FROM prop_cmrc WHERE idprop_cmrc = 3"_s),
            u"20240315 10:30 7"_s);
  EXPECT_TRUE(files::readAll(detail).startsWith("<"));
}

}  // namespace
